// Every formula of a pixel's colour and of black and white, written out pixel by pixel.
#include <array>
#include <cmath>
#include <gtest/gtest.h>

#include "tests/support/Noise.h"

using namespace pixmosa;
using test::Applied;
using test::Gray;
using test::Plane;
using test::Put;
using test::Same;

namespace {

// The nearest number of single precision.
double Single(double v) {
  const float single = v;
  return single;
}

// What is cut off one part goes by halves to the other two, blue first, until all lie in range.
std::array<int, 3> Spread(std::array<int, 3> c) {
  const auto all = [&](auto holds) { return holds(c[0]) && holds(c[1]) && holds(c[2]); };
  while (!all([](int v) { return v >= 0 && v <= 255; })) {
    if (all([](int v) { return v <= 0; })) {
      c = {0, 0, 0};
    } else if (all([](int v) { return v >= 255; })) {
      c = {255, 255, 255};
    } else {
      for (std::size_t i = 0; i < 3; ++i) {
        const int excess = c[i] < 0 ? c[i] : std::max(c[i] - 255, 0);
        c[i] -= excess;
        c[(i + 1) % 3] += excess / 2;
        c[(i + 2) % 3] += excess / 2;
      }
    }
  }
  return c;
}

Picture Contrasted(const Picture& p, int a) {
  Picture result = p;
  const int m = test::MeanGray(p);
  const double f = Single((a + 100) / 100.0);
  for (int y = 1; y <= p.Height(); ++y)
    for (int x = 1; x <= p.Width(); ++x) {
      const auto k = [&](int shift) { return RoundHalfEven((Plane{p, shift}(x, y) - m) * f + m); };
      const std::array<int, 3> c = Spread({k(0), k(8), k(16)});
      for (int i = 0; i < 3; ++i) Put(result, x, y, 8 * i, c[i]);
    }
  return result;
}

void PutTone(Picture& p, int x, int y, bool white) {
  for (const int shift : {0, 8, 16}) Put(p, x, y, shift, white ? 255 : 0);
}

Picture Thresholded(const Picture& p, Colour t) {
  Picture result = p;
  for (int y = 1; y <= p.Height(); ++y)
    for (int x = 1; x <= p.Width(); ++x) {
      const auto below = [&](int shift) { return Plane{p, shift}(x, y) < (t >> (16 - shift) & 255); };
      PutTone(result, x, y, !(below(16) && below(8) && below(0)));
    }
  return result;
}

Picture SharpenedAndCarried(const Picture& p, int) {
  Picture result = p;
  const int W = p.Width(), H = p.Height(), m = test::MeanGray(p);
  int e = 0;
  for (int y = 1; y <= H; ++y)
    for (int x = 1; x <= W; ++x) {
      int sum = 0;
      for (const int shift : {0, 8, 16}) {
        const Plane c{p, shift};
        const bool border = x == 1 || y == 1 || x == W || y == H;
        sum += border ? c(x, y) : ClampByte((10 * c(x, y) - test::S8(c, x, y)) / 2);
      }
      const int g = ClampByte(sum / 3 + e);
      PutTone(result, x, y, g >= m);
      e = (g - (g < m ? 0 : 255)) / 4;
    }
  return result;
}

Picture Ordered(const Picture& p, int) {
  constexpr int kM[4][4] = {{1, 13, 4, 16}, {9, 5, 12, 8}, {3, 15, 2, 14}, {11, 7, 10, 6}};
  Picture result = p;
  for (int y = 1; y <= p.Height(); ++y)
    for (int x = 1; x <= p.Width(); ++x)
      PutTone(result, x, y, Gray(p, x, y) / 16 + 1 >= kM[(y - 1) % 4][(x - 1) % 4]);
  return result;
}

// Every level of every part.
Picture EveryLevel() {
  Picture p(256, 1);
  for (int i = 0; i < 256; ++i) p.Writable()[i] = Unir(i, 255 - i, i * 7 & 0xFF);
  return p;
}

}  // namespace

TEST(Colours, ContrastAndMethods1To3HoldToTheBit) {
  struct Row {
    int effect;
    Picture (*formula)(const Picture&, int a);
    std::vector<int> arguments;
  };
  for (const Row& r : {Row{17, Contrasted, {-100, -37, 0, 10, 50, 77, 100}},
                       {18, Thresholded, {Rgb(150, 150, 150), Rgb(99, 200, 250), kWhite}},
                       {19, SharpenedAndCarried, {0}},
                       {20, Ordered, {0}}})
    for (const Extent& size : test::kSizes)
      for (const std::uint64_t seed : {1, 2, 3})
        for (const int a : r.arguments) {
          const Picture p = test::Noise(size, seed);
          EXPECT_TRUE(Same(Applied(r.effect, a, p), r.formula(p, a)))
              << "effect " << r.effect << " with " << a << " on " << size.width << " x " << size.height;
        }
}

TEST(Colours, FormulasOfOnePartHoldForEveryLevelAndArgument) {
  struct Row {
    int effect, from, to;
    double (*formula)(int c, int gray, int a);
  };
  const Picture p = EveryLevel();
  for (const Row& r :
       {Row{12, 0, 0, [](int, int gray, int) -> double { return gray; }},
        {14, -100, 100, [](int c, int, int a) { return c * Single((a + 100) / 100.0); }},
        {30, -100, 100, [](int c, int gray, int a) { return (c - gray) * Single(a / 100.0) + c; }},
        {31, 1, 100, [](int c, int, int a) { return std::pow(c / 255.0, 1.0 / a) * 255.0; }}})
    for (int a = r.from; a <= r.to; ++a) {
      const Picture after = Applied(r.effect, a, p);
      for (int x = 1; x <= 256; ++x)
        for (const int shift : {0, 8, 16})
          ASSERT_EQ((Plane{after, shift}(x, 1)),
                    ClampByte(RoundHalfEven(r.formula(Plane{p, shift}(x, 1), Gray(p, x, 1), a))))
              << "effect " << r.effect << " with " << a;
    }
}

TEST(Colours, OldPhotoRoundsEachShareOfTheLuminance) {
  const Picture p = EveryLevel();
  const Picture old = Applied(32, 0, p);
  for (int x = 1; x <= 256; ++x) {
    const int l = RoundHalfEven(Plane{p, 0}(x, 1) * 0.114) + RoundHalfEven(Plane{p, 8}(x, 1) * 0.587) +
                  RoundHalfEven(Plane{p, 16}(x, 1) * 0.299);
    ASSERT_EQ(old.ColourAt(x - 1, 0),
              Rgb(std::min(l + 64, 255), std::min(l + 24, 255), std::min(l + 8, 255)));
  }
}
