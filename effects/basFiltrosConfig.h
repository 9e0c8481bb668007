// The effect table: everything that tells one effect from another, as data.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "effects/Efectos.h"

namespace pixmosa {

inline constexpr int kEfectos = 32;

// What the argument of an effect is, which decides what the command line may give.
enum class Argumento { Ninguno, Entero, Color };

struct EffectConfig {
  const char* Name;     // shown nowhere
  const char* control;  // the menu entry; "" where no menu reaches the effect
  const char* caption;
  Argumento argumento;
  std::int32_t menu;          // the argument that the menu passes
  bool Configurable;          // the menu opens the dialog
  std::int32_t Min, Max;      // of the dialog's slider
  std::int32_t menor, mayor;  // of the values that the command line takes
  Worker worker;
};

// The records of effects 1..32, in this order.
std::span<const EffectConfig> TablaDeEfectos();

// The record of an effect, or null for a number outside 1..32.
const EffectConfig* Efecto(int effect);

// The argument for a slider value v: RGB(v, v, v) for effect 18, v for the others.
std::int32_t ArgumentoDelDeslizador(int effect, std::int32_t value);

// A caption in lower case without accents, blanks as hyphens; UTF-8.
std::string NombreDeOrden(std::string_view caption);

}  // namespace pixmosa
