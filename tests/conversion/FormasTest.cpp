// Methods "Tono" and "Formas", their characters and their parts.
#include <cmath>
#include <gtest/gtest.h>
#include <numeric>

#include "conversion/Claridad.h"
#include "conversion/ConvertFormas.h"
#include "conversion/Malla.h"
#include "conversion/basAscii.h"
#include "platform/Luz.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/FakeTextSurface.h"
#include "tests/support/Noise.h"

using namespace pixmosa;
using test::Drawn;
using test::Grays;

namespace {

// Cells of 2 x 4 pixels, so that a subcell is a pixel; glyphs of a few plain shapes.
class Formas : public testing::Test {
 protected:
  Formas() {
    surface.cell = {2, 4};
    surface.smooth = [](char32_t c, int x, int y) {
      const bool ink = c == U'#' || (c == U'l' && x == 0) || (c == U'r' && x == 1) || (c == U't' && y < 2) ||
                       (c == U'b' && y > 1) || (c == U'\xAD' && y == 2);
      return ink ? 255 : c == U'+' ? 51 : 0;
    };
  }

  Repertorio Medir(std::u32string_view characters, bool negative = false) {
    return MedirRepertorio(surface, {}, surface.cell, characters, negative);
  }

  test::FakeTextSurface surface;
  const AjustesDeFormas plain{50, 0, false};  // the picture's own tones
};

}  // namespace

TEST(Malla, MeansOfLightCountPixelsByTheirShare) {
  const Malla thirds = LuzMedia(Grays({{0, 255, 255}}), {2, 1});
  EXPECT_NEAR(thirds.valores[0], 1.0 / 3, 1e-6) << "a black pixel and half a white one";
  EXPECT_NEAR(thirds.valores[1], 1, 1e-6);
  const Malla up = LuzMedia(Grays({{0}, {255}}), {3, 4});
  EXPECT_EQ(up.valores, (std::vector<float>{0, 0, 0, 0, 0, 0, 1, 1, 1, 1, 1, 1}));
  EXPECT_NEAR(LuzMedia(Drawn({"g"}, {{'g', Rgb(0, 255, 0)}}), {1, 1}).valores[0], 0.7152, 1e-4);
  EXPECT_NEAR(LuzMedia(Grays({{188}}), {1, 1}).valores[0], 0.5029, 1e-3) << "linear, not 188 / 255";
  // Fourteen pixels a part: some of them are taken.
  EXPECT_NEAR(LuzMedia(Picture::Filled(14, 14, Rgb(188, 188, 188)), {1, 1}).valores[0], 0.5029, 1e-3);
}

TEST(Malla, BlurIsAGaussianThatKeepsFlatsAndEdges) {
  Malla point(201, 1);
  point.valores[100] = 1;
  for (const double deviation : {1.0, 4.0, 10.0}) {
    const Malla m = Difuminar(point, deviation, 3);
    double sum = 0, second = 0;
    for (int i = 0; i < 201; ++i) {
      sum += m.valores[i];
      second += m.valores[i] * (i - 100) * (i - 100);
    }
    EXPECT_NEAR(sum, 1, 1e-5);
    EXPECT_NEAR(std::sqrt(second), deviation, 0.08 * deviation);
    EXPECT_NEAR(m.valores[100], 1 / (deviation * std::sqrt(2 * 3.14159265)), 0.1 / deviation);
  }
  Malla flat(5, 7);
  std::fill(flat.valores.begin(), flat.valores.end(), 0.3F);
  for (const float v : Difuminar(flat, 9, 2).valores) EXPECT_NEAR(v, 0.3F, 1e-6);
}

TEST(Claridad, IsTheStandardLightnessAndItsInverse) {
  EXPECT_NEAR(Claridad(0.184187), 0.5, 1e-5);
  EXPECT_NEAR(Claridad(1), 1, 1e-12);
  EXPECT_NEAR(Claridad(0.004), 0.036132, 1e-9);
  for (const double y : {0.0, 0.003, 0.01, 0.3, 1.0}) EXPECT_NEAR(LuzDeClaridad(Claridad(y)), y, 1e-6);
}

TEST_F(Formas, MeasuresTheCharactersThatDrawSomething) {
  const auto measured = MedirCaracteres(surface, {}, surface.cell, U" #+\x81\xA0\xADl", false);
  std::u32string kept;
  for (const CaracterMedido& c : measured) kept += c.caracter;
  EXPECT_EQ(kept, U" #+l") << "not what prints nothing, not the soft hyphen; the blank itself";
  EXPECT_EQ(measured[0].media, 1);
  EXPECT_EQ(measured[1].media, 0);
  EXPECT_NEAR(measured[2].media, 0.8, 1e-6);
  EXPECT_EQ(measured[3].luz, (std::array<double, 8>{0, 1, 0, 1, 0, 1, 0, 1}));
  EXPECT_EQ(MedirCaracteres(surface, {}, surface.cell, U"l", true)[0].luz[0], 1);
}

