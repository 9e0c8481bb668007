#include <array>
#include <vector>

#include "effects/Efectos.h"
#include "effects/Grises.h"
#include "platform/Clones.h"

namespace pixmosa {
namespace {

// 32 bits, as the table k has them. 16 would hold every sum, yet they measure no faster: the time goes into
// collecting the pixels and not into the rounds.
struct Componentes {
  std::int32_t b, g, r;
  bool EnRango() const { return ((b | g | r) & ~255) == 0; }
};

// Limits c to 0..255 and adds half of what was cut off to the other two.
inline void Repartir(std::int32_t& c, std::int32_t& one, std::int32_t& other) {
  const std::int32_t limited = ClampByte(c), half = (c - limited) / 2;
  c = limited;
  one += half;
  other += half;
}

// One round. What lies in range is left alone by it, so a round too many does no harm.
inline Componentes Ronda(Componentes c) {
  const bool black = (c.b < 1) & (c.g < 1) & (c.r < 1), white = (c.b > 254) & (c.g > 254) & (c.r > 254);
  Repartir(c.b, c.r, c.g);
  Repartir(c.g, c.r, c.b);
  Repartir(c.r, c.g, c.b);
  // By masks and not by branches, so that a vector takes the three ways at once.
  const std::int32_t keep = -std::int32_t{!(black | white)}, fill = -std::int32_t{white} & 255;
  return {(c.b & keep) | fill, (c.g & keep) | fill, (c.r & keep) | fill};
}

constexpr std::uint32_t Unidos(std::uint32_t p, const Componentes& c) {
  return ConCuarto(p, Unir(c.b & 255, c.g & 255, c.r & 255));
}

// The pixels of a row that still lie out of range, by components so that whole vectors take a round together.
// Every pixel is written at the end and stays there only if it is out of range: no branch has to be foretold.
class Pendientes {
 public:
  explicit Pendientes(std::size_t columns) : b_(columns), g_(columns), r_(columns), x_(columns) {}

  std::size_t Cuantos() const { return n_; }
  void Vaciar() { n_ = 0; }

  void Poner(std::size_t x, const Componentes& c) {
    b_[n_] = c.b;
    g_[n_] = c.g;
    r_[n_] = c.r;
    x_[n_] = x;
    n_ += c.EnRango() ? 0 : 1;
  }

  // One round for all; the results go to the row `d`, and those in range leave.
  void DarRonda(std::uint32_t* d);

 private:
  std::vector<std::int32_t> b_, g_, r_;
  std::vector<std::uint32_t> x_;
  std::size_t n_ = 0;
};

PIXMOSA_CLONES
void RondaDeTodos(std::int32_t* __restrict b, std::int32_t* __restrict g, std::int32_t* __restrict r,
                  std::size_t n) {
  for (std::size_t i = 0; i < n; ++i) {
    const Componentes c = Ronda({b[i], g[i], r[i]});
    b[i] = c.b;
    g[i] = c.g;
    r[i] = c.r;
  }
}

void Pendientes::DarRonda(std::uint32_t* d) {
  RondaDeTodos(b_.data(), g_.data(), r_.data(), n_);
  const std::size_t n = n_;
  Vaciar();
  for (std::size_t i = 0; i < n; ++i) {
    const Componentes c{b_[i], g_[i], r_[i]};
    const std::size_t x = x_[i];
    d[x] = Unidos(d[x], c);
    Poner(x, c);
  }
}

}  // namespace

void Contraste(PixelBuffers& b, std::int32_t a) {
  const std::int32_t mean = MediaDeGrises(b);
  const float f = (std::clamp(a, -100, 100) + 100) / 100.0;
  std::array<std::int32_t, 256> k{};
  for (int i = 0; i < 256; ++i) k[i] = RoundHalfEven((i - mean) * double{f} + mean);
  Pendientes pending(b.Columnas());
  b.Avance(5);
  const Tramo bar{5, 95};
  RecorrerFilas(
      b,
      [&](const std::uint32_t* s, std::uint32_t* d, auto) {
        for (std::size_t x = 0; x < b.Columnas(); ++x) {
          const std::uint32_t p = s[x];
          const Componentes c{k[Azul(p)], k[Verde(p)], k[Rojo(p)]};
          d[x] = Unidos(p, c);
          pending.Poner(x, c);
        }
        while (pending.Cuantos() > 0) pending.DarRonda(d);
      },
      bar);
}

}  // namespace pixmosa
