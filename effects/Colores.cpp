#include <array>

#include "effects/Efectos.h"
#include "effects/Grises.h"
#include "platform/Clones.h"

namespace pixmosa {
namespace {

PIXMOSA_CLONES
void FilaNegativa(const std::uint32_t* __restrict s, std::uint32_t* __restrict d, std::size_t n) {
  for (std::size_t x = 0; x < n; ++x) d[x] = s[x] ^ 0xFFFFFFU;
}

PIXMOSA_CLONES
void FilaGris(const std::uint32_t* __restrict s, std::uint32_t* __restrict d, std::size_t n) {
  for (std::size_t x = 0; x < n; ++x) d[x] = ConGris(s[x], Tercio(SumaRGB(s[x])));
}

// Where the new blue, green and red stand in the old pixel: 0 blue, 8 green, 16 red.
struct Orden {
  unsigned blue, green, red;
};

constexpr unsigned kB = 0, kG = 8, kR = 16;
constexpr std::array<Orden, 5> kOrdenes = {{
    {kG, kR, kB},  // RGB -> BRG
    {kR, kB, kG},  // RGB -> GBR
    {kG, kB, kR},  // RGB -> RBG
    {kR, kG, kB},  // RGB -> BGR
    {kB, kR, kG},  // RGB -> GRB
}};

PIXMOSA_CLONES
void FilaIntercambiada(const std::uint32_t* __restrict s, std::uint32_t* __restrict d, std::size_t n,
                       Orden o) {
  for (std::size_t x = 0; x < n; ++x) {
    const std::uint32_t p = s[x];
    d[x] = (p & 0xFF000000U) | (p >> o.blue & 0xFF) | (p >> o.green & 0xFF) << 8 | (p >> o.red & 0xFF) << 16;
  }
}

// The three shares of the luminance as fractions of 2^20, near enough that every rounded product of a byte is
// exact; the only tie, blue 250 x 0.114 = 28.5, goes to the even 28, hence the smaller of the two for blue.
constexpr std::uint32_t kAzul = 119537, kVerde = 615514, kRojo = 313524, kMedio = 1U << 19;

constexpr std::uint32_t Tope(std::uint32_t v) {
  return v > 255 ? 255 : v;
}

PIXMOSA_CLONES
void FilaAntigua(const std::uint32_t* __restrict s, std::uint32_t* __restrict d, std::size_t n) {
  for (std::size_t x = 0; x < n; ++x) {
    const std::uint32_t p = s[x];
    const std::uint32_t l = (((p & 0xFF) * kAzul + kMedio) >> 20) +
                            (((p >> 8 & 0xFF) * kVerde + kMedio) >> 20) +
                            (((p >> 16 & 0xFF) * kRojo + kMedio) >> 20);
    d[x] = (p & 0xFF000000U) | Tope(l + 8) | Tope(l + 24) << 8 | Tope(l + 64) << 16;
  }
}

}  // namespace

void Negativo(PixelBuffers& b, std::int32_t) {
  for (int y = 1; y <= b.H; ++y) {
    FilaNegativa(b.Fuente(y), b.Destino(y), b.Columnas());
    b.ProgressPercent = static_cast<std::int32_t>(std::int64_t{100} * y / b.H);
    b.prgBar.Yield();
  }
  b.Avance(100);
}

void EscalaDeGrises(PixelBuffers& b, std::int32_t) {
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, int) { FilaGris(s, d, b.Columnas()); });
}

void IntercambiarRGB(PixelBuffers& b, std::int32_t i) {
  const Orden order = i >= 1 && i <= 5 ? kOrdenes[static_cast<std::size_t>(i - 1)] : Orden{kB, kG, kR};
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, int) {
    FilaIntercambiada(s, d, b.Columnas(), order);
  });
}

void FotoAntigua(PixelBuffers& b, std::int32_t) {
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, int) { FilaAntigua(s, d, b.Columnas()); });
}

}  // namespace pixmosa
