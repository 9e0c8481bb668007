// A picture's steps as words: an effect with its argument, a turn, flip or mirror, or a crop. Recipes and the
// order `efecto` are made of them, and the window writes down what it does in them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "effects/Giros.h"
#include "effects/Recorte.h"
#include "effects/mFiltros.h"

namespace pixmosa {

struct Paso {
  int efecto = 0;  // 1..32, or 0 for the others
  std::int32_t argumento = 0;
  const Giro* giro = nullptr;
  std::optional<Zona> recorte{};
};

// A step that is none, or with a value that it does not take; what() has no final period.
class ErrorDePaso : public ErrorDelPrograma {
 public:
  using ErrorDelPrograma::ErrorDelPrograma;
};

inline constexpr const char* kRecortar = "recortar";

// The step that a word means: NUMBER, NUMBER=VALUE, NAME or NAME=VALUE; nothing where it is neither a number
// nor a step's name. Throws ErrorDePaso for a number, a value or a missing value that the effect table does
// not allow.
std::optional<Paso> PasoDe(const std::string& word);

// The word of a step, which PasoDe reads again. The effect is 1..32.
std::string PalabraDe(const Paso& step);

// A caption's name that a shell takes without quotes: rgb-a-brg for "RGB -> BRG".
std::string NombreSinComillas(std::string caption);

// One step on the working picture; the undo copy is the picture before it. Throws ErrorDelPrograma for a crop
// that does not lie in the picture.
void DarPaso(MFiltros& m, ImagenDeTrabajo& image, const Paso& step, Progress& progress);

}  // namespace pixmosa
