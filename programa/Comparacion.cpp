#include "programa/Comparacion.h"

#include <algorithm>
#include <iterator>
#include <map>

#include "platform/Dibujo.h"
#include "platform/Pixel.h"

namespace pixmosa {

Semejanza Puntuar(const Programa& p, std::string_view utf8) {
  const BasAscii& ascii = p.basAscii;
  const Extent cell{ascii.CellWidth, ascii.CellHeight};
  const Extent size = ResizedExtent(ascii, p.imagen.picMain.Size(), kFormas);
  std::vector<std::u32string> rows;
  for (const Fila& row : DibujoDeUtf8(utf8).filas) {
    std::u32string& characters = rows.emplace_back();
    for (const Celda& c : row) characters += c.caracter;
  }
  const Malla text =
      LuzDeTexto(p.superficie, p.ajustes.font, cell, rows, size, ascii.CountedColour == kBlack);
  return Comparar(LuzMedia(p.imagen.picMain, {size.width * kSubAncho, size.height * kSubAlto}), text, cell);
}

std::string TextoDe(Programa& p, int method) {
  if (EsDeFormas(method)) PrepararRepertorio(p.basAscii, p.ajustes, p.superficie);
  BasAscii made = p.basAscii;
  GenerateAscii(made, p.ajustes, p.imagen.picMain, method);
  return TextoEnUtf8(made);
}

bool SePuedeDibujar(const Programa& p) {
  constexpr double kMasPixeles = 60e6;
  const Extent size = ResizedExtent(p.basAscii, p.imagen.picMain.Size(), kFormas);
  return double{1} * size.width * p.basAscii.CellWidth * size.height * p.basAscii.CellHeight <= kMasPixeles;
}

Picture Dibujar(const Programa& p, std::string_view utf8) {
  const BasAscii& ascii = p.basAscii;
  const Extent cell{ascii.CellWidth, ascii.CellHeight};
  const Extent size = ResizedExtent(ascii, p.imagen.picMain.Size(), kFormas);
  const Dibujo drawing = DibujoDeUtf8(utf8);
  std::map<char32_t, std::size_t> places;
  std::u32string used;
  for (const Fila& row : drawing.filas)
    for (const Celda& c : row)
      if (places.try_emplace(c.caracter, used.size()).second) used += c.caracter;
  const std::vector<std::uint8_t> ink = p.superficie.PrintSmooth(p.ajustes.font, cell, 1, used);

  const bool negative = ascii.CountedColour == kBlack;
  const auto pixel = [&](std::uint8_t v) {
    const int light = negative ? v : 255 - v;
    return PixelOfColour(Rgb(light, light, light));
  };
  Picture page =
      Picture::Filled(size.width * cell.width, size.height * cell.height, negative ? kBlack : kWhite);
  std::uint32_t* to = page.Writable();
  const std::ptrdiff_t stride = page.Width(), width = cell.width, height = cell.height;
  const auto rows = std::min<std::ptrdiff_t>(size.height, std::ssize(drawing.filas));
  for (std::ptrdiff_t y = 0; y < rows; ++y) {
    const Fila& row = drawing.filas[y];
    const auto columns = std::min<std::ptrdiff_t>(size.width, std::ssize(row));
    for (std::ptrdiff_t x = 0; x < columns; ++x) {
      const std::uint8_t* from = ink.data() + places.at(row[x].caracter) * width * height;
      for (std::ptrdiff_t j = 0; j < height; ++j, from += width)
        std::transform(from, from + width, to + (y * height + j) * stride + x * width, pixel);
    }
  }
  return page;
}

}  // namespace pixmosa
