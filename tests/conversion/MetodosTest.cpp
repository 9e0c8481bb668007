// The outlines and the blocks of six pixels.
#include <algorithm>
#include <gtest/gtest.h>

#include "conversion/ConvertAntiAlias.h"
#include "conversion/ConvertEdges.h"
#include "tests/support/DrawnPicture.h"

using namespace pixmosa;
using test::Drawn;
using Rows = std::vector<std::string>;

TEST(ConvertEdges, EachRuleInItsOrder) {
  struct Row {
    const char* rule;
    Rows rows;  // "#" ink, "." paper, the others neither
    const char* text;
  };
  for (const Row& r : {Row{"one pixel: left and up are paper", {"...", ".#.", "..."}, "   \r\n / \r\n   "},
                       {"2 before 3, 3, 6 between", {".....", ".###.", "....."}, "     \r\n /_\\ \r\n     "},
                       {"vertical line through the picture", {".#.", ".#."}, " | \r\n | "},
                       {"horizontal line through the picture", {"...", "###", "..."}, "   \r\n___\r\n   "},
                       {"the frame counts as ink", {"##", "##"}, "::\r\n::"},
                       {"a block; its upper edge carries the corner on",
                        {"......", ".####.", ".####.", ".####.", "......"},
                        "      \r\n ///\\ \r\n |::| \r\n \\__/ \r\n      "},
                       {"corner at the picture's own corner", {"#.", ".."}, "/ \r\n  "},
                       {"nothing was set before", {"#o"}, "  "},
                       {"the blank of the gray pixel is carried", {".#", "o#"}, " |\r\n  "},
                       {"from the last pixel of one row to the next", {".#", "##", "#o"}, " |\r\n||\r\n| "},
                       {"only pure black is ink", {"1e", "oo"}, "  \r\n  "},
                       {"only pure white is paper", {"e#"}, "  "}}) {
    const Picture p = Drawn(r.rows, {{'#', kBlack},
                                     {'.', kWhite},
                                     {'o', Rgb(90, 90, 90)},
                                     {'1', Rgb(1, 1, 1)},
                                     {'e', Rgb(254, 254, 254)}});
    EXPECT_EQ(ConvertEdges(p, true), r.text) << r.rule;
  }
  EXPECT_EQ(ConvertEdges(Drawn({"###"}), false), "   ");
}

TEST(ConvertAntiAlias, BlocksAndPositions) {
  Palette3x2 numbered, two;  // code 64 + the pattern's number; only the left column and paper
  for (std::size_t i = 0; i < 64; ++i) numbered.Characters[i] = static_cast<char>(64 + i);
  two.Characters[0b101010] = 'L';
  two.Characters[0] = '.';
  EXPECT_EQ(ConvertAntiAlias(Drawn({"#..", "...", "..."}), numbered), std::string(1, 64 + 32));
  EXPECT_EQ(ConvertAntiAlias(Drawn({".#.", "#..", ".#."}), numbered), std::string(1, 64 + 16 + 8 + 1));
  EXPECT_EQ(ConvertAntiAlias(Picture::Filled(3, 2, kBlack), numbered), std::string(1, 64 + 0b111100))
      << "paper outside";
  for (const Colour nearly : {Rgb(1, 0, 0), Rgb(0, 0, 1)})
    EXPECT_EQ(ConvertAntiAlias(Picture::Filled(3, 3, nearly), numbered), "@");
  // Nine pixels across: blocks at 0, 2, 4, 6, 8 stand at 1, 2 (1.67), 2 (2.33), 3, 4 (3.67), which lies
  // outside.
  const auto column = [&](std::string row, std::size_t at) {
    row[at] = '#';
    return ConvertAntiAlias(Drawn({row, row, row}), two);
  };
  const char* texts[] = {"L..", "...", ".L.", "..L", "..."};  // the second: overwritten by the block after it
  for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(column(".........", 2 * i), texts[i]) << i;
  two.Characters[0].reset();
  EXPECT_EQ(column(".........", 2), " L ") << "a missing pattern leaves what was there";
}

// Heights 1..8 give round(H / 3 - 1) + 1 rows: none, 1, 1, 1, 2, 2, 2, 3.
TEST(ConvertAntiAlias, RowsAreCountedFromThirdsOfTheHeight) {
  const char* texts[] = {"", " ", " ", " ", " \r\n ", " \r\n ", " \r\n ", " \r\n \r\n "};
  for (int h = 1; h <= 8; ++h)
    EXPECT_EQ(ConvertAntiAlias(Picture::Filled(3, h, kBlack), {}), texts[h - 1]) << h;
}
