#include <gtest/gtest.h>

#include "platform/Picture.h"
#include "platform/Pixel.h"
#include "platform/Stretch.h"
#include "tests/support/DrawnPicture.h"

using namespace pixmosa;
using test::Grays;
using test::Levels;

TEST(Picture, ColourNumbersHaveRedInTheLowByte) {
  Picture p = Picture::Filled(2, 1, Rgb(1, 2, 3));
  EXPECT_EQ(p.Pixels()[0], 0xFF010203U);
  EXPECT_EQ(p.ColourAt(1, 0), 1 + 2 * 256 + 3 * 65536);
  for (const auto& [x, y] : {std::pair{-1, 0}, {2, 0}, {0, -1}, {0, 1}})
    EXPECT_EQ(p.ColourAt(x, y), kNoColour);
}

TEST(Pixel, GrayIsThePlainAverageHalfToEvenAndBlackOutside) {
  EXPECT_EQ(PixelGray(Rgb(0, 0, 1)), 0);
  EXPECT_EQ(PixelGray(Rgb(1, 0, 1)), 1);
  EXPECT_EQ(PixelGray(Rgb(255, 255, 254)), 255);
  EXPECT_EQ(PixelGray(Rgb(10, 20, 40)), 23);
  EXPECT_EQ(PixelGray(kNoColour), 0);
}

TEST(Picture, WritingLeavesCopiesAsTheyWere) {
  Picture a = Picture::Filled(3, 2, kWhite);
  Picture b = a;
  EXPECT_EQ(a.Pixels(), b.Pixels());
  b.Writable()[0] = 0xFF000000U;
  EXPECT_NE(a.Pixels(), b.Pixels());
  EXPECT_EQ(a.ColourAt(0, 0), kWhite);
  EXPECT_EQ(b.ColourAt(0, 0), kBlack);
  const std::uint32_t* own = b.Pixels();
  EXPECT_EQ(b.Writable(), own) << "a block of one's own is not copied";
}

TEST(Stretch, TakesPixelsUnderTheCentresWithoutBlending) {
  EXPECT_EQ(StretchPositions(4, 2), (std::vector{1, 3}));
  EXPECT_EQ(StretchPositions(2, 6), (std::vector{0, 0, 0, 1, 1, 1}));
  EXPECT_EQ(StretchPositions(5, 3), (std::vector{0, 2, 4}));
  EXPECT_EQ(StretchPositions(32767, 1), (std::vector{16383}));
  EXPECT_EQ(Levels(Stretch(Grays({{1, 2}, {3, 4}}), {4, 1})), (std::vector<std::vector<int>>{{3, 3, 4, 4}}));
}
