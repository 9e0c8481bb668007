// Values worked out by hand, where no slow formula stands beside the worker or an oddity is worth a word.
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
    {16, 1, Rgb(1, 2, 3), Rgb(3, 1, 2)},
    {16, 2, Rgb(1, 2, 3), Rgb(2, 3, 1)},
    {16, 3, Rgb(1, 2, 3), Rgb(1, 3, 2)},
    {16, 4, Rgb(1, 2, 3), Rgb(3, 2, 1)},
    {16, 5, Rgb(1, 2, 3), Rgb(2, 1, 3)},
    {16, 0, Rgb(1, 2, 3), Rgb(1, 2, 3)},
    {16, 6, Rgb(1, 2, 3), Rgb(1, 2, 3)},
    {18, 0, kBlack, kWhite},
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

const GrayPicture kPictures[] = {
    {"nothing moves by 0", 4, 0, {{1, 2}, {3, 4}}, {{1, 2}, {3, 4}}},
    {"blocks end at the border",
     15,
     2,
     {{10, 13, 200}, {11, 13, 201}, {7, 8, 9}},
     {{11, 11, 200}, {11, 11, 200}, {7, 7, 9}}},
    {"43 x 10 \\ 15 = 28, -33 x 10 \\ 15 = -22", 21, 15, {{100, 150, 110}}, {{0, 255, 0}}},
    {"all black has the mean 0", 21, 15, {{0, 0}, {0, 0}}, {{255, 255}, {255, 255}}},
    {"all white stays", 23, 15, {{255, 255}, {255, 255}}, {{255, 255}, {255, 255}}},
};

}  // namespace

TEST(WorkedValues, OfOnePixel) {
  for (const OnePixel& c : kPixels)
    EXPECT_EQ(Applied(c.effect, c.argument, Picture::Filled(1, 1, c.before)).ColourAt(0, 0), c.after)
        << "effect " << c.effect << " with " << c.argument << " of " << c.before;
}

TEST(WorkedValues, OfSmallGrayPictures) {
  for (const GrayPicture& c : kPictures)
    EXPECT_EQ(Levels(Applied(c.effect, c.argument, Grays(c.before))), c.after)
        << "effect " << c.effect << ": " << c.why;
}
