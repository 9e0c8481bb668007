#include <algorithm>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <numeric>

#include "platform/qt/QtFont.h"
#include "platform/qt/QtTextSurface.h"
#include "tests/support/GuiApplication.h"

using namespace pixmosa;

namespace {

int Ink(const Picture& cell) {
  int n = 0;
  for (std::size_t i = 0; i < cell.PixelCount(); ++i) {
    const Colour c = ColourOfPixel(cell.Pixels()[i]);
    EXPECT_TRUE(c == kBlack || c == kWhite) << "a pixel is ink or paper";
    n += c == kBlack;
  }
  return n;
}

}  // namespace

TEST(QtTextSurface, EveryCharacterIsInkOrPaperInsideItsCell) {
  test::NeedGuiApplication();
  QtTextSurface surface;
  const Font font{"DejaVu Sans Mono", 12};
  const Extent cell = surface.GetTextSize(font, "A");
  EXPECT_GE(cell.height, 16);
  EXPECT_EQ(surface.GetTextSize(font, "AAAA").width, 4 * cell.width);
  const Picture all = surface.PrintCharacters(font, cell, 32, 255);
  EXPECT_EQ(all.Size(), (Extent{cell.width, 224 * cell.height}));
  EXPECT_GT(Ink(all), 1000);
  const auto ink = [&](int c) { return Ink(surface.PrintCharacters(font, cell, c, c)); };
  for (const int blank : {32, 127, 129, 160}) EXPECT_EQ(ink(blank), 0);
  EXPECT_GT(ink('@'), ink('.'));
  EXPECT_EQ(ink(0xAD), ink('-')) << "the soft hyphen shows as a hyphen";
  EXPECT_GT(ink(0x80), 0) << "the euro sign of the code page";
}

TEST(QtTextSurface, StandsInForMissingFonts) {
  test::NeedGuiApplication();
  QtTextSurface surface;
  if (!FontInstalled("Lucida Console")) {
    EXPECT_EQ(FamilyFor("Lucida Console"), "DejaVu Sans Mono");
    EXPECT_EQ(surface.GetTextSize({}, "A"), surface.GetTextSize({"DejaVu Sans Mono", 6}, "A"));
  }
  const auto fonts = surface.ListFixedFonts();
  EXPECT_THAT(fonts, testing::Contains("DejaVu Sans Mono"));
  EXPECT_THAT(fonts, testing::Not(testing::Contains("DejaVu Sans"))) << "proportional fonts stay out";
}

TEST(QtTextSurface, DrawsSmoothCharactersAndOutlinesOverThePrintedOnes) {
  test::NeedGuiApplication();
  QtTextSurface surface;
  const Font font{"DejaVu Sans Mono", 24};
  const Extent cell = surface.GetTextSize(font, "A");
  const auto area = static_cast<std::size_t>(cell.width) * cell.height;
  const auto share = [](const std::vector<std::uint8_t>& ink) {
    return std::accumulate(ink.begin(), ink.end(), 0.0) / 255 / ink.size();
  };
  for (const char32_t c : std::u32string_view(U"#gW")) {
    const double printed =
        Ink(surface.PrintCharacters(font, cell, static_cast<int>(c), static_cast<int>(c))) * 1.0 / area;
    const auto one = surface.PrintSmooth(font, cell, 1, {&c, 1}),
               three = surface.PrintSmooth(font, cell, 3, {&c, 1});
    ASSERT_EQ(one.size(), area);
    ASSERT_EQ(three.size(), 9 * area);
    EXPECT_NEAR(share(one), printed, 0.04);
    EXPECT_NEAR(share(three), share(one), 0.02) << "the same shape at every scale";
    EXPECT_TRUE(std::any_of(one.begin(), one.end(), [](int v) { return v > 0 && v < 255; })) << "smooth";
    EXPECT_EQ(surface.Outline(font, cell, c)[0], 'M');
  }
  EXPECT_EQ(share(surface.PrintSmooth(font, cell, 1, U" \x81\x7f")), 0);
  EXPECT_EQ(surface.Outline(font, cell, U' '), "");
}
