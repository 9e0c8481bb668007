// The workers that read what they have already replaced. Of each sum only the pixel to the left is new in the
// same row: the rest is computed for a whole row at once, and one addition and one table entry remain for
// each byte.
#include <vector>

#include "effects/Efectos.h"
#include "effects/Filas.h"
#include "platform/Clones.h"
#include "platform/Pixel.h"

namespace pixmosa {
namespace {

// Whether the sum of the pixel and its eight neighbours stays within 16 bits, whatever the bytes and in
// whatever order it is added up; a vector takes sixteen such numbers.
constexpr bool Cabe(int centre, int neighbour) {
  const int most = 255 * (centre + (neighbour > 0 ? 8 * neighbour : 0)), least = 255 * 8 * neighbour;
  return most <= INT16_MAX && least >= INT16_MIN;
}

// p[i] = centre x s[i+4] + neighbour x (the seven neighbours but the left one).
PIXMOSA_CLONES
void SumaDeSiete(const std::uint8_t* __restrict up, const std::uint8_t* __restrict s,
                 const std::uint8_t* __restrict down, std::int16_t* __restrict p, std::size_t n,
                 std::int16_t centre, std::int16_t neighbour) {
  for (std::size_t i = 0; i < n; ++i) {
    const std::int16_t seven = up[i] + up[i + 4] + up[i + 8] + s[i + 8] + down[i] + down[i + 4] + down[i + 8];
    p[i] = centre * s[i + 4] + neighbour * seven;
  }
}

PIXMOSA_CLONES
void SumaDeCuatro(const std::uint8_t* __restrict up, const std::uint8_t* __restrict s,
                  const std::uint8_t* __restrict down, std::int16_t* __restrict p, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) p[i] = up[i + 4] + s[i + 4] + s[i + 8] + down[i + 4];
}

// clamp(v \ divisor) for every v that a worker can reach.
class Cocientes {
 public:
  Cocientes(std::int32_t least, std::int32_t most, std::int32_t divisor) : desde_(-least) {
    for (std::int32_t v = least; v <= most; ++v) tabla_.push_back(ClampByte(v / divisor));
  }
  const std::uint8_t* Cero() const { return tabla_.data() + desde_; }

 private:
  std::ptrdiff_t desde_;
  std::vector<std::uint8_t> tabla_;
};

// d[x] = table[p[x] + kLeft x d[x-1]], three components at a time.
template <int kLeft>
void Recurrencia(const std::int16_t* p, const std::uint8_t* table, const std::uint32_t* s, std::uint32_t* d,
                 std::size_t n) {
  int b = Azul(d[-1]), g = Verde(d[-1]), r = Rojo(d[-1]);
  for (std::size_t x = 0; x < n; ++x, p += 4) {
    b = table[p[0] + kLeft * b];
    g = table[p[1] + kLeft * g];
    r = table[p[2] + kLeft * r];
    d[x] = ConCuarto(s[x], Unir(b, g, r));
  }
}

// The interior in place; suma(up, same, down, p, n) computes what does not depend on the left pixel.
template <int kLeft, typename Suma>
void EnSitio(PixelBuffers& b, const Cocientes& table, Suma suma) {
  std::vector<std::int16_t> p(b.Bytes());
  RecorrerInterior(b, 1, [&](std::ptrdiff_t y) {
    const std::size_t n = b.Columnas() - 2;
    suma(Octetos(b.Destino(y - 1)), Octetos(b.Origen(y)), Octetos(b.Origen(y + 1)), p.data(), 4 * n);
    Recurrencia<kLeft>(p.data(), table.Cero(), b.Origen(y) + 1, b.Destino(y) + 1, n);
  });
}

template <int kLeft>
void Ponderado(PixelBuffers& b, std::int32_t centre, std::int32_t divisor) {
  const Cocientes table(8 * 255 * std::min(kLeft, 0), 255 * (centre + 8 * std::max(kLeft, 0)), divisor);
  EnSitio<kLeft>(b, table, [&](auto* up, auto* s, auto* down, auto* p, std::size_t n) {
    SumaDeSiete(up, s, down, p, n, centre, kLeft);
  });
}

}  // namespace

static_assert(Cabe(100 + 24, -2) && Cabe(0, 1) && Cabe(100 + 9, -1));

void Nitidez(PixelBuffers& b, std::int32_t a) {
  a = std::clamp(a, 0, 100);
  Ponderado<-2>(b, a + 24, a + 8);
}

void Desenfocar(PixelBuffers& b, std::int32_t) {
  Ponderado<1>(b, 0, 8);
}

void RealceBorde(PixelBuffers& b, std::int32_t a) {
  a = std::clamp(a, 1, 100);
  Ponderado<-1>(b, a + 9, a + 1);
}

void Humo(PixelBuffers& b, std::int32_t) {
  EnSitio<1>(b, Cocientes(0, 5 * 255, 5), SumaDeCuatro);
}

}  // namespace pixmosa
