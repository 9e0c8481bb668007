#include <array>
#include <cstdlib>
#include <initializer_list>
#include <vector>

#include "effects/Efectos.h"
#include "effects/Grises.h"

namespace pixmosa {
namespace {

// The different weights of a method, and the bar at the start.
struct Metodo {
  std::array<int, 4> pesos;
  int divisor, alEmpezar;
};

constexpr Metodo kMetodo4 = {{7, 3, 5, 1}, 16, 2};
constexpr Metodo kMetodo5 = {{8, 4, 2, 0}, 32, 3};
constexpr Metodo kMetodo6 = {{8, 4, 2, 1}, 42, 3};

// Error rows with two spare columns on either side, which take the shares that leave the picture.
constexpr std::ptrdiff_t kMargen = 2;
using FilaDeErrores = std::vector<std::int32_t>;
using Errores = std::array<FilaDeErrores, 3>;

// The accumulated error lies in -255..255 (the weights of what a pixel receives sum to at most the divisor),
// so a level plus its damped error lies in -2550..2805 for the strongest damping factor of 10.
constexpr std::int32_t kMasError = 255, kMasSuma = 10 * kMasError;

// What a pixel receives of neighbours whose errors are e, each share cut off toward zero.
constexpr std::int32_t Recibido(std::initializer_list<int> weights, int divisor, int e) {
  std::int32_t sum = 0;
  for (const int w : weights) sum += w * e / divisor;
  return sum;
}
constexpr bool Cabe(std::int32_t error) {
  return error >= -kMasError && error <= kMasError;
}
static_assert(ParaTodos(-255, 255, [](int e) {
  return Cabe(Recibido({7, 3, 5, 1}, 16, e)) && Cabe(Recibido({8, 4, 2, 4, 8, 4, 2}, 32, e)) &&
         Cabe(Recibido({8, 4, 2, 4, 8, 4, 2, 1, 2, 4, 2, 1}, 42, e));
}));

// The shares of one error, in the order of the method's weights. 8 bits would hold them, -111..111, and 16
// make a table of 43 KB; yet with 8 bits a picture measures an eighth slower.
using Partes = std::array<std::int16_t, 4>;

// What leads from one pixel to the next is 64 bits wide, as an address is: each number is the place of the
// next one in a table, and to widen it first would lengthen the only path that a row has to wait for.
struct Tablas {
  std::array<std::int64_t, 2 * kMasError + 1> amortiguado{};  // error x 10 / a
  std::vector<Partes> partes{2 * kMasSuma + 256};             // by level plus damped error
  std::int64_t umbral;  // the least sum that becomes white; every one where the mean is 0

  Tablas(const Metodo& m, std::int32_t mean, std::int32_t a) : umbral(mean > 0 ? mean : -kMasSuma) {
    for (std::int32_t e = -kMasError; e <= kMasError; ++e) amortiguado[e + kMasError] = e * 10 / a;
    for (std::int32_t sum = -kMasSuma; sum < kMasSuma + 256; ++sum) {
      const std::int32_t v = ClampByte(sum), o = v < mean ? 0 : 255;
      for (int k = 0; k < 4; ++k) partes[sum + kMasSuma][k] = m.pesos[k] * (v - o) / m.divisor;
    }
  }

  // What is known of a pixel before the share of the one to its left: where its damped errors and its shares
  // begin.
  struct Base {
    const std::int64_t* damped;
    const Partes* shares;
  };
  Base De(std::int32_t gray, std::int32_t error) const {
    return {amortiguado.data() + kMasError + error, partes.data() + kMasSuma + gray};
  }

