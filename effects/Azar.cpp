// The two random workers. A draw is k / 2^24 with a whole k, so every product is a whole number of 2^-24 and
// is rounded half to even by whole numbers alone.
#include <vector>

#include "effects/Efectos.h"
#include "effects/Filas.h"
#include "platform/Clones.h"
#include "platform/Pixel.h"

namespace pixmosa {
namespace {

constexpr unsigned kBits = 24;
constexpr std::uint32_t kCasiMedio = (1U << (kBits - 1)) - 1;

// The largest factor, that of noise at 100: its products must not overflow when half is added.
constexpr std::uint32_t kMayorFactor = 2 * 100 + 1;
static_assert((std::uint64_t{kMayorFactor} << kBits) + kCasiMedio + 1 <= UINT32_MAX);

// round(k x factor / 2^24 + whole), k below 2^24.
inline std::int32_t RedondearSorteo(std::uint32_t k, std::uint32_t factor, std::int32_t whole) {
  const std::uint32_t n = k * factor;
  const std::uint32_t odd = ((n >> kBits) + whole) & 1;
  return ((n + kCasiMedio + odd) >> kBits) + whole;
}

// draws: one for each byte, in the order of the bytes.
PIXMOSA_CLONES
void FilaRuidosa(const std::uint8_t* __restrict s, const std::uint32_t* __restrict draws,
                 std::uint8_t* __restrict d, std::size_t n, std::int32_t a) {
  for (std::size_t i = 0; i < n; ++i) d[i] = ClampByte(RedondearSorteo(draws[i], 2 * a + 1, s[i] - a));
}

// round(draw x a - half) for each draw.
PIXMOSA_CLONES
void FilaDeSaltos(const std::uint32_t* __restrict draws, std::int32_t* __restrict steps, std::size_t n,
                  std::uint32_t a, std::int32_t half) {
  for (std::size_t i = 0; i < n; ++i) steps[i] = RedondearSorteo(draws[i], a, -half);
}

// Where a coordinate goes: itself where the displaced one lies outside 1..limit.
inline std::ptrdiff_t Desplazada(std::ptrdiff_t at, std::ptrdiff_t by, std::ptrdiff_t limit) {
  const std::ptrdiff_t to = at + by;
  return to >= 1 && to <= limit ? to : at;
}

}  // namespace

void AñadirRuido(PixelBuffers& b, std::int32_t a) {
  a = std::clamp(a, 1, 100);
  std::vector<std::uint32_t> draws(b.Bytes());
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, auto) {
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
  std::ptrdiff_t copied = 0;
  RecorrerFilas(b, [&](const std::uint32_t*, std::uint32_t* d, std::ptrdiff_t y) {
    for (; copied < std::min(b.H, y + a - half); ++copied) b.CopiarFila(copied + 1);
    Random random = b.random;
    for (std::uint32_t& draw : draws) draw = random.Bits() >> 8;
    b.random = random;
    FilaDeSaltos(draws.data(), steps.data(), steps.size(), a, half);
    const std::int32_t* step = steps.data();
    for (std::ptrdiff_t x = 1; x <= b.W; ++x, step += 2) {
      const std::ptrdiff_t column = Desplazada(x, step[0], b.W), row = Desplazada(y, step[1], b.H);
      d[x - 1] = ConCuarto(d[x - 1], b.Destino(row)[column - 1]);
    }
  });
}

}  // namespace pixmosa
