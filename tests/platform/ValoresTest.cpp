// Rounding, fonts, pixels, pictures and the code page.
#include <gtest/gtest.h>

#include "platform/CodePage.h"
#include "platform/Font.h"
#include "platform/Picture.h"
#include "platform/Pixel.h"
#include "platform/Stretch.h"
#include "tests/support/DrawnPicture.h"

using namespace pixmosa;

TEST(Rounding, EachWayOnTiesAndNegatives) {
  struct Row {
    double v;
    int half, truncated;
  };
  for (const Row& r :
       {Row{0.5, 0, 0}, {1.5, 2, 1}, {2.5, 2, 2}, {-0.5, 0, 0}, {-1.5, -2, -1}, {2.51, 3, 2}}) {
    EXPECT_EQ(RoundHalfEven(r.v), r.half) << r.v;
    EXPECT_EQ(Truncate(r.v), r.truncated) << r.v;
  }
  EXPECT_EQ(ClampByte(-1), 0);
  EXPECT_EQ(ClampByte(256), 255);
}

TEST(Font, PointsAndPixels) {
  EXPECT_EQ(PixelHeight({"x", 6}), 8);
  EXPECT_EQ(PixelHeight({"x", 12}), 16);
  EXPECT_EQ(PointsOfPixels(-16), 12);
  EXPECT_EQ(PointsOfPixels(-13), 9);
}

TEST(Pixel, GrayIsThePlainAverageHalfToEvenAndBlackOutside) {
  const std::pair<Colour, int> rows[] = {
      {Rgb(0, 0, 1), 0}, {Rgb(1, 0, 1), 1}, {Rgb(255, 255, 254), 255}, {Rgb(10, 20, 40), 23}, {kNoColour, 0}};
  for (const auto& [colour, gray] : rows) EXPECT_EQ(PixelGray(colour), gray) << colour;
}

TEST(Picture, ColoursHaveRedInTheLowByteAndWritingLeavesCopies) {
  Picture a = Picture::Filled(2, 1, Rgb(1, 2, 3)), b = a;
  EXPECT_EQ(a.Pixels()[0], 0xFF010203U);
  EXPECT_EQ(a.ColourAt(1, 0), 1 + 2 * 256 + 3 * 65536);
  for (const auto& [x, y] : {std::pair{-1, 0}, {2, 0}, {0, -1}, {0, 1}})
    EXPECT_EQ(a.ColourAt(x, y), kNoColour);
  EXPECT_EQ(a.Pixels(), b.Pixels());
  b.Writable()[0] = 0xFF000000U;
  EXPECT_EQ(a.ColourAt(0, 0), Rgb(1, 2, 3));
  EXPECT_EQ(b.ColourAt(1, 0), Rgb(1, 2, 3));
  const std::uint32_t* own = b.Pixels();
  EXPECT_EQ(b.Writable(), own) << "a block of one's own is not copied";
}

TEST(Stretch, TakesPixelsUnderTheCentresWithoutBlending) {
  EXPECT_EQ(StretchPositions(4, 2), (std::vector{1, 3}));
  EXPECT_EQ(StretchPositions(5, 3), (std::vector{0, 2, 4}));
  EXPECT_EQ(StretchPositions(32767, 1), (std::vector{16383}));
  EXPECT_EQ(test::Levels(Stretch(test::Grays({{1, 2}, {3, 4}}), {4, 1})),
            (std::vector<std::vector<int>>{{3, 3, 4, 4}}));
}

TEST(CodePage, BytesAndTheirCharacters) {
  std::string all;
  for (int c = 0; c < 256; ++c) all += static_cast<char>(c);
  EXPECT_EQ(BytesOfUtf8(Utf8OfBytes(all)), all);
  EXPECT_EQ(Utf8OfBytes("\x80\xF1\xAD\x9F"), "€ñ\u00ADŸ");
  EXPECT_EQ(BytesOfUtf8("¿ñ “” ≠"), "\xBF\xF1 \x93\x94 ?");
  for (const char* bad :
       {"\xC3", "\xFF", "\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\x80"})
    EXPECT_EQ(BytesOfUtf8(bad).substr(0, 1), "?") << bad;
  EXPECT_EQ(BytesOfUtf8("\xE2\x82Z"), "?Z") << "one mark for a sequence cut short";
}
