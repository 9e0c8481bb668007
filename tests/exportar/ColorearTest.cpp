#include <gtest/gtest.h>

#include "exportar/Colorear.h"
#include "tests/support/DrawnPicture.h"

using namespace pixmosa;
using test::Grays;
using test::Levels;

using Filas = std::vector<std::vector<int>>;

TEST(Colorear, MeansAreOfLightByArea) {
  const struct {
    const char* what;
    Filas picture;
    Extent cells;
    Filas means;
  } cases[] = {
      // Half the light of white is level 188; a third 156, as (1.055 x^(1 / 2.4) - 0.055) 255 says.
      {"black and white", {{0, 255}}, {1, 1}, {{188}}},
      {"a pixel shared by two boxes", {{0, 255, 0}}, {2, 1}, {{156, 156}}},
      {"the same downwards", {{0}, {255}, {0}}, {1, 2}, {{156}, {156}}},
      {"both ways: 1/3, and (1/2 x 1/3 + 1) / 1.5 = 7/9",
       {{0, 255, 0}, {0, 255, 0}, {255, 255, 255}},
       {2, 2},
       {{156, 156}, {228, 228}}},
      {"fewer pixels than cells", {{10, 200}}, {4, 2}, {{10, 10, 200, 200}, {10, 10, 200, 200}}},
      {"whole boxes", {{1, 1, 7, 7}, {1, 1, 7, 7}}, {2, 1}, {{1, 7}}},
  };
  for (const auto& c : cases) EXPECT_EQ(Levels(MediasDeCeldas(Grays(c.picture), c.cells)), c.means) << c.what;
}

TEST(Colorear, OneColourStaysAsItIs) {
  for (int level = 0; level < 256; ++level) {
    const Colour c = Rgb(level, 255 - level, level / 2);
    const Picture means = MediasDeCeldas(Picture::Filled(7, 5, c), {3, 2});
    ASSERT_EQ(means.ColourAt(0, 0), c);
    ASSERT_EQ(means.ColourAt(2, 1), c);
  }
}

TEST(Colorear, InksComeFromTheRowsNamed) {
  Dibujo d = DibujoDeUtf8("abc\nde\n");
  const Picture means = test::Drawn({"#.", ".."}, {{'#', Rgb(1, 2, 3)}, {'.', Rgb(4, 5, 6)}});
  Colorear(d, means);
  EXPECT_EQ(d.filas[0], (Fila{{U'a', Rgb(1, 2, 3)}, {U'b', Rgb(4, 5, 6)}, {U'c'}}));
  Colorear(d, means, std::vector{1, 0});
  EXPECT_EQ(d.filas[0][0].tinta, Rgb(4, 5, 6));
  EXPECT_EQ(d.filas[1][0].tinta, Rgb(1, 2, 3));
  EXPECT_EQ(d.filas[1][1].tinta, Rgb(4, 5, 6));
}
