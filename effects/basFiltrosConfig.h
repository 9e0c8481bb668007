// The effect table: everything that tells one effect from another, as data.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "effects/Efectos.h"

namespace pixmosa {

inline constexpr int kEfectos = 32;

// What the argument of an effect is.
enum class Argumento {
  Ninguno,
  Entero,
  Exigido,  // a number that has to be given: what the menu passes is never used
  Color,
  Gris  // a gray level of the slider or the command line; the worker gets the colour RGB(v, v, v)
};

struct EffectConfig {
  const char* Name;     // shown nowhere
  const char* control;  // the menu entry; "" where no menu reaches the effect
  const char* caption;
  Argumento argumento;
  std::int32_t menu;      // the argument that the menu passes
  bool Configurable;      // the menu opens the dialog
  std::int32_t Min, Max;  // of the values that the dialog's slider and the command line give
  Worker worker;
};

// The record of an effect, or null for a number outside 1..32.
const EffectConfig* Efecto(int effect);

// The worker's argument for a value of the slider or the command line.
std::int32_t ArgumentoDelDeslizador(int effect, std::int32_t value);

// A caption in lower case without accents, blanks as hyphens; UTF-8.
std::string NombreDeOrden(std::string_view caption);

}  // namespace pixmosa
