#include <array>
#include <cmath>

#include "effects/Efectos.h"
#include "effects/Filas.h"
#include "effects/Grises.h"
#include "platform/Clones.h"
#include "platform/Rounding.h"

namespace pixmosa {
namespace {

using TablaDeBytes = std::array<std::uint8_t, 256>;

// Each component through one table of 256 entries.
void PorTabla(PixelBuffers& b, const TablaDeBytes& table) {
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, int) {
    for (std::size_t x = 0; x < b.Columnas(); ++x) {
      const std::uint32_t p = s[x];
      d[x] = (p & 0xFF000000U) | table[p & 0xFF] | static_cast<std::uint32_t>(table[p >> 8 & 0xFF]) << 8 |
             static_cast<std::uint32_t>(table[p >> 16 & 0xFF]) << 16;
    }
  });
}

// v x (percent / 100) + c, rounded half to even, is a whole number of hundredths away from any tie except at
// one, and there the factor's single precision decides: it lies above or below percent / 100, or is equal to
// it, and only then "to even" does. So whole numbers of hundredths suffice: t = hundredths + 50, less 1 where
// a tie goes down.
enum class Empate { Arriba, Abajo, Par };

// How the single-precision factor lies to percent / 100.
Empate EmpateDe(std::int32_t percent) {
  const double hundredths = double{static_cast<float>(percent / 100.0)} * 100.0;
  return hundredths > percent ? Empate::Arriba : hundredths < percent ? Empate::Abajo : Empate::Par;
}

// t \ 100 for t = 0..25599.
inline std::uint32_t Centesima(std::uint32_t t) {
  return (t >> 2) * 20972U >> 19;
}

// The even one of the two numbers around a tie, which is where t is a whole hundred.
inline std::uint32_t HaciaElPar(std::uint32_t t, std::uint32_t q) {
  return q - static_cast<std::uint32_t>((t == q * 100) & q & 1);
}

constexpr std::int32_t kTope = 25599;  // what lies beyond gives 255

// round(s x percent / 100), limited to a byte, percent = 0..200.
template <bool kPar>
inline void EscalarBytes(const std::uint8_t* __restrict s, std::uint8_t* __restrict d, std::size_t n,
                         std::uint16_t percent, std::uint16_t half) {
  for (std::size_t i = 0; i < n; ++i) {
    const auto v = static_cast<std::uint16_t>(s[i] * percent + half);
    const auto t = static_cast<std::uint16_t>(v > kTope ? kTope : v);
    const auto quarter = static_cast<std::uint16_t>(t >> 2);
    const auto high = static_cast<std::uint16_t>(quarter * 20972U >> 16);
    const auto q = static_cast<std::uint16_t>(high >> 3);
    // Nothing is limited to a tie: 25599 is no whole hundred.
    const auto odd = static_cast<std::uint16_t>((t == static_cast<std::uint16_t>(q * 100)) & q & 1);
    d[i] = static_cast<std::uint8_t>(kPar ? q - odd : q);
  }
}

PIXMOSA_CLONES
void FilaEscalada(const std::uint8_t* s, std::uint8_t* d, std::size_t n, std::uint16_t percent,
                  std::uint16_t half) {
  EscalarBytes<false>(s, d, n, percent, half);
}

PIXMOSA_CLONES
void FilaEscaladaPar(const std::uint8_t* s, std::uint8_t* d, std::size_t n, std::uint16_t percent,
                     std::uint16_t half) {
  EscalarBytes<true>(s, d, n, percent, half);
}

// c + (c - gray) x percent / 100, rounded and limited. The halves are 50 or 49 as a tie goes up or down, for
// c >= gray and for c < gray.
template <bool kPar>
inline std::uint32_t Saturada(std::int32_t c, std::int32_t gray, std::int32_t percent, std::int32_t halfAbove,
                              std::int32_t halfBelow) {
  const std::int32_t d = c - gray;
  const std::int32_t v = 100 * c + d * percent + (d < 0 ? halfBelow : halfAbove);
  const auto t = static_cast<std::uint32_t>(v < 0 ? 0 : v > kTope ? kTope : v);
  const std::uint32_t q = Centesima(t);
  return kPar ? HaciaElPar(t, q) : q;
}

template <bool kPar>
inline void SaturarPixeles(const std::uint32_t* __restrict s, std::uint32_t* __restrict d, std::size_t n,
                           std::int32_t percent, std::int32_t halfAbove, std::int32_t halfBelow) {
  for (std::size_t x = 0; x < n; ++x) {
    const std::uint32_t p = s[x];
    const auto gray = static_cast<std::int32_t>(Tercio(SumaRGB(p)));
    const auto b = static_cast<std::int32_t>(p & 0xFF), g = static_cast<std::int32_t>(p >> 8 & 0xFF),
               r = static_cast<std::int32_t>(p >> 16 & 0xFF);
    d[x] = (p & 0xFF000000U) | Saturada<kPar>(b, gray, percent, halfAbove, halfBelow) |
           Saturada<kPar>(g, gray, percent, halfAbove, halfBelow) << 8 |
           Saturada<kPar>(r, gray, percent, halfAbove, halfBelow) << 16;
  }
}

PIXMOSA_CLONES
void FilaSaturada(const std::uint32_t* s, std::uint32_t* d, std::size_t n, std::int32_t percent,
                  std::int32_t halfAbove, std::int32_t halfBelow) {
  SaturarPixeles<false>(s, d, n, percent, halfAbove, halfBelow);
}

PIXMOSA_CLONES
void FilaSaturadaPar(const std::uint32_t* s, std::uint32_t* d, std::size_t n, std::int32_t percent,
                     std::int32_t halfAbove, std::int32_t halfBelow) {
  SaturarPixeles<true>(s, d, n, percent, halfAbove, halfBelow);
}

}  // namespace

void Brillo(PixelBuffers& b, std::int32_t a) {
  const auto percent = static_cast<std::uint16_t>(std::clamp(a, -100, 100) + 100);
  const Empate tie = EmpateDe(percent);
  const std::uint16_t half = tie == Empate::Abajo ? 49 : 50;
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, int) {
    (tie == Empate::Par ? FilaEscaladaPar : FilaEscalada)(Octetos(s), Octetos(d), b.Bytes(), percent, half);
    RestaurarCuarto(s, d, b.Columnas());
  });
}

void Saturacion(PixelBuffers& b, std::int32_t a) {
  const std::int32_t percent = std::clamp(a, -100, 100);
  const Empate tie = EmpateDe(percent);
  const std::int32_t above = tie == Empate::Abajo ? 49 : 50, below = tie == Empate::Arriba ? 49 : 50;
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, int) {
    (tie == Empate::Par ? FilaSaturadaPar : FilaSaturada)(s, d, b.Columnas(), percent, above, below);
  });
}

void Gamma(PixelBuffers& b, std::int32_t a) {
  const double power = 1.0 / double{static_cast<float>(std::clamp(a, 1, 100))};
  TablaDeBytes table{};
  for (int i = 0; i < 256; ++i)
    table[static_cast<std::size_t>(i)] =
        static_cast<std::uint8_t>(RoundHalfEven(std::pow(i / 255.0, power) * 255.0));
  PorTabla(b, table);
}

}  // namespace pixmosa
