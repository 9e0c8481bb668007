// Every neighbourhood and diffusion formula, written out pixel by pixel with its borders and its order,
// against the row kernels on pictures of noise whose widths leave every kind of remainder.
#include <functional>
#include <gtest/gtest.h>

#include "tests/support/Noise.h"

using namespace pixmosa;
using test::Applied;
using test::Plane;
using test::Put;
using test::S8;
using test::Same;

namespace {

using Formula = std::function<int(const Plane& c, int x, int y, int offset)>;

int Block(const Plane& c, int x, int y, int& spread) {
  int sum = 0;
  for (int j = 0; j < 3; ++j)
    for (int i = 0; i < 3; ++i) sum += c(x + i, y + j);
  spread = 0;
  for (int j = 0; j < 3; ++j)
    for (int i = 0; i < 3; ++i) spread += std::abs(c(x + i, y + j) - sum / 9);
  return sum / 9;
}

int Kuwahara(const Plane& c, int x, int y) {
  int best = 99999, chosen = 0;
  for (const auto& [i, j] : {std::pair{-2, -2}, {0, -2}, {-2, 0}, {0, 0}}) {
    int spread = 0;
    const int mean = Block(c, x + i, y + j, spread);
    if (spread < best) {
      best = spread;
      chosen = mean;
    }
  }
  return chosen;
}

int Nth(const Plane& c, int x, int y, std::size_t n) {
  std::vector<int> v;
  for (int j = -1; j <= 1; ++j)
    for (int i = -1; i <= 1; ++i) v.push_back(c(x + i, y + j));
  std::sort(v.begin(), v.end());
  return v[n];
}

struct Case {
  int effect;
  std::int32_t argument;
  bool inPlace;
  int left, right;  // columns and rows left out at the start and at the end
  Formula formula;
};

const std::int32_t kColour = Rgb(7, 120, 255);

const Case kCases[] = {
    {1, 0, true, 1, 1, [](auto& c, int x, int y, int) { return (c(x, y) * 24 - 2 * S8(c, x, y)) / 8; }},
    {1, 2, true, 1, 1, [](auto& c, int x, int y, int) { return (c(x, y) * 26 - 2 * S8(c, x, y)) / 10; }},
    {1, 100, true, 1, 1, [](auto& c, int x, int y, int) { return (c(x, y) * 124 - 2 * S8(c, x, y)) / 108; }},
    {3, 0, true, 1, 1, [](auto& c, int x, int y, int) { return S8(c, x, y) / 8; }},
    {5, 0, true, 1, 1,
     [](auto& c, int x, int y, int) {
       return (c(x, y) + c(x - 1, y) + c(x + 1, y) + c(x, y - 1) + c(x, y + 1)) / 5;
     }},
    {6, 1, true, 1, 1, [](auto& c, int x, int y, int) { return (c(x, y) * 10 - S8(c, x, y)) / 2; }},
    {6, 100, true, 1, 1, [](auto& c, int x, int y, int) { return (c(x, y) * 109 - S8(c, x, y)) / 101; }},
    {7, kColour, false, 1, 1, [](auto& c, int x, int y, int o) { return 8 * c(x, y) - S8(c, x, y) + o; }},
    {8, kColour, true, 0, 1,
     [](auto& c, int x, int y, int o) { return std::abs(c(x, y) - c(x + 1, y + 1) + o); }},
    {10, kColour, true, 0, 1,
     [](auto& c, int x, int y, int o) { return std::abs(c(x + 1, y + 1) - c(x, y) + o); }},
    {9, kColour, false, 1, 1,
     [](auto& c, int x, int y, int o) {
       return c(x - 1, y - 1) + c(x - 1, y) + c(x - 1, y + 1) - c(x + 1, y - 1) - c(x + 1, y) -
              c(x + 1, y + 1) + o;
     }},
    {11, kColour, false, 1, 1,
     [](auto& c, int x, int y, int o) {
       return c(x + 1, y - 1) + c(x + 1, y) + c(x + 1, y + 1) - c(x - 1, y - 1) - c(x - 1, y) -
              c(x - 1, y + 1) + o;
     }},
    {13, 0, false, 1, 1,
     [](auto& c, int x, int y, int) {
       return (2 * c(x - 1, y - 1) + c(x, y - 1) + c(x - 1, y) + c(x, y) - c(x + 1, y) - c(x, y + 1) -
               2 * c(x + 1, y + 1)) /
                  2 +
              50;
     }},
    {24, 0, false, 2, 2, [](auto& c, int x, int y, int) { return Kuwahara(c, x, y); }},
    {25, 0, false, 1, 1, [](auto& c, int x, int y, int) { return Nth(c, x, y, 8); }},
    {26, 0, false, 1, 1, [](auto& c, int x, int y, int) { return Nth(c, x, y, 0); }},
    {27, 0, false, 1, 1, [](auto& c, int x, int y, int) { return c(x, y) - Nth(c, x, y, 0); }},
    {28, 0, false, 1, 1, [](auto& c, int x, int y, int) { return Nth(c, x, y, 4); }},
};

Picture ByFormula(const Case& k, const Picture& source) {
  Picture result = source;
  for (int y = 1 + k.left; y <= source.Height() - k.right; ++y)
    for (int x = 1 + k.left; x <= source.Width() - k.right; ++x)
      for (const int shift : {0, 8, 16}) {
        const int offset = kColour >> (16 - shift) & 0xFF;
        Put(result, x, y, shift, k.formula(Plane{k.inPlace ? result : source, shift}, x, y, offset));
      }
  return result;
}

struct Weight {
  int dx, dy, w;
};

const std::vector<Weight> kFloydSteinberg = {{1, 0, 7}, {-1, 1, 3}, {0, 1, 5}, {1, 1, 1}};
const std::vector<Weight> kBurkes = {{1, 0, 8}, {2, 0, 4}, {-2, 1, 2}, {-1, 1, 4},
                                     {0, 1, 8}, {1, 1, 4}, {2, 1, 2}};
const std::vector<Weight> kStucki = {{1, 0, 8}, {2, 0, 4},  {-2, 1, 2}, {-1, 1, 4}, {0, 1, 8}, {1, 1, 4},
                                     {2, 1, 2}, {-2, 2, 1}, {-1, 2, 2}, {0, 2, 4},  {1, 2, 2}, {2, 2, 1}};

Picture Diffused(const Picture& s, const std::vector<Weight>& weights, int divisor, int a) {
  const int W = s.Width(), H = s.Height();
  const int mean = test::MeanGray(s);
  std::vector<std::vector<int>> error(H + 1, std::vector<int>(W + 1));
  Picture result = s;
  for (int y = 1; y <= H; ++y)
    for (int x = 1; x <= W; ++x) {
      const int v = ClampByte(test::Gray(s, x, y) + error[y][x] * 10 / a);
      const int o = v < mean ? 0 : 255;
      for (const int shift : {0, 8, 16}) Put(result, x, y, shift, o);
      for (const Weight& n : weights)
        if (x + n.dx >= 1 && x + n.dx <= W && y + n.dy <= H)
          error[y + n.dy][x + n.dx] += n.w * (v - o) / divisor;
    }
  return result;
}

}  // namespace

