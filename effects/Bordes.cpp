#include <vector>

#include "effects/Efectos.h"
#include "effects/Filas.h"
#include "platform/Clones.h"
#include "platform/Pixel.h"

namespace pixmosa {
namespace {

using Fila16 = std::vector<std::int16_t>;

// The offsets of blue, green, red and the fourth byte, for each byte of a row.
Fila16 Desplazamientos(const PixelBuffers& b, std::int32_t colour) {
  const ColourParts c = SplitColour(colour);
  const std::int32_t parts[4] = {c.blue, c.green, c.red, 0};
  Fila16 offsets(b.Bytes());
  for (std::size_t i = 0; i < offsets.size(); ++i) offsets[i] = parts[i % 4];
  return offsets;
}

// The largest sums, of the Laplacian and its offset, are far from the ends of 16 bits.
static_assert(9 * 255 + 255 <= INT16_MAX && -8 * 255 - 255 >= INT16_MIN);

// The kernels set bytes i = 0..n-1; s, v and the other rows start one pixel to the left of the first.
PIXMOSA_CLONES
void FilaLaplaciana(const std::uint8_t* __restrict s, const std::int16_t* __restrict v,
                    const std::int16_t* __restrict off, std::uint8_t* __restrict d, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    const std::int16_t sum = 9 * s[i + 4] - v[i] - v[i + 4] - v[i + 8] + off[i];
    d[i] = ClampByte(sum);
  }
}

PIXMOSA_CLONES
void FilaDeLaderas(const std::int16_t* __restrict plus, const std::int16_t* __restrict minus,
                   const std::int16_t* __restrict off, std::uint8_t* __restrict d, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    const std::int16_t sum = plus[i] - minus[i] + off[i];
    d[i] = ClampByte(sum);
  }
}

PIXMOSA_CLONES
void FilaEnRelieve(const std::uint8_t* __restrict up, const std::uint8_t* __restrict s,
                   const std::uint8_t* __restrict down, std::uint8_t* __restrict d, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    const std::int16_t k = 2 * up[i] + up[i + 4] + s[i] + s[i + 4] - s[i + 8] - down[i + 4] - 2 * down[i + 8];
    const std::int16_t raised = k / 2 + 50;
    d[i] = ClampByte(raised);
  }
}

PIXMOSA_CLONES
void FilaDeDiagonales(const std::uint8_t* __restrict plus, const std::uint8_t* __restrict minus,
                      const std::int16_t* __restrict off, std::uint8_t* __restrict d, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    const std::int16_t v = plus[i] - minus[i] + off[i];
    const std::int16_t distance = v < 0 ? -v : v;
    d[i] = ClampByte(distance);
  }
}

// 9 and 11: the columns left and right of each pixel; `side` is the one that counts as positive.
enum class Lado { Izquierdo, Derecho };

void Laderas(PixelBuffers& b, std::int32_t colour, Lado side) {
  const Fila16 off = Desplazamientos(b, colour);
  Fila16 sums(b.Bytes());
  Interior(b, [&](auto* up, auto* s, auto* down, std::uint8_t* d, std::size_t n) {
    SumarTresFilas(up, s, down, sums.data(), n + 8);
    const std::int16_t *left = sums.data(), *right = left + 8;
    if (side == Lado::Izquierdo) {
      FilaDeLaderas(left, right, off.data(), d, n);
    } else {
      FilaDeLaderas(right, left, off.data(), d, n);
    }
  });
}

// 8 and 10: each pixel and its lower right neighbour, which an in-place traversal has not replaced yet: so
// the source gives the same. The last row and column stay.
enum class Signo { Propio, Vecino };

void Diagonales(PixelBuffers& b, std::int32_t colour, Signo positive) {
  const Fila16 off = Desplazamientos(b, colour);
  const std::size_t n = b.Columnas() - 1;
  for (std::ptrdiff_t y = 1; y < b.H; ++y) {
    const std::uint8_t *own = Octetos(b.Origen(y)), *other = Octetos(b.Origen(y + 1)) + 4;
    if (positive == Signo::Vecino) std::swap(own, other);
    if (n > 0) FilaDeDiagonales(own, other, off.data(), Octetos(b.Destino(y)), 4 * n);
    RestaurarCuarto(b.Origen(y), b.Destino(y), n);
    b.Destino(y)[n] = b.Origen(y)[n];
    b.Avance(Tramo{}.Tras(y, b.H));
  }
  b.CopiarFila(b.H);
  b.Avance(100);
}

}  // namespace

void Contornos(PixelBuffers& b, std::int32_t colour) {
  const Fila16 off = Desplazamientos(b, colour);
  Fila16 sums(b.Bytes());
  Interior(b, [&](auto* up, auto* s, auto* down, std::uint8_t* d, std::size_t n) {
    SumarTresFilas(up, s, down, sums.data(), n + 8);
    FilaLaplaciana(s, sums.data(), off.data(), d, n);
  });
}

void Realzar(PixelBuffers& b, std::int32_t colour) {
  Diagonales(b, colour, Signo::Propio);
}

void RealzarMas(PixelBuffers& b, std::int32_t colour) {
  Laderas(b, colour, Lado::Izquierdo);
}

void Grabado(PixelBuffers& b, std::int32_t colour) {
  Diagonales(b, colour, Signo::Vecino);
}

void MasGrabado(PixelBuffers& b, std::int32_t colour) {
  Laderas(b, colour, Lado::Derecho);
}

void Relieve(PixelBuffers& b, std::int32_t) {
  Interior(b, FilaEnRelieve);
}

}  // namespace pixmosa
