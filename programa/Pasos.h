// The steps of the order `efecto`: an effect with its argument, a turn, flip or mirror, or a crop.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "effects/Giros.h"
#include "effects/Recorte.h"
#include "effects/mFiltros.h"

namespace pixmosa::cli {

struct Paso {
  int efecto = 0;  // 1..32, or 0 for the others
  std::int32_t argumento = 0;
  const Giro* giro = nullptr;
  std::optional<Zona> recorte{};
};

// The step that a word means: NUMBER, NUMBER=VALUE, NAME or NAME=VALUE; nothing where it is neither a number
// nor a step's name. Throws ErrorDeUso for a number, a value or a missing value that the effect table does
// not allow.
std::optional<Paso> PasoDe(const std::string& word);

// One step on the working picture.
void DarPaso(MFiltros& m, ImagenDeTrabajo& image, const Paso& step);

// Every step with its caption, range and argument, from the effect table.
std::string AyudaDePasos();

}  // namespace pixmosa::cli