TEST_F(Formas, ChoosesByShapeWhereTonesAreAlike) {
  const Repertorio r = Medir(U" #blrt");
  const Picture p = Drawn({"#.#.##..##..", "#.#.##..##..", "#.#...####..", "#.#...####.."});
  EXPECT_EQ(ConvertFormas(r, plain, 0, p, {6, 1}), U"lltb# ");
  EXPECT_EQ(ConvertFormas(Medir(U" #blrt", true), plain, 0, p, {6, 1}), U"rrbt #");
}

TEST_F(Formas, TonoTakesTheNearestLightness) {
  // Light 1, 0.5 and 0 is lightness 1, 0.76 and 0: levels whose lightness lies about the borders 0.88 and
  // 0.38.
  const Repertorio r = Medir(U" #bl");
  const Picture p = Grays({{255, 225, 215, 100, 80, 0}});
  EXPECT_EQ(ConvertTono(r, plain, 0, p, {6, 1}), U"  bb##");
  EXPECT_EQ(ConvertTono(r, plain, 100, p, {6, 1}), U"     b") << "200 / 255 lighter";
}

TEST_F(Formas, WhatWasMadeOfAPictureServesThatPictureAlone) {
  const Repertorio r = Medir(U" #bl");
  Picture p = Grays({{255, 225, 215, 100, 80, 0}});
  ClaridadHecha made;
  ConvertTono(r, plain, 0, p, {6, 1}, &made);
  EXPECT_EQ(ConvertTono(r, plain, 100, p, {6, 1}, &made), U"     b");
  EXPECT_EQ(ConvertTono(r, plain, 0, p, {3, 1}, &made), ConvertTono(r, plain, 0, p, {3, 1}));
  p.Writable()[0] = PixelOfColour(kBlack);
  EXPECT_EQ(ConvertTono(r, plain, 0, p, {6, 1}, &made), U"# bb##");
}

// The least of m^2 + w mean(d^2) - sum (2 m + 2 w G d) / 8 x, in plain numbers.
TEST_F(Formas, AgreesWithTheFormula) {
  surface.smooth = [](char32_t c, int x, int y) {
    return static_cast<int>(c * 7919 + x * 31 + y * 57) * 97 % 256;
  };
  const Repertorio r = Medir(CaracteresDeCodigos(33, 126));
  const Picture p = test::Noise({80, 80}, 3);
  const std::u32string text = ConvertFormas(r, {70, 0, false}, 0, p, {40, 20});
  double least = 1, most = 0;
  for (const auto& c : r.caracteres) {
    least = std::min(least, c.media);
    most = std::max(most, c.media);
  }
  const double w = 0.08 * std::pow(4, 0.4), gain = 0.85 / (most - least);
  const double low = Claridad(least), span = Claridad(most) - low;
  int different = 0;
  for (int cell = 0; cell < 800; ++cell) {
    double best = 9, chosen = 9;
    for (const auto& c : r.caracteres) {
      double squares = 0, sum = 0;
      for (int s = 0; s < 8; ++s) {
        const int px = cell % 40 * 2 + s % 2, py = cell / 40 * 4 + s / 2;
        const Colour v = p.ColourAt(px, py);
        const ColourParts k = SplitColour(v);
        const double y =
            0.2126 * LuzDeParte(k.red) + 0.7152 * LuzDeParte(k.green) + 0.0722 * LuzDeParte(k.blue);
        const double d = c.luz[s] - c.media;
        squares += d * d / 8;
        sum += (2 * c.media + 2 * w * gain * d) / 8 * LuzDeClaridad(low + span * Claridad(y));
      }
      const double cost = c.media * c.media + w * squares - sum;
      best = std::min(best, cost);
      if (c.caracter == text[static_cast<std::size_t>(cell)]) chosen = cost;
    }
    different += chosen > best + 1e-3;
  }
  EXPECT_EQ(different, 0);
}

TEST_F(Formas, FitsTheTonesToTheFont) {
  const Repertorio r = Medir(U" #blrt");
  const AjustesDeFormas fitted{50, 0, true};
  // Levels between 100 and 150 alone still use the darkest and the lightest character; without the fit, they
  // do not.
  const Picture soft =
      Grays({{100, 100, 150, 150}, {100, 100, 150, 150}, {100, 100, 150, 150}, {100, 100, 150, 150}});
  EXPECT_EQ(ConvertTono(r, fitted, 0, soft, {2, 1}), U"# ");
  EXPECT_EQ(ConvertTono(r, plain, 0, soft, {2, 1}), U"bb");
  // One lighter cell among equal ones stands out the more, the more of it the local contrast adds.
  const Repertorio fine = Medir(U" #+b");
  Picture spot = Picture::Filled(18, 36, Rgb(120, 120, 120));
  for (int y = 16; y < 20; ++y)
    std::fill_n(spot.Writable() + y * 18 + 8, 2, PixelOfColour(Rgb(205, 205, 205)));
  EXPECT_EQ(ConvertTono(fine, {50, 0, false}, 0, spot, {9, 9})[40], U'b');
  EXPECT_EQ(ConvertTono(fine, {50, 100, false}, 0, spot, {9, 9})[40], U' ');
}

