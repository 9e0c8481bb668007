#include <array>

#include "effects/Efectos.h"
#include "effects/Grises.h"
#include "platform/Clones.h"

namespace pixmosa {
namespace {

PIXMOSA_CLONES
void FilaNegativa(const std::uint32_t* __restrict s, std::uint32_t* __restrict d, std::size_t n) {
  for (std::size_t x = 0; x < n; ++x) d[x] = s[x] ^ kTresPartes;
}

PIXMOSA_CLONES
void FilaGris(const std::uint32_t* __restrict s, std::uint32_t* __restrict d, std::size_t n) {
  for (std::size_t x = 0; x < n; ++x) d[x] = ConCuarto(s[x], UnirGris(Tercio(SumaRGB(s[x]))));
}

// How far to the right the part lies in the old pixel that becomes blue, green and red.
struct Orden {
  int blue, green, red;
};

constexpr int kB = 0, kG = 8, kR = 16;
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
    d[x] = ConCuarto(p, Unir(Azul(p >> o.blue), Azul(p >> o.green), Azul(p >> o.red)));
  }
}

// A share of the luminance, in thousandths, of a byte: rounded half to even. The factor is near enough to
// 2^20 / 1000 times the share that every product of a byte rounds as it should; the only tie, blue 250 x
// 0.114 = 28.5, goes down to 28 because the factor for blue lies below.
constexpr std::int32_t Parte(std::int32_t c, std::int32_t factor) {
  return (c * factor + (1 << 19)) >> 20;
}
constexpr std::int32_t kAzul = 119537, kVerde = 615514, kRojo = 313524;

constexpr bool EsExacta(std::int32_t factor, int thousandths) {
  return ParaTodos(0, 255, [=](int c) {
    const int whole = c * thousandths / 1000, rest = c * thousandths % 1000;
    return Parte(c, factor) == whole + (rest > 500 || (rest == 500 && whole % 2 == 1));
  });
}
static_assert(EsExacta(kAzul, 114) && EsExacta(kVerde, 587) && EsExacta(kRojo, 299));

PIXMOSA_CLONES
void FilaAntigua(const std::uint32_t* __restrict s, std::uint32_t* __restrict d, std::size_t n) {
  for (std::size_t x = 0; x < n; ++x) {
    const std::uint32_t p = s[x];
    const std::int32_t l = Parte(Azul(p), kAzul) + Parte(Verde(p), kVerde) + Parte(Rojo(p), kRojo);
    d[x] = ConCuarto(p, Unir(ClampByte(l + 8), ClampByte(l + 24), ClampByte(l + 64)));
  }
}

}  // namespace

void Negativo(PixelBuffers& b, std::int32_t) {
  for (std::ptrdiff_t y = 1; y <= b.H; ++y) {
    FilaNegativa(b.Origen(y), b.Destino(y), b.Columnas());
    b.ProgressPercent = Tramo{}.Tras(y, b.H);
    b.prgBar.Yield();
  }
  b.Avance(100);
}

void EscalaDeGrises(PixelBuffers& b, std::int32_t) {
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, auto) { FilaGris(s, d, b.Columnas()); });
}

void IntercambiarRGB(PixelBuffers& b, std::int32_t i) {
  const Orden order = i >= 1 && i <= 5 ? kOrdenes[i - 1] : Orden{kB, kG, kR};
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, auto) {
    FilaIntercambiada(s, d, b.Columnas(), order);
  });
}

void FotoAntigua(PixelBuffers& b, std::int32_t) {
  RecorrerFilas(b, [&](const std::uint32_t* s, std::uint32_t* d, auto) { FilaAntigua(s, d, b.Columnas()); });
}

}  // namespace pixmosa
