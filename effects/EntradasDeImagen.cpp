#include "effects/EntradasDeImagen.h"

#include <string_view>
#include <vector>

#include "effects/Giros.h"
#include "effects/basFiltrosConfig.h"

namespace pixmosa {
namespace {

EntradaDeImagen Submenu(int level, const char* control, const char* caption) {
  return {level, Accion::Submenu, control, caption};
}

// The entry of an effect, from the effect table.
EntradaDeImagen DeEfecto(int level, int effect) {
  const EffectConfig& e = *Efecto(effect);
  return {level, Accion::Efecto, e.control, e.caption, effect, e.menu};
}

// One item of the menu array `mnuRGB`; its index is its argument and the end of its name.
EntradaDeImagen DeRgb(int index, const char* control, const char* caption) {
  return {2, Accion::Efecto, control, caption, 16, index};
}

EntradaDeImagen DeGiro(const char* control) {
  for (const Giro& g : Giros())
    if (std::string_view(control) == g.control) return {1, Accion::Giro, g.control, g.caption, 0, 0, &g};
  return {1, Accion::Separador, "", ""};
}

std::vector<EntradaDeImagen> Arbol() {
  return {
      Submenu(0, "mnuGirar", "Girar"),
      DeGiro("mnuHFlip"),
      DeGiro("mnuVFLip"),
      DeGiro("mnuGirar90"),
      DeGiro("mnuGirar270"),
      Submenu(0, "mnuColores", "Colores"),
      DeEfecto(1, 12),
      DeEfecto(1, 2),
      Submenu(1, "mnuBN", "Blanco y negro"),
      DeEfecto(2, 18),
      DeEfecto(2, 19),
      DeEfecto(2, 20),
      DeEfecto(2, 21),
      DeEfecto(2, 22),
      DeEfecto(2, 23),
      Submenu(1, "mnuIntercambioRGB", "Intercambiar RGB"),
      DeRgb(1, "mnuRGB1", "RGB -> BRG"),
      DeRgb(2, "mnuRGB2", "RGB -> GBR"),
      DeRgb(3, "mnuRGB3", "RGB -> RBG"),
      DeRgb(4, "mnuRGB4", "RGB -> BGR"),
      DeRgb(5, "mnuRGB5", "RGB -> GRB"),
      DeEfecto(1, 31),
      Submenu(0, "mnuIntensidad", "Intensidad"),
      DeEfecto(1, 14),
      DeEfecto(1, 17),
      DeEfecto(1, 30),
      Submenu(0, "mnuBordes", "Bordes"),
      DeEfecto(1, 8),
      DeEfecto(1, 9),
      DeEfecto(1, 10),
      DeEfecto(1, 11),
      DeEfecto(1, 13),
      DeEfecto(1, 6),
      DeEfecto(1, 7),
      DeEfecto(1, 27),
      Submenu(0, "mnuEfectos", "Efectos"),
      DeEfecto(1, 24),
      DeEfecto(1, 29),
      DeEfecto(1, 5),
      DeEfecto(1, 3),
      DeEfecto(1, 26),
      DeEfecto(1, 32),
      DeEfecto(1, 1),
      DeEfecto(1, 4),
      DeEfecto(1, 25),
      DeEfecto(1, 15),
      Submenu(0, "mnuEspejos", "Espejos"),
      DeGiro("mnuEspejoDenI"),
      DeGiro("mnuEspejoIenD"),
      DeGiro("mnuEspejoBenA"),
      DeGiro("mnuEspejoAenB"),
      {0, Accion::Separador, "", ""},
      {0, Accion::Deshacer, "mnuUndoPicture", "Deshacer cambios", 0, 0, nullptr, "Ctrl+Z"},
      {0, Accion::Recargar, "mnuImageReload", "Volver a la imagen original"},
  };
}

}  // namespace

std::span<const EntradaDeImagen> EntradasDeImagen() {
  static const std::vector<EntradaDeImagen> tree = Arbol();
  return tree;
}

}  // namespace pixmosa
