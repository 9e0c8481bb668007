// The saved form of a produced text and the status bar's texts that its header quotes.
#pragma once

#include <string>
#include <string_view>

#include "platform/Font.h"

namespace pixmosa {

// "Fuente: " and the name, "Tamaño: " and the points, in UTF-8.
std::string PanelFuente(const Font& font);
std::string PanelTamaño(const Font& font);

// The file's bytes: a header line with the two panels' texts (UTF-8), CR LF, the text (8-bit code page), CR
// LF.
std::string TextoGuardado(std::string_view fontPanel, std::string_view sizePanel, std::string_view text);

}  // namespace pixmosa
