#include <array>
#include <span>
#include <vector>

#include "effects/Efectos.h"
#include "effects/Grises.h"
#include "platform/Rounding.h"

namespace pixmosa {
namespace {

// Weights by row and column x-2..x+2; the shares of the current row go to x+1 and x+2 only.
struct Metodo {
  std::array<std::array<int, 5>, 3> pesos;
  int divisor, filas, alEmpezar;  // rows reached; the bar at the start
};

constexpr Metodo kMetodo4 = {{{{0, 0, 0, 7, 0}, {0, 3, 5, 1, 0}, {}}}, 16, 2, 2};
constexpr Metodo kMetodo5 = {{{{0, 0, 0, 8, 4}, {2, 4, 8, 4, 2}, {}}}, 32, 2, 3};
constexpr Metodo kMetodo6 = {{{{0, 0, 0, 8, 4}, {2, 4, 8, 4, 2}, {1, 2, 4, 2, 1}}}, 42, 3, 3};

// Error rows with two spare columns on either side, which take the shares that leave the picture.
constexpr std::size_t kMargen = 2;
using FilaDeErrores = std::vector<std::int32_t>;

// The accumulated error lies in -255..255 (the weights of what a pixel receives sum to at most the divisor),
// so a level plus its damped error lies in -2550..2805 for the strongest damping factor of 10.
constexpr std::int32_t kMasError = 255, kMasSuma = 10 * kMasError;

struct Tablas {
  std::array<std::int32_t, 2 * kMasError + 1> amortiguado{};  // error x 10 / a
  // By level plus damped error: the shares of the chosen output's error and that output.
  struct Salida {
    std::array<std::array<std::int16_t, 5>, 3> partes;
    std::uint32_t pixel;
  };
  std::vector<Salida> salidas;

  Tablas(const Metodo& m, std::int32_t mean, std::int32_t a) : salidas(2 * kMasSuma + 256) {
    for (std::int32_t e = -kMasError; e <= kMasError; ++e)
      amortiguado[static_cast<std::size_t>(e + kMasError)] = e * 10 / a;
    for (std::size_t i = 0; i < salidas.size(); ++i) {
      const std::int32_t v = ClampByte(static_cast<std::int32_t>(i) - kMasSuma), o = v < mean ? 0 : 255;
      salidas[i].pixel = o ? 0xFFFFFFU : 0U;
      for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t k = 0; k < 5; ++k)
          salidas[i].partes[row][k] = static_cast<std::int16_t>(m.pesos[row][k] * (v - o) / m.divisor);
    }
  }

  const Salida& De(std::int32_t gray, std::int32_t error) const {
    const std::int32_t v = gray + amortiguado[static_cast<std::size_t>(error + kMasError)];
    return salidas[static_cast<std::size_t>(v + kMasSuma)];
  }
};

// One row; the errors of the current row arrive in rows[0], those of the next ones are added to rows[1] and
// [2].
template <std::size_t kFilas>
void Difundir(const Tablas& t, const std::uint32_t* s, const std::uint8_t* grays, std::uint32_t* d,
              std::size_t n, std::array<FilaDeErrores, 3>& rows) {
  std::int32_t first = 0, second = 0;  // shares of this row for x and x + 1
  for (std::size_t x = 0; x < n; ++x) {
    const Tablas::Salida& out = t.De(grays[x], rows[0][x + kMargen] + first);
    d[x] = (s[x] & 0xFF000000U) | out.pixel;
    first = second + out.partes[0][3];
    second = out.partes[0][4];
    for (std::size_t row = 1; row < kFilas; ++row)
      for (std::size_t k = 0; k < 5; ++k) rows[row][x + k] += out.partes[row][k];
  }
}

template <std::size_t kFilas>
void DifusionDeError(PixelBuffers& b, const Metodo& m, std::int32_t a) {
  b.Avance(m.alEmpezar);
  const Tablas tables(m, MediaDeGrises(b), std::clamp(a, 1, 1000));
  b.Avance(10);
  std::array<FilaDeErrores, 3> rows;
  rows.fill(FilaDeErrores(b.Columnas() + 2 * kMargen));
  std::vector<std::uint8_t> grays(b.Columnas());
  const Tramo bar{10, 90};
  RecorrerFilas(
      b,
      [&](const std::uint32_t* s, std::uint32_t* d, int) {
        FilaDeGrises(s, grays.data(), b.Columnas());
        Difundir<kFilas>(tables, s, grays.data(), d, b.Columnas(), rows);
        std::rotate(rows.begin(), rows.begin() + 1, rows.begin() + kFilas);
        std::fill(rows[kFilas - 1].begin(), rows[kFilas - 1].end(), 0);
      },
      bar);
}

}  // namespace

void Metodo4(PixelBuffers& b, std::int32_t a) {
  DifusionDeError<2>(b, kMetodo4, a);
}

void Metodo5(PixelBuffers& b, std::int32_t a) {
  DifusionDeError<2>(b, kMetodo5, a);
}

void Metodo6(PixelBuffers& b, std::int32_t a) {
  DifusionDeError<3>(b, kMetodo6, a);
}

}  // namespace pixmosa
