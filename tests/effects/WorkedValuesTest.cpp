// Values worked out by hand from each effect's formula.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/DrawnPicture.h"
#include "tests/support/Effects.h"

using namespace pixmosa;
using test::Applied;
using test::Grays;
using test::Levels;

namespace {

struct OnePixel {
  int effect;
  std::int32_t argument;
  Colour before, after;
};

constexpr OnePixel kPixels[] = {
    {2, 0, Rgb(10, 20, 30), Rgb(245, 235, 225)},
    {12, 0, Rgb(10, 20, 31), Rgb(20, 20, 20)},
    {14, 10, Rgb(5, 15, 250), Rgb(6, 17, 255)},  // the factor's single precision lies above 1.1
    {14, 50, Rgb(5, 7, 3), Rgb(8, 10, 4)},       // 7.5, 10.5, 4.5 to even
    {14, -50, Rgb(5, 7, 3), Rgb(2, 4, 2)},
    {14, -100, Rgb(5, 7, 255), kBlack},
    {14, 0, Rgb(5, 7, 255), Rgb(5, 7, 255)},
    {14, 100, Rgb(5, 7, 200), Rgb(10, 14, 255)},
    {16, 1, Rgb(1, 2, 3), Rgb(3, 1, 2)},
    {16, 2, Rgb(1, 2, 3), Rgb(2, 3, 1)},
    {16, 3, Rgb(1, 2, 3), Rgb(1, 3, 2)},
    {16, 4, Rgb(1, 2, 3), Rgb(3, 2, 1)},
    {16, 5, Rgb(1, 2, 3), Rgb(2, 1, 3)},
    {16, 0, Rgb(1, 2, 3), Rgb(1, 2, 3)},
    {16, 6, Rgb(1, 2, 3), Rgb(1, 2, 3)},
    {18, Rgb(150, 150, 150), Rgb(149, 149, 149), kBlack},
    {18, Rgb(150, 150, 150), Rgb(150, 149, 149), kWhite},
    {18, Rgb(10, 20, 30), Rgb(9, 19, 29), kBlack},
    {18, Rgb(10, 20, 30), Rgb(9, 19, 30), kWhite},
    {18, 0, kBlack, kWhite},
    {30, 50, Rgb(100, 50, 45), Rgb(118, 42, 35)},  // grey 65; 117.5 and 42.5 to even
    {30, -50, Rgb(100, 50, 45), Rgb(82, 58, 55)},
    {30, 10, Rgb(70, 65, 60), Rgb(71, 65, 59)},  // the factor's single precision lies above 0.1
    {30, -100, Rgb(100, 50, 45), Rgb(65, 65, 65)},
    {30, 100, Rgb(200, 10, 0), Rgb(255, 0, 0)},
    {31, 2, Rgb(64, 1, 0), Rgb(128, 16, 0)},
    {31, 1, Rgb(64, 1, 255), Rgb(64, 1, 255)},
    {31, 0, Rgb(64, 1, 255), Rgb(64, 1, 255)},  // the menu's unused argument does no harm
    {32, 0, kBlack, Rgb(64, 24, 8)},
    {32, 0, kWhite, kWhite},
    {32, 0, Rgb(10, 20, 250), Rgb(107, 67, 51)},  // 3 + 12 + 28 (28.5 to even)
};

using Rows = std::vector<std::vector<int>>;

struct GrayPicture {
  const char* why;
  int effect;
  std::int32_t argument;
  Rows before, after;
};

Rows Ring(int ring, int centre) {
  return {{ring, ring, ring}, {ring, centre, ring}, {ring, ring, ring}};
}

// Four columns whose middle row alone differs from `ground`.
Rows Band(int ground, std::vector<int> middle) {
  return {{ground, ground, ground, ground}, std::move(middle), {ground, ground, ground, ground}};
}

const GrayPicture kPictures[] = {
    {"180", 1, 2, Ring(50, 100), Ring(50, 180)},
    {"sees the new left pixel: 1780 \\ 10, 504 \\ 10", 1, 2, Band(50, {50, 100, 60, 50}),
     Band(50, {50, 178, 50, 50})},
    {"24 c - 2 S8 below 0", 1, 0, Ring(50, 30), Ring(50, 0)},
    {"160 \\ 8, then 20 \\ 8", 3, 0, Band(0, {0, 80, 160, 0}), Band(0, {0, 20, 2, 0})},
    {"240 \\ 5, then 208 \\ 5", 5, 0, Band(0, {0, 80, 160, 0}), Band(0, {0, 48, 41, 0})},
    {"downward: 150 \\ 5, then 80 \\ 5",
     5,
     0,
     {{0, 0, 0}, {0, 100, 0}, {0, 50, 0}, {0, 0, 0}},
     {{0, 0, 0}, {0, 30, 0}, {0, 16, 0}, {0, 0, 0}}},
    {"200 \\ 2, then 50 \\ 2", 6, 1, Band(50, {50, 60, 50, 50}), Band(50, {50, 100, 25, 50})},
    {"amplified less with a = 9: (18 x 60 - 400) \\ 10", 6, 9, Ring(50, 60), Ring(50, 68)},
    {"720 - 800 + 255", 7, kWhite, Ring(100, 90), Ring(100, 175)},
    {"-43 \\ 2 = -21",
     13,
     0,
     {{10, 20, 30}, {40, 50, 61}, {70, 20, 46}},
     {{10, 20, 30}, {40, 29, 61}, {70, 20, 46}}},
    {"blocks end at the border",
     15,
     2,
     {{10, 13, 200}, {11, 13, 201}, {7, 8, 9}},
     {{11, 11, 200}, {11, 11, 200}, {7, 7, 9}}},
    {"mean 100, a = 100: 2 i - 100", 17, 100, {{50, 150}, {80, 120}}, {{0, 200}, {60, 140}}},
    {"carried error -38, 15, -35, on into the next row",
     19,
     0,
     {{100, 100}, {100, 100}},
     {{255, 0}, {255, 0}}},
    {"the centre is sharpened", 19, 0, Ring(100, 200), {{0, 255, 0}, {255, 255, 0}, {255, 0, 255}}},
    {"level 2: white at 1 and 2",
     20,
     0,
     {{16, 16, 16, 16, 16}, {16, 16, 16, 16, 16}, {16, 16, 16, 16, 16}},
     {{255, 0, 0, 0, 255}, {0, 0, 0, 0, 0}, {0, 0, 255, 0, 0}}},
    {"level 8", 20, 0, {{127, 127, 127, 127}, {127, 127, 127, 127}}, {{255, 0, 255, 0}, {0, 255, 0, 255}}},
    {"43 x 10 \\ 15 = 28, -33 x 10 \\ 15 = -22", 21, 15, {{100, 150, 110}}, {{0, 255, 0}}},
    {"downward 5/16", 21, 15, {{100}, {115}, {160}}, {{0}, {255}, {255}}},
    {"8/32 and 4/32", 22, 15, {{100, 150, 110, 120}}, {{0, 255, 0, 255}}},
    {"8/42 and 4/42", 23, 15, {{100, 150, 110, 120}}, {{0, 255, 0, 255}}},
    {"all black has the mean 0", 21, 15, {{0, 0}, {0, 0}}, {{255, 255}, {255, 255}}},
    {"all white stays", 23, 15, {{255, 255}, {255, 255}}, {{255, 255}, {255, 255}}},
    {"the upper right block is the most uniform: 530 \\ 9",
     24,
     0,
     {{0, 0, 60, 60, 60}, {0, 0, 60, 60, 60}, {0, 0, 50, 60, 60}, {0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}},
     {{0, 0, 60, 60, 60}, {0, 0, 60, 60, 60}, {0, 0, 58, 60, 60}, {0, 0, 0, 0, 0}, {0, 0, 0, 0, 0}}},
    {"maximum", 25, 0, {{1, 2, 3}, {4, 5, 6}, {7, 9, 8}}, {{1, 2, 3}, {4, 9, 6}, {7, 9, 8}}},
    {"minimum", 26, 0, {{9, 2, 3}, {4, 5, 6}, {7, 1, 8}}, {{9, 2, 3}, {4, 1, 6}, {7, 1, 8}}},
    {"less the minimum",
     27,
     0,
     {{30, 40, 50}, {60, 100, 70}, {80, 90, 99}},
     {{30, 40, 50}, {60, 70, 70}, {80, 90, 99}}},
    {"median", 28, 0, {{9, 1, 8}, {2, 200, 3}, {7, 4, 6}}, {{9, 1, 8}, {2, 6, 3}, {7, 4, 6}}},
    {"nothing moves by 0", 4, 0, {{1, 2}, {3, 4}}, {{1, 2}, {3, 4}}},
};

Picture Row(const std::vector<Colour>& colours) {
  Picture p(static_cast<int>(colours.size()), 1);
  for (std::size_t x = 0; x < colours.size(); ++x) p.Writable()[x] = PixelOfColour(colours[x]);
  return p;
}

// A teal offset of 0, 120, 120 shows which component gets which.
constexpr Colour kTeal = Rgb(0, 120, 120);

struct Offset {
  int effect;
  Rows before;
  int x, y;
  Colour after;
};

const Offset kOffsets[] = {
    {8, {{100, 7}, {9, 30}}, 0, 0, Rgb(70, 190, 190)},
    {8, {{30, 7}, {9, 100}}, 0, 0, Rgb(70, 50, 50)},
    {8, {{100, 7}, {9, 30}}, 1, 0, Rgb(7, 7, 7)},
    {10, {{100, 7}, {9, 30}}, 0, 0, Rgb(70, 50, 50)},
    {9, {{10, 0, 20}, {30, 99, 40}, {50, 0, 60}}, 1, 1, Rgb(0, 90, 90)},
    {11, {{10, 0, 20}, {30, 99, 40}, {50, 0, 60}}, 1, 1, Rgb(30, 150, 150)},
};

}  // namespace

