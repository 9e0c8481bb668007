// The two random workers. A draw is k / 2^24 with a whole k, so every product is a whole number of 2^-24 and
// is rounded half to even by whole numbers alone.
#include <vector>

#include "effects/Efectos.h"
#include "effects/Filas.h"
#include "platform/Clones.h"
#include "platform/Rounding.h"

namespace pixmosa {
namespace {

constexpr unsigned kBits = 24;
constexpr std::uint32_t kCasiMedio = (1U << (kBits - 1)) - 1;

// round(k x factor / 2^24 + whole), factor x 2^24 below 2^32 - 2^23.
inline std::int32_t RedondearSorteo(std::uint32_t k, std::uint32_t factor, std::int32_t whole) {
  const std::uint32_t n = k * factor;
  const std::uint32_t odd = ((n >> kBits) + static_cast<std::uint32_t>(whole)) & 1;
  return static_cast<std::int32_t>((n + kCasiMedio + odd) >> kBits) + whole;
}

// draws: one for each byte, in the order of the bytes.
PIXMOSA_CLONES
void FilaRuidosa(const std::uint8_t* __restrict s, const std::uint32_t* __restrict draws,
                 std::uint8_t* __restrict d, std::size_t n, std::int32_t a) {
  for (std::size_t i = 0; i < n; ++i) {
    const std::int32_t v = RedondearSorteo(draws[i], static_cast<std::uint32_t>(2 * a + 1), s[i] - a);
    d[i] = static_cast<std::uint8_t>(v < 0 ? 0 : v > 255 ? 255 : v);
  }
}

// round(draw x a - half) for each draw.
PIXMOSA_CLONES
void FilaDeSaltos(const std::uint32_t* __restrict draws, std::int32_t* __restrict steps, std::size_t n,
                  std::uint32_t a, std::int32_t half) {
  for (std::size_t i = 0; i < n; ++i) steps[i] = RedondearSorteo(draws[i], a, -half);
}

// Where a coordinate goes: itself where the displaced one lies outside 1..limit.
inline int Desplazada(int at, int by, int limit) {
  return static_cast<unsigned>(at + by - 1) < static_cast<unsigned>(limit) ? at + by : at;
}

}  // namespace

void AñadirRuido(PixelBuffers& b, std::int32_t a) {
  a = std::clamp(a, 1, 100);
  std::vector<std::uint32_t> draws(b.Bytes());
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, int) {
    Random random = b.random;  // in registers for the length of a row
    for (std::size_t i = 0; i < draws.size(); i += 4) {
      draws[i] = random.Bits() >> 8;
      draws[i + 1] = random.Bits() >> 8;
      draws[i + 2] = random.Bits() >> 8;
    }
    b.random = random;
    FilaRuidosa(Octetos(s), draws.data(), Octetos(d), b.Bytes(), a);
    RestaurarCuarto(s, d, b.Columnas());
  });
}

void Difuminar(PixelBuffers& b, std::int32_t a) {
  a = std::clamp(a, 0, 100);
  const std::int32_t half = RoundHalfEven(a / 2.0);
  std::vector<std::uint32_t> draws(2 * b.Columnas());
  std::vector<std::int32_t> steps(draws.size());
  // In place: every row that a displacement can reach stands in the destination before it is read.
  int copied = 0;
  RecorrerFilas(b, [&](const std::uint32_t*, std::uint32_t* d, int y) {
    for (; copied < std::min(b.H, y + a - half); ++copied) b.CopiarFila(copied + 1);
    Random random = b.random;
    for (std::uint32_t& draw : draws) draw = random.Bits() >> 8;
    b.random = random;
    FilaDeSaltos(draws.data(), steps.data(), steps.size(), static_cast<std::uint32_t>(a), half);
    for (int x = 1; x <= b.W; ++x) {
      const auto i = 2 * static_cast<std::size_t>(x - 1);
      const int column = Desplazada(x, steps[i], b.W), row = Desplazada(y, steps[i + 1], b.H);
      d[x - 1] = (b.Destino(row)[column - 1] & 0xFFFFFFU) | (d[x - 1] & 0xFF000000U);
    }
  });
}

}  // namespace pixmosa
