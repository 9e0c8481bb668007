#include <gtest/gtest.h>

#include "conversion/ConvertEdges.h"
#include "tests/support/DrawnPicture.h"

using namespace pixmosa;
using test::Drawn;
using test::Grays;

namespace {

// "#" ink, "." paper, "o" neither.
Picture Shape(const std::vector<std::string>& rows) {
  return Drawn(rows, {{'#', kBlack}, {'.', kWhite}, {'o', Rgb(90, 90, 90)}});
}

}  // namespace

TEST(ConvertEdges, EachRuleInItsOrder) {
  struct Row {
    const char* rule;
    std::vector<std::string> rows;
    std::string text;
  };
  for (const Row& r : {
           Row{"one pixel: left and up are paper", {"...", ".#.", "..."}, "   \r\n / \r\n   "},
           {"2 before 3, 3, 6 between", {".....", ".###.", "....."}, "     \r\n /_\\ \r\n     "},
           {"vertical line through the picture", {".#.", ".#.", ".#."}, " | \r\n | \r\n | "},
           {"horizontal line through the picture", {"...", "###", "..."}, "   \r\n___\r\n   "},
           {"the frame counts as ink", {"##", "##"}, "::\r\n::"},
           {"a block; its upper edge carries the corner on",
            {"......", ".####.", ".####.", ".####.", "......"},
            "      \r\n ///\\ \r\n |::| \r\n \\__/ \r\n      "},
           {"corner at the picture's own corner", {"#.", ".."}, "/ \r\n  "},
       }) {
    EXPECT_EQ(ConvertEdges(Shape(r.rows), true), r.text) << r.rule;
  }
}

TEST(ConvertEdges, GrayNeighboursKeepTheCharacterBefore) {
  // The ink in the middle sees no paper and one neighbour that is not ink.
  EXPECT_EQ(ConvertEdges(Shape({"o"}), true), " ");
  EXPECT_EQ(ConvertEdges(Shape({"#o"}), true), "  ") << "nothing was set before";
  EXPECT_EQ(ConvertEdges(Shape({".#", "o#"}), true), " |\r\n  ") << "the blank of the gray pixel is carried";
  EXPECT_EQ(ConvertEdges(Shape({".#", "##", "#o"}), true), " |\r\n||\r\n| ")
      << "from the last pixel of one row to the first of the next";
}

TEST(ConvertEdges, FillAndExtremes) {
  EXPECT_EQ(ConvertEdges(Shape({"###"}), false), "   ");
  EXPECT_EQ(ConvertEdges(Shape({"...", "..."}), true), "   \r\n   ");
  EXPECT_EQ(ConvertEdges(Grays({{1, 254}, {128, 2}}), true), "  \r\n  ") << "only pure black is ink";
}
