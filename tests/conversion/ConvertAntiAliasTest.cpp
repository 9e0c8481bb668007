#include <gtest/gtest.h>

#include "conversion/ConvertAntiAlias.h"
#include "tests/support/DrawnPicture.h"

using namespace pixmosa;
using test::Drawn;

namespace {

// Every pattern has a character of its own: code 64 + the pattern's number.
Palette3x2 Numbered() {
  Palette3x2 p;
  for (std::size_t i = 0; i < 64; ++i) p.Characters[i] = static_cast<char>(64 + i);
  return p;
}

}  // namespace

TEST(ConvertAntiAlias, ReadsBlocksInReadingOrder) {
  EXPECT_EQ(ConvertAntiAlias(Drawn({"#..", "...", "..."}), Numbered()), std::string(1, 64 + 32));
  EXPECT_EQ(ConvertAntiAlias(Drawn({".#.", "#..", ".#."}), Numbered()), std::string(1, 64 + 16 + 8 + 1));
}

TEST(ConvertAntiAlias, LaterBlocksWinAtTheSamePosition) {
  // Nine pixels across: blocks at 0, 2, 4, 6, 8 stand at 1, 2 (1.67), 2 (2.33), 3, 4 (3.67); position 4 lies
  // outside.
  Palette3x2 p;
  p.Characters[0b101010] = 'L';  // left column of a block is ink
  p.Characters[0] = '.';
  const std::string at0 = "#........", at2 = "..#......", at4 = "....#....", at6 = "......#..";
  EXPECT_EQ(ConvertAntiAlias(Drawn({at0, at0, at0}), p), "L..");
  EXPECT_EQ(ConvertAntiAlias(Drawn({at2, at2, at2}), p), "...") << "overwritten by the block after it";
  EXPECT_EQ(ConvertAntiAlias(Drawn({at4, at4, at4}), p), ".L.");
  EXPECT_EQ(ConvertAntiAlias(Drawn({at6, at6, at6}), p), "..L");
  p.Characters[0].reset();
  EXPECT_EQ(ConvertAntiAlias(Drawn({at2, at2, at2}), p), " L ") << "a missing pattern leaves what was there";
}

TEST(ConvertAntiAlias, RowsAreCountedFromThirdsOfTheHeight) {
  // Heights 1..8 give round(H / 3 - 1) + 1 rows: none, 1, 1, 1, 2, 2, 2, 3.
  const std::vector<std::size_t> breaks = {0, 0, 0, 0, 1, 1, 1, 2};
  for (int h = 1; h <= 8; ++h) {
    const std::string text = ConvertAntiAlias(Picture::Filled(3, h, kBlack), Numbered());
    EXPECT_EQ(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')),
              breaks[static_cast<std::size_t>(h - 1)])
        << h;
    EXPECT_EQ(text.empty(), h == 1);
  }
}

TEST(ConvertAntiAlias, OnlyExactBlackIsInkAndOutsideIsPaper) {
  EXPECT_EQ(ConvertAntiAlias(Picture::Filled(3, 3, Rgb(1, 0, 0)), Numbered()), "@");
  // Two rows: the block's third row lies outside. Three pixels across: the block at 2 stands at position 2
  // of 1.
  EXPECT_EQ(ConvertAntiAlias(Picture::Filled(3, 2, kBlack), Numbered()), std::string(1, 64 + 0b111100));
}