TEST(Formulas, NeighbourhoodWorkersKeepThemToTheBit) {
  for (const Case& k : kCases)
    for (const Extent& size : test::kSizes) {
      const Picture p = test::Noise(size, size.width);
      EXPECT_TRUE(Same(Applied(k.effect, k.argument, p), ByFormula(k, p)))
          << "effect " << k.effect << " with " << k.argument << " on " << size.width << " x " << size.height;
    }
}

TEST(Formulas, ErrorDiffusionKeepsThemToTheBit) {
  for (const Extent& size : test::kSizes)
    for (const int a : {1, 15, 40}) {
      const Picture p = test::Noise(size, 9);
      EXPECT_TRUE(Same(Applied(21, a, p), Diffused(p, kFloydSteinberg, 16, a))) << size.width << " a " << a;
      EXPECT_TRUE(Same(Applied(22, a, p), Diffused(p, kBurkes, 32, a))) << size.width << " a " << a;
      EXPECT_TRUE(Same(Applied(23, a, p), Diffused(p, kStucki, 42, a))) << size.width << " a " << a;
    }
}

// Draws in the order blue, green, red of each pixel from the top left.
TEST(Formulas, NoiseAddsEachComponentsOwnDraw) {
  for (const int a : {1, 50, 100}) {
    const Picture p = test::Noise({19, 3}, 4);
    Picture expected = p;
    Random random(1);
    for (int y = 1; y <= 3; ++y)
      for (int x = 1; x <= 19; ++x)
        for (const int shift : {0, 8, 16})
          Put(expected, x, y, shift,
              RoundHalfEven(Plane{p, shift}(x, y) + ((2.0 * a + 1) * double{random.Next()} - a)));
    EXPECT_TRUE(Same(Applied(29, a, p), expected)) << a;
  }
}

TEST(Formulas, DiffuseMovesPixelsInPlace) {
  for (const int a : {1, 3, 6, 100}) {
    const Picture p = test::Noise({23, 11}, 5);
    Picture expected = p;
    Random random(1);
    const int half = RoundHalfEven(a / 2.0);
    for (int y = 1; y <= 11; ++y)
      for (int x = 1; x <= 23; ++x) {
        int dx = RoundHalfEven(double{random.Next()} * a - half),
            dy = RoundHalfEven(double{random.Next()} * a - half);
        if (x + dx < 1 || x + dx > 23) dx = 0;
        if (y + dy < 1 || y + dy > 11) dy = 0;
        for (const int shift : {0, 8, 16}) Put(expected, x, y, shift, Plane{expected, shift}(x + dx, y + dy));
      }
    EXPECT_TRUE(Same(Applied(4, a, p), expected)) << a;
  }
}
