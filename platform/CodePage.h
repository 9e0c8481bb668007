// The program's 8-bit code page, Windows-1252, at the edges where Unicode begins. The five bytes that the
// page leaves undefined stand for the control characters of the same number, so every byte is kept both ways.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pixmosa {

char32_t UnicodeOfByte(unsigned char code);

// The byte for a character, or nothing where the page has none.
std::optional<unsigned char> ByteOfUnicode(char32_t c);

std::string Utf8OfBytes(std::string_view bytes);

// Characters that the page lacks, and malformed sequences, become "?".
std::string BytesOfUtf8(std::string_view utf8);

// The text with its letters in lower case, accented ones too.
std::string LowerCase(std::string_view bytes);

// Appends one character in UTF-8.
void AppendUtf8(std::string& to, char32_t c);

// Takes the next character off the front of `utf8`; U+FFFD for a malformed sequence. Not for an empty text.
char32_t NextUtf8(std::string_view& utf8);

}  // namespace pixmosa
