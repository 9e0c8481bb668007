// Bringing in fonts from elsewhere: a standard FIGlet font (FIGfont version 2) rewritten into the form that
// the reader takes whole.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Errores.h"

namespace pixmosa {

// what() is a Spanish sentence in UTF-8 that names the file, the line and the fault.
class FuenteRechazada : public ErrorDelPrograma {
 public:
  using ErrorDelPrograma::ErrorDelPrograma;
};

// The font with CR LF, "$" as hard blank, end marks "@" and "@@", and 224 blocks in code page order;
// characters that the font lacks are empty. Its comments are kept; a "$" of the artwork becomes "S". `name`
// stands for the file in messages. Throws FuenteRechazada.
std::string ReescribirFuente(std::string_view font, const std::string& name);

// Writes a rewritten font as `name` (with its ending) into the first of the folders that can be written, made
// if it is missing, and lists it in that folder's catalogue under the category of added fonts. Throws
// FileError.
void GuardarFuente(const std::vector<std::filesystem::path>& folders, const std::string& name,
                   std::string_view rewritten);

}  // namespace pixmosa
