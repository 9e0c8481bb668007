#include <utility>
#include <vector>

#include "effects/Efectos.h"
#include "effects/Filas.h"
#include "platform/Clones.h"

namespace pixmosa {
namespace {

using Octeto = std::uint8_t;

inline Octeto Menor(Octeto a, Octeto b) {
  return a < b ? a : b;
}
inline Octeto Mayor(Octeto a, Octeto b) {
  return a < b ? b : a;
}
inline Octeto Mediano(Octeto a, Octeto b, Octeto c) {
  return Mayor(Menor(a, b), Menor(Mayor(a, b), c));
}

// Each column of three rows in order: low, middle, high.
PIXMOSA_CLONES
void OrdenarColumnas(const Octeto* __restrict a, const Octeto* __restrict b, const Octeto* __restrict c,
                     Octeto* __restrict low, Octeto* __restrict middle, Octeto* __restrict high,
                     std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    const Octeto ab = Menor(a[i], b[i]), ba = Mayor(a[i], b[i]);
    low[i] = Menor(ab, c[i]);
    middle[i] = Mayor(ab, Menor(ba, c[i]));
    high[i] = Mayor(ba, c[i]);
  }
}

// Sorted columns give the median of nine: the median of the highest low, the median middle and the lowest
// high (Paeth 1990).
PIXMOSA_CLONES
void FilaMediana(const Octeto* __restrict low, const Octeto* __restrict middle, const Octeto* __restrict high,
                 Octeto* __restrict d, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i)
    d[i] = Mediano(Mayor(Mayor(low[i], low[i + 4]), low[i + 8]),
                   Mediano(middle[i], middle[i + 4], middle[i + 8]),
                   Menor(Menor(high[i], high[i + 4]), high[i + 8]));
}

PIXMOSA_CLONES
void ColumnasMaximas(const Octeto* __restrict a, const Octeto* __restrict b, const Octeto* __restrict c,
                     Octeto* __restrict out, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) out[i] = Mayor(Mayor(a[i], b[i]), c[i]);
}

PIXMOSA_CLONES
void ColumnasMinimas(const Octeto* __restrict a, const Octeto* __restrict b, const Octeto* __restrict c,
                     Octeto* __restrict out, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) out[i] = Menor(Menor(a[i], b[i]), c[i]);
}

PIXMOSA_CLONES
void FilaMaxima(const Octeto* __restrict v, Octeto* __restrict d, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) d[i] = Mayor(Mayor(v[i], v[i + 4]), v[i + 8]);
}

PIXMOSA_CLONES
void FilaMinima(const Octeto* __restrict v, Octeto* __restrict d, std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) d[i] = Menor(Menor(v[i], v[i + 4]), v[i + 8]);
}

PIXMOSA_CLONES
void FilaSobreElMinimo(const Octeto* __restrict v, const Octeto* __restrict s, Octeto* __restrict d,
                       std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) d[i] = s[i + 4] - Menor(Menor(v[i], v[i + 4]), v[i + 8]);
}

}  // namespace

void Dilatar(PixelBuffers& b, std::int32_t) {
  std::vector<Octeto> v(b.Bytes());
  Interior(b, [&](auto* up, auto* s, auto* down, Octeto* d, std::size_t n) {
    ColumnasMaximas(up, s, down, v.data(), n + 8);
    FilaMaxima(v.data(), d, n);
  });
}

void Erosionar(PixelBuffers& b, std::int32_t) {
  std::vector<Octeto> v(b.Bytes());
  Interior(b, [&](auto* up, auto* s, auto* down, Octeto* d, std::size_t n) {
    ColumnasMinimas(up, s, down, v.data(), n + 8);
    FilaMinima(v.data(), d, n);
  });
}

void ContornosUnidos(PixelBuffers& b, std::int32_t) {
  std::vector<Octeto> v(b.Bytes());
  Interior(b, [&](auto* up, auto* s, auto* down, Octeto* d, std::size_t n) {
    ColumnasMinimas(up, s, down, v.data(), n + 8);
    FilaSobreElMinimo(v.data(), s, d, n);
  });
}

void Mediana(PixelBuffers& b, std::int32_t) {
  std::vector<Octeto> low(b.Bytes()), middle(b.Bytes()), high(b.Bytes());
  Interior(b, [&](auto* up, auto* s, auto* down, Octeto* d, std::size_t n) {
    OrdenarColumnas(up, s, down, low.data(), middle.data(), high.data(), n + 8);
    FilaMediana(low.data(), middle.data(), high.data(), d, n);
  });
}

}  // namespace pixmosa
