#include <gmock/gmock.h>
#include <gtest/gtest.h>

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
