#include <gtest/gtest.h>

#include "tests/exportar/Taller.h"

using namespace pixmosa;
using test::kRojo;
using test::kVerde;
using test::Taller;

TEST(Png, InkLiesOverPaperByItsCoverage) {
  Taller t;
  t.medios.celda = {2, 1};
  t.superficie.smooth = [](char32_t c, int x, int) { return c == U'a' ? (x == 0 ? 255 : 51) : 0; };
  OpcionesDeExportar o;
  o.color = true;
  o.escala = 1;
  o.papel = Rgb(100, 0, 50);
  o.tinta = Rgb(0, 200, 50);
  Dibujo d = DibujoDeUtf8("ab\na");
  d.filas[0][1].papel = kVerde;
  d.filas[1][0].tinta = kRojo;
  EXPECT_EQ(t.Escribir("png", d, o), "PNG");
  ASSERT_EQ(t.codificada.Size(), (Extent{4, 2}));
  // A fifth of the ink: 100 x 4/5, 200 / 5; and of red: 100 + (255 - 100) / 5, 50 x 4/5.
  const Colour wanted[2][4] = {{Rgb(0, 200, 50), Rgb(80, 40, 50), kVerde, kVerde},
                               {kRojo, Rgb(131, 0, 40), o.papel, o.papel}};
  for (int y = 0; y < 2; ++y)
    for (int x = 0; x < 4; ++x) EXPECT_EQ(t.codificada.ColourAt(x, y), wanted[y][x]) << x << ' ' << y;
}

TEST(Png, ScaleMultipliesTheCell) {
  Taller t;
  t.superficie.ink[U'a'] = 4;  // the top row of the cell
  for (const int scale : {1, 3, 8}) {
    OpcionesDeExportar o;
    o.escala = scale;
    t.Escribir("png", DibujoDeUtf8(" a\n"), o);
    ASSERT_EQ(t.codificada.Size(), (Extent{8 * scale, 10 * scale}));
    for (const auto& [x, y, colour] : {std::tuple{4 * scale - 1, 0, kWhite},
                                       {4 * scale, 0, kBlack},
                                       {8 * scale - 1, scale - 1, kBlack},
                                       {4 * scale, scale, kWhite}})
      EXPECT_EQ(t.codificada.ColourAt(x, y), colour) << scale << ": " << x << ' ' << y;
  }
}

TEST(Png, TooManyPixelsAreRefused) {
  Taller t;
  OpcionesDeExportar o;
  o.escala = 8;
  Dibujo d;
  d.filas.emplace_back(312'501, Celda{});  // of 32 x 40 pixels
  try {
    t.Escribir("png", d, o);
    ADD_FAILURE();
  } catch (const DibujoExcesivo& e) {
    EXPECT_STREQ(e.what(),
                 "La imagen sería demasiado grande: 10000032 x 40 píxeles; el máximo son 400 millones.");
  }
  EXPECT_TRUE(t.codificada.IsEmpty());
}
