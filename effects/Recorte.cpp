#include "effects/Recorte.h"

#include <algorithm>
#include <cstdint>
#include <string>

namespace pixmosa {
namespace {

bool Cabe(int begin, int length, int whole) {
  return begin >= 0 && length >= 1 && std::int64_t{begin} + length <= whole;
}

}  // namespace

Picture Recortada(const Picture& picture, const Zona& zone) {
  if (!Cabe(zone.x, zone.ancho, picture.Width()) || !Cabe(zone.y, zone.alto, picture.Height()))
    throw ErrorDelPrograma("El recorte de " + std::to_string(zone.ancho) + " x " + std::to_string(zone.alto) +
                           " píxeles en " + std::to_string(zone.x) + "," + std::to_string(zone.y) +
                           " se sale de la imagen, que tiene " + std::to_string(picture.Width()) + " x " +
                           std::to_string(picture.Height()) + ".");
  Picture part(zone.ancho, zone.alto);
  std::uint32_t* to = part.Writable();
  for (int y = 0; y < zone.alto; ++y, to += zone.ancho)
    std::copy_n(picture.Row(zone.y + y).begin() + zone.x, zone.ancho, to);
  return part;
}

}  // namespace pixmosa
