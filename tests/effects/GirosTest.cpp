#include <gtest/gtest.h>

#include "effects/Giros.h"
#include "tests/support/DrawnPicture.h"

using namespace pixmosa;
using test::Grays;
using test::Levels;
using Rows = std::vector<std::vector<int>>;

namespace {

Rows Turned(void (*turn)(Picture&), const Rows& rows) {
  ImagenDeTrabajo image;
  image.Cargar(Grays(rows));
  turn(image.picMain);
  EXPECT_EQ(Levels(image.picUndo), rows) << "the shared copy keeps its pixels";
  return Levels(image.picMain);
}

Rows Column(const std::vector<int>& values) {
  Rows rows;
  for (const int v : values) rows.push_back({v});
  return rows;
}

struct Mirror {
  std::vector<int> before, first, second;  // the half nearer to 0 onto the other, and the other way round
};

// Position 0 never takes part. Size 5: round(1.5) = 2, so 1 and 2 pair with 4 and 3; size 7: round(2.5) = 2;
// size 3: round(0.5) = 0, nothing; size 4: only 1 with 3, the middle stays.
const Mirror kMirrors[] = {
    {{1}, {1}, {1}},
    {{1, 2}, {1, 2}, {1, 2}},
    {{1, 2, 3}, {1, 2, 3}, {1, 2, 3}},
    {{1, 2, 3, 4}, {1, 2, 3, 2}, {1, 4, 3, 4}},
    {{1, 2, 3, 4, 5}, {1, 2, 3, 3, 2}, {1, 5, 4, 4, 5}},
    {{1, 2, 3, 4, 5, 6, 7}, {1, 2, 3, 4, 5, 3, 2}, {1, 7, 6, 4, 5, 6, 7}},
    {{1, 2, 3, 4, 5, 6, 7, 8, 9}, {1, 2, 3, 4, 5, 5, 4, 3, 2}, {1, 9, 8, 7, 6, 6, 7, 8, 9}},
};

}  // namespace

TEST(Giros, FlipsAreMirrorPictures) {
  const Rows rows = {{1, 2, 3}, {4, 5, 6}};
  EXPECT_EQ(Turned(FlipHorizontal, rows), (Rows{{3, 2, 1}, {6, 5, 4}}));
  EXPECT_EQ(Turned(FlipVertical, rows), (Rows{{4, 5, 6}, {1, 2, 3}}));
}

TEST(Giros, MirrorsReflectAboutHalfTheSize) {
  for (const Mirror& m : kMirrors) {
    EXPECT_EQ(Turned(MirrorTopToBottom, Column(m.before)), Column(m.first)) << m.before.size();
    EXPECT_EQ(Turned(MirrorBottomToTop, Column(m.before)), Column(m.second)) << m.before.size();
    EXPECT_EQ(Turned(MirrorLeftToRight, {m.before, m.before}), (Rows{m.first, m.first})) << m.before.size();
    EXPECT_EQ(Turned(MirrorRightToLeft, {m.before, m.before}), (Rows{m.second, m.second})) << m.before.size();
  }
}

TEST(Giros, KeepTheUndoCopyAndDoNothingWithoutAPicture) {
  for (const Giro& g : Giros()) {
    ImagenDeTrabajo image;
    Girar(image, g);
    EXPECT_TRUE(image.picMain.IsEmpty());
    image.Cargar(Grays({{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}, {13, 14, 15, 16}}));
    image.picUndo = {};
    Girar(image, g);
    EXPECT_EQ(Levels(image.picUndo)[3][3], 16) << g.control;
    EXPECT_NE(Levels(image.picMain), Levels(image.picUndo)) << g.control;
  }
}
