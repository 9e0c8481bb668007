#include <cstdint>
#include <map>
#include <vector>

#include "exportar/Escritores.h"
#include "exportar/Texto.h"
#include "platform/Pixel.h"

namespace pixmosa {
namespace {

constexpr double kMasPixeles = 400e6;

struct Sitio {
  std::size_t fila, columna;
};

// Size of the picture in pixels.
Extent Medida(const Dibujo& drawing, Extent cell, int scale) {
  const double width = static_cast<double>(drawing.Columnas()) * cell.width * scale,
               height = static_cast<double>(drawing.filas.size()) * cell.height * scale;
  if (width * height > kMasPixeles)
    throw DibujoExcesivo("La imagen sería demasiado grande: " + std::to_string(std::int64_t(width)) + " x " +
                         std::to_string(std::int64_t(height)) + " píxeles; el máximo son 400 millones.");
  return {std::max(1, Truncate(width)), std::max(1, Truncate(height))};
}

std::uint32_t Mezcla(std::uint32_t paper, std::uint32_t ink, std::uint32_t coverage) {
  const auto part = [&](int p, int i) { return (p * (255 - coverage) + i * coverage + 127) / 255; };
  return Opaco(
      Unir(part(Azul(paper), Azul(ink)), part(Verde(paper), Verde(ink)), part(Rojo(paper), Rojo(ink))));
}

// Puts one cell, a glyph's coverage in ink and paper, where its top left pixel is `to`.
void Pintar(std::uint32_t* to, std::ptrdiff_t stride, Extent size, const std::uint8_t* coverage,
            std::uint32_t paper, std::uint32_t ink) {
  for (int y = 0; y < size.height; ++y, to += stride, coverage += size.width)
    for (int x = 0; x < size.width; ++x)
      to[x] = coverage[x] == 0 ? paper : coverage[x] == 255 ? ink : Mezcla(paper, ink, coverage[x]);
}

// The cells of every character that has to be drawn.
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

}  // namespace

std::string ComoPng(const Dibujo& drawing, const OpcionesDeExportar& o, const Medios& means) {
  const Extent size = Medida(drawing, means.celda, o.escala);
  const Extent cell = {means.celda.width * o.escala, means.celda.height * o.escala};
  Picture picture = Picture::Filled(size.width, size.height, o.papel);
  std::uint32_t* pixels = picture.Writable();
  const std::ptrdiff_t stride = size.width;
  // One glyph at a time: a large font at a large scale is megabytes a glyph.
  for (const auto& [character, sites] : PorCaracter(drawing)) {
    const std::vector<std::uint8_t> coverage =
        means.superficie.PrintSmooth(means.fuente, means.celda, o.escala, {&character, 1});
    for (const Sitio& site : sites) {
      const Celda& c = drawing.filas[site.fila][site.columna];
      const Colour paper = c.papel == kNoColour ? o.papel : c.papel;
      const Colour ink = !o.color || c.tinta == kNoColour ? o.tinta : c.tinta;
      const std::ptrdiff_t top = site.fila * cell.height, left = site.columna * cell.width;
      Pintar(pixels + top * stride + left, stride, cell, coverage.data(), PixelOfColour(paper),
             PixelOfColour(ink));
    }
  }
  return means.codificarPng(picture);
}

}  // namespace pixmosa
