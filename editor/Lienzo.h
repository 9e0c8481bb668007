// The canvas: cells of a Unicode character with an optional ink, of any size up to 4,096 x 4,096. Writes are
// logged as runs, so that an action can be taken back, and their places kept for whoever shows them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/Colour.h"

namespace pixmosa {

struct Cell {
  int column, row;
  bool operator==(const Cell&) const = default;
};

// Columns and rows, both ends within.
struct ZonaDeCeldas {
  Cell desde, hasta;
  bool operator==(const ZonaDeCeldas&) const = default;
  bool Contiene(Cell c) const {
    return c.column >= desde.column && c.column <= hasta.column && c.row >= desde.row && c.row <= hasta.row;
  }
  int Columnas() const { return hasta.column - desde.column + 1; }
  int Filas() const { return hasta.row - desde.row + 1; }
};

// The zone between two corners in any order; that of both.
ZonaDeCeldas ZonaEntre(Cell a, Cell b);
ZonaDeCeldas Unida(const ZonaDeCeldas& a, const ZonaDeCeldas& b);

inline constexpr int kLadoMayor = 4096;                         // cells each way
inline constexpr int kColumnasNuevas = 100, kFilasNuevas = 74;  // of a new drawing

// What a cell holds. An erased character is no longer on screen; a leftover is what Clear leaves, neither on
// screen nor in the drawing's text.
struct Contenido {
  char32_t caracter = U' ';
  Colour tinta = kNoColour;
  bool borrada = false, resto = false;
  bool operator==(const Contenido&) const = default;
};

class Lienzo;

// What was in cells before they were written, in spans along the rows: the values of all, or one where they
// are equal. Without length, the canvas was replaced by another: `valores` is the number of the old one.
struct Diario {
  struct Valor {
    std::uint32_t palabra;
    Colour tinta;
    bool operator==(const Valor&) const = default;
  };
  struct Tramo {
    std::uint32_t desde, largo, valores;
    bool iguales;
  };
  std::vector<Tramo> tramos;
  std::vector<Valor> valores;
  std::vector<std::shared_ptr<const Lienzo>> lienzos;

  bool Vacio() const { return tramos.empty(); }
  void Anotar(std::size_t at, std::size_t count, const Valor& before);
  std::size_t Bytes() const;
};

// Entries 0..Columnas() and 0..Filas() + 1. Column 0 and row 0 lie outside the visible area; the last row is
// visible and never painted.
class Lienzo {
 public:
  Lienzo() : Lienzo(kColumnasNuevas, kFilasNuevas) {}
  Lienzo(int columns, int rows);

  int Columnas() const { return columns_; }
  int Filas() const { return rows_; }
  bool EsElNuevo() const { return columns_ == kColumnasNuevas && rows_ == kFilasNuevas; }
  // Whether there is such an entry; whether it can be painted.
  bool Tiene(Cell c) const {
    return c.column >= 0 && c.column <= columns_ && c.row >= 0 && c.row <= rows_ + 1;
  }
  bool SePinta(Cell c) const { return Tiene(c) && c.row <= rows_; }

  char32_t Caracter(Cell c) const { return words_[Indice(c)] & kLetra; }
  // What is on screen.
  char32_t Visto(Cell c) const {
    const std::uint32_t word = words_[Indice(c)];
    return word & (kBorrada | kResto) ? U' ' : word & kLetra;
  }
  Colour Tinta(Cell c) const { return inks_.empty() ? kNoColour : inks_[Indice(c)]; }
  Contenido En(Cell c) const;
  bool HayTinta() const { return !inks_.empty(); }

  // Writes one entry, or `count` of a row. Only entries that there are.
  void Poner(Cell c, const Contenido& content);
  void PonerTramo(Cell first, int count, const Contenido& content);

  // Whether each entry, row by row, holds this character.
  std::vector<std::uint8_t> Donde(char32_t ch) const;

  // Writes what differs from another canvas of the same size.
  void Igualar(const Lienzo& other);

  // Takes another's place with a canvas of any size; the log goes on.
  void Sustituir(Lienzo&& other);

  // A log from here on; the log of what was written since.
  void Anotar();
  Diario Anotado();

  // Writes back what the log holds, the last first; what was there is logged in turn.
  void Devolver(const Diario& log);

  // Where something else is to be seen since this was last called; a few zones at most.
  std::vector<ZonaDeCeldas> Cambiadas();

  std::size_t Bytes() const { return words_.size() * sizeof words_[0] + inks_.size() * sizeof(Colour); }
  // The same characters, inks and marks.
  bool operator==(const Lienzo& other) const;

 private:
  static constexpr std::uint32_t kLetra = 0x1FFFFF, kBorrada = 1U << 31, kResto = 1U << 30;

  std::size_t Indice(Cell c) const {
    return static_cast<std::size_t>(c.row) * static_cast<std::size_t>(columns_ + 1) +
           static_cast<std::size_t>(c.column);
  }
  static std::uint32_t Palabra(const Contenido& content) {
    return static_cast<std::uint32_t>(content.caracter) | (content.borrada ? kBorrada : 0) |
           (content.resto ? kResto : 0);
  }
  // Writes entries and logs them; no mark for who shows them.
  void Escribir(std::size_t at, std::size_t count, const Diario::Valor& value);
  // A span of the log as it was; what is there is logged as one, changed or not.
  void Devolver(const Diario::Tramo& span, const Diario::Valor* values);
  void PrepararTinta(Colour ink) {
    if (ink != kNoColour && inks_.empty()) inks_.assign(words_.size(), kNoColour);
  }
  void Marcar(const ZonaDeCeldas& zone);

  int columns_, rows_;
  std::vector<std::uint32_t> words_;
  std::vector<Colour> inks_;  // empty while no cell has one
  std::vector<ZonaDeCeldas> changed_;
  Diario log_;
  bool logging_ = false;
};

}  // namespace pixmosa
