// Rows of bytes that several neighbourhood workers share. Byte i of a row and byte i + 4 are the same
// component of neighbouring pixels. Kernels store into the narrowest type that holds their sums: a vector
// takes twice as many 16-bit numbers as 32-bit ones.
#pragma once

#include <cstddef>
#include <cstdint>

#include "effects/PixelBuffers.h"

namespace pixmosa {

// out[i] = a[i] + b[i] + c[i].
void SumarTresFilas(const std::uint8_t* a, const std::uint8_t* b, const std::uint8_t* c, std::int16_t* out,
                    std::size_t n);

// Gives n pixels of `row` back the fourth bytes of `source`.
void RestaurarCuarto(const std::uint32_t* source, std::uint32_t* row, std::size_t n);

// The interior by kernel(up, same, down, destination, n), which leaves anything in the fourth bytes. The rows
// of the source have n + 8 bytes and start one pixel to the left of the destination.
template <typename Nucleo>
void Interior(PixelBuffers& b, Nucleo kernel) {
  RecorrerInterior(b, 1, [&](std::ptrdiff_t y) {
    const std::size_t n = b.Columnas() - 2;
    kernel(Octetos(b.Origen(y - 1)), Octetos(b.Origen(y)), Octetos(b.Origen(y + 1)),
           Octetos(b.Destino(y) + 1), 4 * n);
    RestaurarCuarto(b.Origen(y) + 1, b.Destino(y) + 1, n);
  });
}

}  // namespace pixmosa