TEST(WorkedValues, OfOnePixel) {
  for (const OnePixel& c : kPixels)
    EXPECT_EQ(Applied(c.effect, c.argument, Row({c.before})).ColourAt(0, 0), c.after)
        << "effect " << c.effect << " with " << c.argument << " of " << c.before;
}

TEST(WorkedValues, OfSmallGrayPictures) {
  for (const GrayPicture& c : kPictures)
    EXPECT_EQ(Levels(Applied(c.effect, c.argument, Grays(c.before))), c.after)
        << "effect " << c.effect << ": " << c.why;
}

TEST(WorkedValues, OffsetsOfTheComponents) {
  for (const Offset& c : kOffsets)
    EXPECT_EQ(Applied(c.effect, kTeal, Grays(c.before)).ColourAt(c.x, c.y), c.after) << "effect " << c.effect;
}

// Mean grey (110 + 90) \ 2 = 100, so k = 2 i - 100. The first pixel becomes 300, 140, -80: blue gives -40 to
// red and green, then red's 5 too many give 2 to each.
TEST(WorkedValues, ContrastHandsOnWhatIsCutOff) {
  const Picture p = Applied(17, 100, Row({Rgb(200, 120, 10), Rgb(90, 90, 90)}));
  EXPECT_EQ(p.ColourAt(0, 0), Rgb(255, 102, 2));
  EXPECT_EQ(p.ColourAt(1, 0), Rgb(80, 80, 80));
}

TEST(WorkedValues, ComponentsOfTheMaximumComeFromDifferentNeighbours) {
  Picture p = Picture::Filled(3, 3, Rgb(5, 5, 5));
  p.Writable()[0] = PixelOfColour(Rgb(90, 0, 5));
  p.Writable()[7] = PixelOfColour(Rgb(0, 80, 5));
  EXPECT_EQ(Applied(25, 0, p).ColourAt(1, 1), Rgb(90, 80, 5));
  EXPECT_EQ(Applied(26, 0, p).ColourAt(1, 1), Rgb(0, 0, 5));
}