  // The output by the sign and not by a branch: which of the two it will be cannot be foretold. The sum is
  // not clamped first, which makes a difference only where the mean is 0.
  std::uint32_t Salida(std::uint32_t p, std::int64_t sum) const {
    const std::uint32_t black = (sum - umbral) >> 63;
    return ConCuarto(p, ~black);
  }
};

// The rows carry the base of the next pixel along: from one pixel to the next there are only two table
// entries.

// One row by weights 7 | 3 5 1. What a pixel of the next row gets waits in `here` and `ahead` until it is
// whole.
void DifundirEstrecho(const Tablas& t, const std::uint32_t* s, const std::uint8_t* grays, std::uint32_t* d,
                      std::ptrdiff_t n, Errores& rows) {
  const std::int32_t* error = rows[0].data() + kMargen;
  std::int32_t* next = rows[1].data() + kMargen;
  std::int64_t right = 0;
  Tablas::Base base = t.De(grays[0], error[0]);
  std::int32_t here = 0, ahead = 0;
  for (std::ptrdiff_t x = 0; x < n; ++x) {
    const std::int64_t damped = base.damped[right];
    const Partes& p = base.shares[damped];
    d[x] = t.Salida(s[x], grays[x] + damped);
    right = p[0];
    base = t.De(grays[x + 1], error[x + 1]);
    next[x - 1] = here + p[1];
    here = ahead + p[2];
    ahead = p[3];
  }
  next[n - 1] = here;
}

// The five columns x-2..x+2 of a row below, of which x-2 is whole after each step.
struct Ventana {
  std::int32_t a = 0, b = 0, c = 0, d = 0;

  std::int32_t Pasar(std::int32_t outer, std::int32_t inner, std::int32_t middle) {
    const std::int32_t whole = a + outer;
    a = b + inner;
    b = c + middle;
    c = d + inner;
    d = outer;
    return whole;
  }
};

// One row by weights 8 4 | 2 4 8 4 2, and | 1 2 4 2 1 in a third row.
template <bool kTercera>
void DifundirAncho(const Tablas& t, const std::uint32_t* s, const std::uint8_t* grays, std::uint32_t* d,
                   std::ptrdiff_t n, Errores& rows) {
  const std::int32_t* error = rows[0].data() + kMargen;
  std::int32_t *next = rows[1].data(), *third = rows[2].data();
  std::int64_t right = 0;
  Tablas::Base base = t.De(grays[0], error[0]);
  std::int32_t second = 0;
  Ventana below, last;
  for (std::ptrdiff_t x = 0; x < n; ++x) {
    const std::int64_t damped = base.damped[right];
    const Partes& p = base.shares[damped];
    d[x] = t.Salida(s[x], grays[x] + damped);
    right = p[0];
    base = t.De(grays[x + 1], error[x + 1] + second);
    second = p[1];
    next[x] += below.Pasar(p[2], p[1], p[0]);
    if constexpr (kTercera) third[x] = last.Pasar(p[3], p[2], p[1]);
  }
  for (std::ptrdiff_t x = n; x < n + kMargen; ++x) {
    next[x] += below.Pasar(0, 0, 0);
    if constexpr (kTercera) third[x] = last.Pasar(0, 0, 0);
  }
}

using Difundir = void (*)(const Tablas&, const std::uint32_t*, const std::uint8_t*, std::uint32_t*,
                          std::ptrdiff_t, Errores&);

void DifusionDeError(PixelBuffers& b, const Metodo& m, Difundir row, std::int32_t a) {
  b.Avance(m.alEmpezar);
  const Tablas tables(m, MediaDeGrises(b), std::clamp(a, 1, 1000));
  b.Avance(10);
  Errores rows;
  rows.fill(FilaDeErrores(b.Columnas() + 2 * kMargen));
  std::vector<std::uint8_t> grays(b.Columnas() + 1);  // and one more, which the look ahead reads
  const Tramo bar{10, 90};
  RecorrerFilas(
      b,
      [&](const std::uint32_t* s, std::uint32_t* d, auto) {
        FilaDeGrises(s, grays.data(), b.Columnas());
        row(tables, s, grays.data(), d, b.W, rows);
        std::rotate(rows.begin(), rows.begin() + 1, rows.end());
        std::fill(rows[2].begin(), rows[2].end(), 0);
      },
      bar);
}

}  // namespace

void Metodo4(PixelBuffers& b, std::int32_t a) {
  DifusionDeError(b, kMetodo4, DifundirEstrecho, a);
}

void Metodo5(PixelBuffers& b, std::int32_t a) {
  DifusionDeError(b, kMetodo5, DifundirAncho<false>, a);
}

void Metodo6(PixelBuffers& b, std::int32_t a) {
  DifusionDeError(b, kMetodo6, DifundirAncho<true>, a);
}

}  // namespace pixmosa
