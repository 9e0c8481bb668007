// What a worker sees of a dispatch: the two pixel buffers, the progress and the random generator; and the
// ways through the rows that workers share.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "platform/Progress.h"
#include "platform/Random.h"

namespace pixmosa {

// Pixels are bytes blue, green, red, fourth; rows and columns count from 1, row 1 at the top. A worker sets
// every pixel of DestPixels, which holds nothing yet when it starts, and copies the fourth bytes. A worker
// that works "in place" reads what it has already replaced from DestPixels and the rest from SourcePixels.
struct PixelBuffers {
  std::ptrdiff_t W, H;
  const std::uint32_t* SourcePixels;
  std::uint32_t* DestPixels;
  Progress& prgBar;
  std::int32_t& ProgressPercent;
  Random& random;

  const std::uint32_t* Origen(std::ptrdiff_t y) const { return SourcePixels + (y - 1) * W; }
  std::uint32_t* Destino(std::ptrdiff_t y) const { return DestPixels + (y - 1) * W; }
  std::size_t Columnas() const { return W; }
  std::size_t Bytes() const { return 4 * Columnas(); }

  // Shows a percentage and lets the window live.
  void Avance(int percent) {
    ProgressPercent = percent;
    prgBar.SetValue(percent);
    prgBar.Yield();
  }

  // Row y as it was.
  void CopiarFila(std::ptrdiff_t y) const { std::copy_n(Origen(y), Columnas(), Destino(y)); }
};

// The bar's way: from + (span x y) \ H after row y.
struct Tramo {
  int desde = 0, ancho = 100;
  int Tras(std::ptrdiff_t y, std::ptrdiff_t rows) const { return desde + ancho * y / rows; }
};

// Every row through fila(source row, destination row, y).
template <typename Fila>
void RecorrerFilas(PixelBuffers& b, Fila fila, Tramo bar = {}) {
  for (std::ptrdiff_t y = 1; y <= b.H; ++y) {
    fila(b.Origen(y), b.Destino(y), y);
    b.Avance(bar.Tras(y, b.H));
  }
  b.Avance(100);
}

// Rows margin+1..H-margin through fila(y), which sets columns margin+1..W-margin; the border stays as it was,
// and so does a picture that has no interior.
template <typename Fila>
void RecorrerInterior(PixelBuffers& b, std::ptrdiff_t margin, Fila fila) {
  const bool thin = b.W <= 2 * margin || b.H <= 2 * margin;
  for (std::ptrdiff_t y = 1; y <= (thin ? b.H : margin); ++y) b.CopiarFila(y);
  if (!thin) {
    for (std::ptrdiff_t y = margin + 1; y <= b.H - margin; ++y) {
      std::copy_n(b.Origen(y), margin, b.Destino(y));
      fila(y);
      std::copy_n(b.Origen(y) + b.W - margin, margin, b.Destino(y) + b.W - margin);
      b.Avance(Tramo{}.Tras(y, b.H));
    }
    for (std::ptrdiff_t y = b.H - margin + 1; y <= b.H; ++y) b.CopiarFila(y);
  }
  b.Avance(100);
}

inline const std::uint8_t* Octetos(const std::uint32_t* row) {
  return reinterpret_cast<const std::uint8_t*>(row);
}
inline std::uint8_t* Octetos(std::uint32_t* row) {
  return reinterpret_cast<std::uint8_t*>(row);
}

}  // namespace pixmosa
