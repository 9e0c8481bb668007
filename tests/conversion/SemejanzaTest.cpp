#include <cmath>
#include <gtest/gtest.h>

#include "conversion/Claridad.h"
#include "conversion/Semejanza.h"
#include "platform/Random.h"
#include "tests/support/FakeTextSurface.h"

using namespace pixmosa;

namespace {

constexpr Extent kCelda{5, 9};

// Soft hills and a hard edge, 60 x 30 cells.
Malla Paisaje() {
  Malla m(120, 120);
  for (std::size_t y = 0; y < m.alto; ++y)
    for (std::size_t x = 0; x < m.ancho; ++x) {
      const double dx = static_cast<double>(x), dy = static_cast<double>(y);
      m.Fila(y)[x] =
          static_cast<float>(0.4 + 0.25 * std::sin(dx / 9) * std::cos(dy / 13) + (x > y ? 0.2 : 0));
    }
  return m;
}

// Every lightness changed.
template <typename Change>
Malla Con(Malla m, Change change) {
  for (float& v : m.valores) v = static_cast<float>(LuzDeClaridad(change(Claridad(v))));
  return m;
}

}  // namespace

TEST(Semejanza, ScoresWhatAnEyeWouldSay) {
  const Malla picture = Paisaje();
  const auto score = [&](const Malla& text) { return Comparar(picture, text, kCelda).Puntos(); };
  EXPECT_NEAR(score(picture), 100, 0.01);
  EXPECT_LT(score(Con(picture, [](double l) { return 1 - l; })), -60);
  EXPECT_GT(score(Con(picture, [](double l) { return 0.5 + (l - 0.5) / 2; })), 98) << "half the contrast";
  Random random(7);
  EXPECT_NEAR(score(Con(picture, [&](double) { return (random.Bits() & 1023) / 1023.0; })), 0, 12) << "noise";
  const Semejanza blurred = Comparar(picture, Difuminar(picture, 4, 4), kCelda);
  EXPECT_GT(blurred.lejos, blurred.fino) << "what is lost is seen from near";
  Malla flat = picture;
  std::fill(flat.valores.begin(), flat.valores.end(), 0.5F);
  EXPECT_NEAR(score(flat), 0, 15);
  EXPECT_NEAR(Comparar(flat, flat, kCelda).Puntos(), 100, 0.01);
}

TEST(Semejanza, DrawsTheTextOnItsGrid) {
  test::FakeTextSurface surface;
  surface.cell = {2, 4};
  surface.smooth = [](char32_t c, int x, int) { return c == U'l' && x == 0 ? 255 : 0; };
  const Malla m = LuzDeTexto(surface, {}, surface.cell, {U"\xA0l", U"", U"ll"}, {2, 2}, false);
  EXPECT_EQ(std::vector<float>(m.Fila(0).begin(), m.Fila(0).end()), (std::vector<float>{1, 1, 0, 1}));
  EXPECT_EQ(m.Fila(4)[0], 1) << "a short row is paper, a row too many is left out";
  EXPECT_EQ(LuzDeTexto(surface, {}, surface.cell, {U" l"}, {3, 1}, true).Fila(3)[2], 1);
  EXPECT_EQ(LuzDeTexto(surface, {}, surface.cell, {U" l"}, {3, 1}, true).Fila(3)[5], 0);
}
