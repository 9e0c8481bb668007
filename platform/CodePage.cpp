#include "platform/CodePage.h"

#include <algorithm>
#include <array>

namespace pixmosa {
namespace {

// Codes 128..159; all others are equal to their Unicode number.
constexpr std::array<char32_t, 32> kUpper = {0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                             0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x008D, 0x017D, 0x008F,
                                             0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                             0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

constexpr char32_t kBad = 0xFFFD;

}  // namespace

char32_t UnicodeOfByte(unsigned char code) {
  return code >= 128 && code < 160 ? kUpper[code - 128U] : code;
}

std::optional<unsigned char> ByteOfUnicode(char32_t c) {
  if (c < 128 || (c >= 160 && c < 256)) return c;
  const auto at = std::find(kUpper.begin(), kUpper.end(), c);
  if (at == kUpper.end()) return std::nullopt;
  return 128 + (at - kUpper.begin());
}

void AppendUtf8(std::string& to, char32_t c) {
  const auto put = [&](char byte) { to += byte; };
  const auto tail = [&](int shift) { put(0x80 | (c >> shift & 0x3F)); };
  if (c < 0x80) {
    put(c);
  } else if (c < 0x800) {
    put(0xC0 | c >> 6);
    tail(0);
  } else if (c < 0x10000) {
    put(0xE0 | c >> 12);
    tail(6);
    tail(0);
  } else {
    put(0xF0 | c >> 18);
    tail(12);
    tail(6);
    tail(0);
  }
}

char32_t NextUtf8(std::string_view& utf8) {
  const auto byte = [&](std::size_t i) -> unsigned char { return utf8[i]; };
  const unsigned char b = byte(0);
  const std::size_t n = b < 0x80                ? 1
                        : b >= 0xC2 && b < 0xE0 ? 2
                        : b >= 0xE0 && b < 0xF0 ? 3
                        : b >= 0xF0 && b < 0xF5 ? 4
                                                : 0;
  if (n == 0 || n > utf8.size()) {
    utf8.remove_prefix(1);
    return kBad;
  }
  char32_t c = n == 1 ? b : b & (0x7FU >> n);
  for (std::size_t i = 1; i < n; ++i) {
    if ((byte(i) & 0xC0) != 0x80) {
      utf8.remove_prefix(i);
      return kBad;
    }
    c = c << 6 | (byte(i) & 0x3FU);
  }
  utf8.remove_prefix(n);
  const bool overlong = (n == 3 && c < 0x800) || (n == 4 && c < 0x10000);
  const bool surrogate = c >= 0xD800 && c < 0xE000;
  return overlong || surrogate || c > 0x10FFFF ? kBad : c;
}

std::string Utf8OfBytes(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() + bytes.size() / 4);
  for (const char c : bytes) AppendUtf8(text, UnicodeOfByte(c));
  return text;
}

std::string BytesOfUtf8(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) bytes.push_back(ByteOfUnicode(NextUtf8(utf8)).value_or('?'));
  return bytes;
}

std::string LowerCase(std::string_view bytes) {
  std::string lower(bytes);
  for (char& c : lower) {
    const unsigned char b = c;
    const bool plain = b >= 'A' && b <= 'Z', accented = b >= 0xC0 && b <= 0xDE && b != 0xD7;
    if (plain || accented) c = b + 0x20;
    if (b == 0x8A || b == 0x8C || b == 0x8E) c = b + 0x10;
    if (b == 0x9F) c = '\xFF';
  }
  return lower;
}

}  // namespace pixmosa
