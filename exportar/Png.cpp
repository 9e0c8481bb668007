#include <vector>

#include "exportar/Escritores.h"
#include "exportar/Pintura.h"
#include "exportar/Texto.h"

namespace pixmosa {
namespace {

// Size of the picture in pixels.
Extent Medida(const Dibujo& drawing, Extent cell, int scale) {
  const double width = static_cast<double>(drawing.Columnas()) * cell.width * scale,
               height = static_cast<double>(drawing.filas.size()) * cell.height * scale;
  ExigirPixeles(width, height);
  return {std::max(1, Truncate(width)), std::max(1, Truncate(height))};
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
      PintarCelda(pixels + top * stride + left, stride, cell, coverage.data(), PixelOfColour(paper),
                  PixelOfColour(ink));
    }
  }
  return means.codificarPng(picture);
}

}  // namespace pixmosa
