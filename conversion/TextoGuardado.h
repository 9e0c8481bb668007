// The saved form of a produced text and the status bar's texts that its header quotes.
#pragma once

#include <string>
#include <string_view>

#include "platform/Font.h"

namespace pixmosa {

// "Fuente: " and the name, "Tamaño: " and the points, in UTF-8.
std::string PanelFuente(const Font& font);
std::string PanelTamaño(const Font& font);

// The file's bytes: a header line that names the font, CR LF, the text (8-bit code page), CR LF.
std::string TextoGuardado(const Font& font, std::string_view text);

// The same in UTF-8, for a text with characters that the code page lacks.
std::string TextoGuardadoUtf8(const Font& font, std::string_view utf8);

}  // namespace pixmosa
