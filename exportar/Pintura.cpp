#include "exportar/Pintura.h"

#include "exportar/Texto.h"
#include "platform/Pixel.h"

namespace pixmosa {

std::map<char32_t, std::vector<Sitio>> PorCaracter(const Dibujo& drawing) {
  std::map<char32_t, std::vector<Sitio>> sites;
  for (std::size_t r = 0; r < drawing.filas.size(); ++r)
    for (std::size_t c = 0; c < drawing.filas[r].size(); ++c) {
      const Celda& cell = drawing.filas[r][c];
      if (!EsBlanco(cell.caracter) || cell.papel != kNoColour)
        sites[Dibujable(cell.caracter)].push_back({r, c});
    }
  return sites;
}

std::uint32_t Mezcla(std::uint32_t paper, std::uint32_t ink, std::uint32_t coverage) {
  const auto part = [&](int p, int i) { return (p * (255 - coverage) + i * coverage + 127) / 255; };
  return Opaco(
      Unir(part(Azul(paper), Azul(ink)), part(Verde(paper), Verde(ink)), part(Rojo(paper), Rojo(ink))));
}

void PintarCelda(std::uint32_t* to, std::ptrdiff_t stride, Extent size, const std::uint8_t* coverage,
                 std::uint32_t paper, std::uint32_t ink) {
  for (int y = 0; y < size.height; ++y, to += stride, coverage += size.width)
    for (int x = 0; x < size.width; ++x)
      to[x] = coverage[x] == 0 ? paper : coverage[x] == 255 ? ink : Mezcla(paper, ink, coverage[x]);
}

void ExigirPixeles(double width, double height) {
  constexpr double kMasPixeles = 400e6;
  if (width * height > kMasPixeles)
    throw DibujoExcesivo("La imagen sería demasiado grande: " + std::to_string(std::int64_t(width)) + " x " +
                         std::to_string(std::int64_t(height)) + " píxeles; el máximo son 400 millones.");
}

}  // namespace pixmosa
