// What the document of a text area holds for a text, and back: a line end is a paragraph, and codes that text
// layout would not show have stand-ins.
#pragma once

#include <string>
#include <string_view>

#include <QString>

namespace pixmosa {

// A control of the code page, held as U+F800 + code in the private use area.
bool EsSuplente(char16_t c);

// A character that the code page lacks; each half of one beyond 16 bits is.
bool EsAjeno(char16_t c);

// Of UTF-8; CR LF is the only line end. The soft hyphen is held as a hyphen.
QString RetenidoDeUtf8(std::string_view utf8);
std::string Utf8DeRetenido(const QString& held);

// Some of it are stand-ins or characters that the code page lacks; some are the latter.
bool NecesitaFormato(const QString& held);
bool TieneAjenos(const QString& held);

}  // namespace pixmosa
