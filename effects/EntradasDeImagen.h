// The "&Imagen" menu as data: its tree of captions and what each entry does.
#pragma once

#include <cstdint>
#include <span>

namespace pixmosa {

struct Giro;

enum class Accion { Submenu, Efecto, Giro, Separador, Deshacer, Recargar };

// One entry; the tree is written in the order of the menu, each entry with its depth (0 = in "&Imagen"
// itself).
struct EntradaDeImagen {
  int nivel;
  Accion accion;
  const char* control;
  const char* caption;
  int efecto = 0;              // Efecto
  std::int32_t argumento = 0;  // Efecto: what the entry passes
  const Giro* giro = nullptr;  // Giro
  const char* atajo = "";
};

inline constexpr const char* kMenuImagen = "&Imagen";

std::span<const EntradaDeImagen> EntradasDeImagen();

}  // namespace pixmosa