TEST_F(Formas, FlatAndTinyPicturesGiveOneCharacter) {
  const Repertorio r = Medir(U" #+blrt");
  for (const int level : {0, 70, 128, 255})
    for (const Extent size : {Extent{1, 1}, Extent{1, 9}, Extent{7, 3}})
      for (const auto convert : {ConvertTono, ConvertFormas}) {
        const std::u32string text =
            convert(r, {}, 0, Picture::Filled(1, 1, Rgb(level, level, level)), size, nullptr);
        EXPECT_EQ(text, std::u32string(static_cast<std::size_t>(size.width) * size.height, text[0]));
      }
  // One character alone, and a set without any range.
  EXPECT_EQ(ConvertFormas(Medir(U"+"), {}, 0, Grays({{0, 255}}), {2, 1}), U"++");
}

TEST_F(Formas, SetsOfCharactersAreSortedAndBounded) {
  EXPECT_EQ(JuegoDeCaracteres("b\ta\nb ñ"), U" abñ");
  EXPECT_EQ(JuegoDeCaracteres("  \n"), U"");
  EXPECT_EQ(JuegoDeCaracteres("bloques").size(), 33U);
  EXPECT_EQ(JuegoDeCaracteres("braille").size(), 256U);
  EXPECT_EQ(JuegoDeCaracteres("cajas").back(), U'\u257F');
  EXPECT_FALSE(TodosEnLaPagina(JuegoDeCaracteres("€\u2588")));
  std::string many;
  for (int i = 0; i < 2000; ++i)
    many += {static_cast<char>(0xE4 + i / 1000), static_cast<char>(0x80 + i / 64 % 64),
             static_cast<char>(0x80 + i % 64)};
  EXPECT_EQ(JuegoDeCaracteres(many).size(), kMasCaracteresDeJuego);
}

TEST_F(Formas, TheDriverKeepsEveryRowAndSaysWhatIsUnicode) {
  BasAscii ascii;
  AsciiSettings settings;
  settings.caracteres = JuegoDeCaracteres("#t\u2588");
  RebuildCharacterTables(ascii, settings, surface);
  ascii.AsciiColumns = 2;
  settings.formas = plain;
  PrepararRepertorio(ascii, settings, surface);
  const Picture p = Drawn({"####", "####", "####", "####", "....", "....", "....", "...."});
  GenerateAscii(ascii, settings, p, kFormas);
  EXPECT_EQ(ascii.ProducedText, "##\r\n  ");
  EXPECT_EQ(ascii.ProducedUtf8, "") << "nothing outside the code page was chosen";
  surface.smooth = [](char32_t c, int, int) { return c == U'\u2588' ? 255 : 0; };
  RebuildCharacterTables(ascii, settings, surface);
  PrepararRepertorio(ascii, settings, surface);
  GenerateAscii(ascii, settings, p, kTono);
  EXPECT_EQ(ascii.ProducedText, "??\r\n  ");
  EXPECT_EQ(TextoEnUtf8(ascii), "██\r\n  ");
  GenerateAscii(ascii, settings, p, kGrayscale);
  EXPECT_EQ(ascii.ProducedUtf8, "");
}

TEST_F(Formas, OwnCharactersAndOwnProportionServeTheGrayscaleToo) {
  BasAscii ascii;
  AsciiSettings settings;
  surface.ink['.'] = 1;
  surface.ink['M'] = 8;
  settings.caracteres = JuegoDeCaracteres("M.");
  RebuildCharacterTables(ascii, settings, surface);
  EXPECT_EQ(ascii.GrayToChar[0], 'M');
  EXPECT_EQ(ascii.GrayToChar[255], ' ');
  EXPECT_EQ(ascii.GrayToChar[200], '.');
  ascii.AsciiColumns = 10;
  EXPECT_EQ(ResizedExtent(ascii, {100, 100}, kGrayscale), (Extent{10, 5}));
  ascii.Proporcion = 1;
  EXPECT_EQ(ResizedExtent(ascii, {100, 100}, kFormas), (Extent{10, 10}));
  ascii.AsciiColumns = 20000;
  EXPECT_THROW(ResizedExtent(ascii, {100, 100}, kFormas), TextoExcesivo)
      << "it takes more memory a character";
}
