// A standard FIGlet font (FIGfont version 2, or its wider kin "tlf2") rewritten into the form that the reader
// takes whole.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "platform/Errores.h"

namespace pixmosa {

// what() is a Spanish sentence in UTF-8 that names the file, the line and the fault.
class FuenteRechazada : public ErrorDelPrograma {
 public:
  using ErrorDelPrograma::ErrorDelPrograma;
};

struct FuenteReescrita {
  std::string bytes;
  std::size_t reemplazados = 0;  // characters of the artwork that the code page lacks
  std::size_t lineasDeMas = 0;   // lines behind the last character that belong to none
};

// The font with CR LF, "$" as hard blank, end marks "@" and "@@", and 224 blocks in code page order;
// characters that the font lacks are empty. Its comments are kept; artwork that the code page lacks becomes
// what looks like it, and a "$" of the artwork "S". A font that has this form already stays byte for byte.
// `name` stands for the file in messages. Throws FuenteRechazada.
FuenteReescrita ReescribirFuente(std::string_view font, const std::string& name);

// Whether bytes begin as a font does.
bool EmpiezaComoFuente(std::string_view bytes);

// Whether a file, maybe of a zip, is named as a font; the companions that one system puts beside every file
// are not.
bool PareceFuente(const std::string& file);

bool EsZip(std::string_view bytes);

}  // namespace pixmosa
