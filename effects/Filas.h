// Sums over rows of bytes that several neighbourhood workers share. Byte i of a row and byte i + 4 are the
// same component of neighbouring pixels.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "effects/PixelBuffers.h"

namespace pixmosa {

// out[i] = a[i] + b[i] + c[i].
void SumarTresFilas(const std::uint8_t* a, const std::uint8_t* b, const std::uint8_t* c, std::int16_t* out,
                    std::size_t n);

// Gives n pixels of `row` back the fourth bytes of `source`.
void RestaurarCuarto(const std::uint32_t* source, std::uint32_t* row, std::size_t n);

// The column sums of rows y-1, y, y+1 of the source, 2 <= y < H; `sums` has room for 4 x W.
void SumarColumnas(const PixelBuffers& b, int y, std::vector<std::int16_t>& sums);

}  // namespace pixmosa
