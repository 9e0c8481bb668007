#include <gtest/gtest.h>

#include "platform/Font.h"
#include "platform/Pixel.h"

using namespace pixmosa;

TEST(Rounding, EachWayOnTiesAndNegatives) {
  struct Row {
    double v;
    int half, truncated;
  };
  for (const Row& r : {Row{0.5, 0, 0},
                       {1.5, 2, 1},
                       {2.5, 2, 2},
                       {-0.5, 0, 0},
                       {-1.5, -2, -1},
                       {2.51, 3, 2},
                       {-2.5, -2, -2}}) {
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
