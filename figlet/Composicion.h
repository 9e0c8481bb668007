// The layout beside the specified one: letters fitted together or smushed, lines stacked, wrapped by words
// and aligned, after the standard "FIGfont Version 2".
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "figlet/FuenteFiglet.h"
#include "platform/Errores.h"

namespace pixmosa {

enum class Composicion { Completo, Juntar, Fundir, Fuente };
enum class Lado { Izquierda, Centro, Derecha };

struct OpcionesDeComposicion {
  // Full width; letters moved together until they touch; until they share a column, and lines a row as far as
  // the font has vertical rules; whatever the font's header says.
  Composicion composicion = Composicion::Completo;
  int ancho = 0;                  // columns that no row passes but one of a wider letter; 0 does not wrap
  std::optional<Lado> alinear{};  // of each line within `ancho`, or within the longest; in the text itself
  bool operator==(const OpcionesDeComposicion&) const = default;
};

// A banner of more characters than anybody reads; what() is a Spanish sentence in UTF-8.
class LetreroExcesivo : public ErrorDelPrograma {
 public:
  using ErrorDelPrograma::ErrorDelPrograma;
};

// The rows of a text whose lines end in LF or CR LF. A text that ends in a line end has an empty last line.
// A font that runs to the left is aligned to the right of `ancho` where nothing else is asked for. Throws
// LetreroExcesivo.
std::vector<std::u32string> Componer(const FuenteFiglet& font, std::u32string_view text,
                                     const OpcionesDeComposicion& options);

}  // namespace pixmosa
