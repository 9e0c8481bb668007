#include "figlet/Acabado.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string_view>

#include "platform/Rounding.h"

namespace pixmosa {
namespace {

// Characters and their images in a mirror, two by two; a character at an even place becomes the next one.
constexpr std::u32string_view kEspejos = U"()[]{}<>/\\«»bdpq‹›┌┐└┘├┤╔╗╚╝╠╣╭╮╰╯╱╲▌▐▖▗▘▝▙▟▛▜▚▞◢◣◤◥";

struct Borde {
  const char32_t* esquinas;  // above left and right, below left and right
  char32_t horizontal, vertical;
};

constexpr std::array<Borde, 4> kBordes = {
    {{U"    ", U' ', U' '}, {U"┌┐└┘", U'─', U'│'}, {U"╔╗╚╝", U'═', U'║'}, {U"****", U'*', U'*'}}};

char32_t Reflejado(char32_t c) {
  const std::size_t at = kEspejos.find(c);
  return at == std::u32string_view::npos ? c : kEspejos[at ^ 1];
}

bool EsBlanca(const Celda& cell) {
  return cell.caracter == U' ' || cell.caracter == 0xA0;
}

// Cells before the first one to be seen, and behind the last; the whole row where there is none.
std::size_t Sangria(const Fila& row) {
  return static_cast<std::size_t>(std::ranges::find_if_not(row, EsBlanca) - row.begin());
}

void QuitarFinales(Fila& row) {
  while (!row.empty() && EsBlanca(row.back())) row.pop_back();
}

void Recortar(std::vector<Fila>& rows) {
  const auto seen = [](const Fila& row) { return Sangria(row) < row.size(); };
  rows.erase(rows.begin(), std::ranges::find_if(rows, seen));
  while (!rows.empty() && !seen(rows.back())) rows.pop_back();
  std::size_t indent = SIZE_MAX;
  for (Fila& row : rows) {
    QuitarFinales(row);
    if (!row.empty()) indent = std::min(indent, Sangria(row));
  }
  for (Fila& row : rows)
    row.erase(row.begin(), row.begin() + static_cast<std::ptrdiff_t>(std::min(indent, row.size())));
}

void Igualar(Dibujo& drawing) {
  const std::size_t width = drawing.Columnas();
  for (Fila& row : drawing.filas) row.resize(width);
}

void Reflejar(Dibujo& drawing) {
  Igualar(drawing);
  for (Fila& row : drawing.filas) {
    std::ranges::reverse(row);
    for (Celda& cell : row) cell.caracter = Reflejado(cell.caracter);
  }
}

// A frame with a blank column inside at either side.
void Enmarcar(Dibujo& drawing, const Borde& border) {
  Igualar(drawing);
  const std::size_t width = drawing.Columnas() + 4;
  const auto edge = [&](std::size_t left) {
    Fila row(width, {border.horizontal});
    row.front().caracter = border.esquinas[left];
    row.back().caracter = border.esquinas[left + 1];
    return row;
  };
  for (Fila& row : drawing.filas) {
    row.insert(row.begin(), {{border.vertical}, {}});
    row.insert(row.end(), {{}, {border.vertical}});
  }
  drawing.filas.insert(drawing.filas.begin(), edge(0));
  drawing.filas.push_back(edge(2));
}

Fila Cadena(std::u32string_view text) {
  Fila row;
  for (const char32_t c : text) row.push_back({c});
  return row;
}

// A row behind what begins a comment's line.
void Comentar(Fila& row, std::u32string_view mark) {
  QuitarFinales(row);
  Fila begun = Cadena(mark);
  if (!row.empty()) begun.push_back({});
  // A line that ends so goes on in the next one, which may be the program's.
  const bool goesOn = mark == U"//" && !row.empty() && row.back().caracter == U'\\';
  row.insert(row.begin(), begun.begin(), begun.end());
  for (const char32_t c : std::u32string_view(goesOn ? U" //" : U"")) row.push_back({c});
}

void Comentar(Dibujo& drawing, Comentario how) {
  constexpr std::array<std::u32string_view, 5> kMarcas = {U"", U"//", U"#", U"--", U" *"};
  for (Fila& row : drawing.filas) {
    // What would end the comment, or begin another inside.
    for (std::size_t x = 1; how == Comentario::Bloque && x < row.size(); ++x) {
      const char32_t a = row[x - 1].caracter, b = row[x].caracter;
      if ((a == U'*' && b == U'/') || (a == U'/' && b == U'*')) row[x].caracter = U'|';
    }
    Comentar(row, kMarcas[static_cast<std::size_t>(how)]);
  }
  if (how != Comentario::Bloque) return;
  drawing.filas.insert(drawing.filas.begin(), Cadena(U"/*"));
  drawing.filas.push_back(Cadena(U" */"));
}

// Between two parts of colours.
int Entre(int from, int to, double share) {
  return RoundHalfEven(from + (to - from) * share);
}

// From red to violet, dark enough for white paper and light enough for black.
Colour DelArcoiris(double share) {
  const auto part = [&](double at) {
    const double x = std::fmod(at + share * 5, 6.0);  // of the six corners of the circle of hues
    return RoundHalfEven(230 * std::clamp(std::abs(x - 3) - 1, 0.0, 1.0));
  };
  return Rgb(part(0), part(4), part(2));
}

Colour ColorEn(const Degradado& colours, double share) {
  if (colours.arcoiris) return DelArcoiris(share);
  const ColourParts a = SplitColour(colours.desde), b = SplitColour(colours.hasta);
  return Rgb(Entre(a.red, b.red, share), Entre(a.green, b.green, share), Entre(a.blue, b.blue, share));
}

}  // namespace

void Degradar(Dibujo& drawing, const Degradado& colours) {
  const std::size_t count = colours.haciaAbajo ? drawing.filas.size() : drawing.Columnas();
  std::vector<Colour> inks;
  for (std::size_t i = 0; i < count; ++i)
    inks.push_back(
        ColorEn(colours, count > 1 ? static_cast<double>(i) / static_cast<double>(count - 1) : 0.0));
  for (std::size_t y = 0; y < drawing.filas.size(); ++y)
    for (std::size_t x = 0; x < drawing.filas[y].size(); ++x)
      drawing.filas[y][x].tinta = inks[colours.haciaAbajo ? y : x];
}

Dibujo Acabar(Dibujo drawing, const Acabado& finish) {
  if (finish.recortar) Recortar(drawing.filas);
  if (finish.espejo) Reflejar(drawing);
  if (finish.marco != MarcoDeLetrero::Ninguno)
    Enmarcar(drawing, kBordes[static_cast<std::size_t>(finish.marco)]);
  if (finish.degradado) Degradar(drawing, *finish.degradado);
  if (finish.comentario != Comentario::Ninguno) Comentar(drawing, finish.comentario);
  return drawing;
}

}  // namespace pixmosa
