// Every effect's formula, written out pixel by pixel with its borders and its order, against the workers on
// pictures of noise whose widths leave every kind of remainder.
#include <array>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>

#include "tests/support/Noise.h"

using namespace pixmosa;
using test::Applied;
using test::Plane;
using test::Put;

namespace {

// One part of a pixel with its surroundings, and the argument.
struct At {
  Plane plane;
  int x, y, a;
  int operator()(int dx, int dy) const { return plane(x + dx, y + dy); }
  int Own() const { return plane(x, y); }
  int S8() const { return test::S8(plane, x, y); }
  int Column(int dx) const { return (*this)(dx, -1) + (*this)(dx, 0) + (*this)(dx, 1); }
  int Gray() const { return test::Gray(plane.p, x, y); }
  int Offset() const { return a >> (16 - plane.shift) & 0xFF; }  // red lies lowest in a colour
  int Nth(std::size_t n) const {
    std::vector<int> v;
    for (int i = 0; i < 9; ++i) v.push_back((*this)(i % 3 - 1, i / 3 - 1));
    std::sort(v.begin(), v.end());
    return v[n];
  }
};

using Formula = std::function<Picture(const Picture&, int a)>;
using Cell = std::function<double(const At&)>;

// Part by part, but for the first `left` and the last `right` rows and columns.
Formula Cells(int left, int right, bool inPlace, const Cell& cell) {
  return [=](const Picture& p, int a) {
    Picture result = p;
    for (int y = 1 + left; y <= p.Height() - right; ++y)
      for (int x = 1 + left; x <= p.Width() - right; ++x)
        for (const int shift : {0, 8, 16})
          Put(result, x, y, shift, RoundHalfEven(cell({{inPlace ? result : p, shift}, x, y, a})));
    return result;
  };
}
Formula InPlace(const Cell& cell) {
  return Cells(1, 1, true, cell);
}
Formula Interior(const Cell& cell) {
  return Cells(1, 1, false, cell);
}
Formula Pixels(const Cell& cell) {
  return Cells(0, 0, false, cell);
}

// The nearest number of single precision.
double Single(double v) {
  return static_cast<float>(v);
}

// What is cut off one part goes by halves to the other two, blue first, until all lie in range.
std::array<int, 3> Spread(std::array<int, 3> c) {
  const auto all = [&](auto holds) { return holds(c[0]) && holds(c[1]) && holds(c[2]); };
  while (!all([](int v) { return v >= 0 && v <= 255; })) {
    if (all([](int v) { return v <= 0; })) return {0, 0, 0};
    if (all([](int v) { return v >= 255; })) return {255, 255, 255};
    for (std::size_t i = 0; i < 3; ++i) {
      const int excess = c[i] < 0 ? c[i] : std::max(c[i] - 255, 0);
      c[i] -= excess;
      c[(i + 1) % 3] += excess / 2;
      c[(i + 2) % 3] += excess / 2;
    }
  }
  return c;
}

Picture Contrasted(const Picture& p, int a) {
  const double f = Single((a + 100) / 100.0), m = test::MeanGray(p);
  return Pixels([&](const At& c) {
    const auto k = [&](int shift) { return RoundHalfEven((Plane{p, shift}(c.x, c.y) - m) * f + m); };
    return Spread({k(0), k(8), k(16)})[static_cast<std::size_t>(c.plane.shift / 8)];
  })(p, a);
}

Picture SharpenedAndCarried(const Picture& p, int) {
  const Picture sharp = Interior([](const At& c) { return (10 * c.Own() - c.S8()) / 2; })(p, 0);
  Picture result = p;
  int e = 0;
  for (int y = 1; y <= p.Height(); ++y)
    for (int x = 1; x <= p.Width(); ++x) {
      const int g = ClampByte(test::Gray(sharp, x, y) + e), out = g < test::MeanGray(p) ? 0 : 255;
      for (const int shift : {0, 8, 16}) Put(result, x, y, shift, out);
      e = (g - out) / 4;
    }
  return result;
}

// Shares of the error: the weights of the rest of the row and of the rows below, two columns on either side.
Formula Diffused(const std::vector<std::array<int, 5>>& weights, int divisor) {
  return [=](const Picture& s, int a) {
    const int mean = test::MeanGray(s);
    std::vector<std::vector<int>> error(s.Height() + 3, std::vector<int>(s.Width() + 5));
    Picture result = s;
    for (int y = 1; y <= s.Height(); ++y)
      for (int x = 1; x <= s.Width(); ++x) {
        const int v = ClampByte(test::Gray(s, x, y) + error[y][x + 2] * 10 / a), o = v < mean ? 0 : 255;
        for (const int shift : {0, 8, 16}) Put(result, x, y, shift, o);
        for (std::size_t j = 0; j < weights.size(); ++j)
          for (std::size_t i = 0; i < 5; ++i) error[y + j][x + i] += weights[j][i] * (v - o) / divisor;
      }
    return result;
  };
}

Picture Moved(const Picture& p, int a) {
  Picture result = p;
  Random random(1);
  const auto draw = [&](int at, int size) {
    const int to = at + RoundHalfEven(double{random.Next()} * a - RoundHalfEven(a / 2.0));
    return to < 1 || to > size ? at : to;
  };
  for (int y = 1; y <= p.Height(); ++y)
    for (int x = 1; x <= p.Width(); ++x) {
      const int fromX = draw(x, p.Width()), fromY = draw(y, p.Height());
      for (const int shift : {0, 8, 16}) Put(result, x, y, shift, Plane{result, shift}(fromX, fromY));
    }
  return result;
}

// Draws in the order blue, green, red of each pixel from the top left.
Picture Noisy(const Picture& p, int a) {
  Random random(1);
  return Pixels([&](const At& c) { return c.Own() + ((2.0 * a + 1) * double{random.Next()} - a); })(p, a);
}

int Kuwahara(const At& c) {
  int best = 99999, chosen = 0;
  for (const auto& [dx, dy] : {std::pair{-1, -1}, {1, -1}, {-1, 1}, {1, 1}}) {
    const At centre{c.plane, c.x + dx, c.y + dy, 0};
    const int mean = (centre.S8() + centre.Own()) / 9;
    int spread = 0;
    for (std::size_t n = 0; n < 9; ++n) spread += std::abs(centre.Nth(n) - mean);
    if (spread < best) chosen = mean;
    best = std::min(best, spread);
  }
  return chosen;
}

int BlockMean(const At& c) {
  const int left = (c.x - 1) / c.a * c.a, top = (c.y - 1) / c.a * c.a;
  int sum = 0, count = 0;
  for (int y = top + 1; y <= std::min(top + c.a, c.plane.p.Height()); ++y)
    for (int x = left + 1; x <= std::min(left + c.a, c.plane.p.Width()); ++x, ++count) sum += c.plane(x, y);
  return sum / count;
}

int Threshold(const At& c) {
  const auto below = [&](int shift) { return At{{c.plane.p, shift}, c.x, c.y, c.a}; };
  for (const At& part : {below(0), below(8), below(16)})
    if (part.Own() >= part.Offset()) return 255;
  return 0;
}

int Ordered(const At& c) {
  constexpr int kM[4][4] = {{1, 13, 4, 16}, {9, 5, 12, 8}, {3, 15, 2, 14}, {11, 7, 10, 6}};
  return c.Gray() / 16 + 1 >= kM[(c.y - 1) % 4][(c.x - 1) % 4] ? 255 : 0;
}

int Old(const At& c) {
  const auto share = [&](int shift, double of) {
    return RoundHalfEven(Plane{c.plane.p, shift}(c.x, c.y) * of);
  };
  return share(0, 0.114) + share(8, 0.587) + share(16, 0.299) +
         (Rgb(64, 24, 8) >> (16 - c.plane.shift) & 0xFF);
}

// The formula holds for from..to; outside, the nearer end counts. All of a small range is tried.
struct Case {
  int effect, from, to;
  Formula formula;
};

const int kColour = Rgb(7, 120, 255);

const Case kCases[] = {
    {1, 0, 100, InPlace([](auto& c) { return (c.Own() * (c.a + 24) - 2 * c.S8()) / (c.a + 8); })},
    {2, 0, 0, Pixels([](auto& c) { return 255 - c.Own(); })},
    {3, 0, 0, InPlace([](auto& c) { return c.S8() / 8; })},
    {4, 0, 100, Moved},
    {5, 0, 0, InPlace([](auto& c) { return (c.Column(0) + c(-1, 0) + c(1, 0)) / 5; })},
    {6, 1, 100, InPlace([](auto& c) { return (c.Own() * (c.a + 9) - c.S8()) / (c.a + 1); })},
    {7, kColour, kColour, Interior([](auto& c) { return 8 * c.Own() - c.S8() + c.Offset(); })},
    {8, kColour, kColour,
     Cells(0, 1, false, [](auto& c) { return std::abs(c.Own() - c(1, 1) + c.Offset()); })},
    {9, kColour, kColour, Interior([](auto& c) { return c.Column(-1) - c.Column(1) + c.Offset(); })},
    {10, kColour, kColour,
     Cells(0, 1, false, [](auto& c) { return std::abs(c(1, 1) - c.Own() + c.Offset()); })},
    {11, kColour, kColour, Interior([](auto& c) { return c.Column(1) - c.Column(-1) + c.Offset(); })},
    {12, 0, 0, Pixels([](auto& c) { return c.Gray(); })},
    {13, 0, 0, Interior([](auto& c) {
       return (2 * c(-1, -1) + c(0, -1) + c(-1, 0) + c.Own() - c(1, 0) - c(0, 1) - 2 * c(1, 1)) / 2 + 50;
     })},
    {14, -100, 100, Pixels([](auto& c) { return c.Own() * Single((c.a + 100) / 100.0); })},
    {15, 1, 20, Pixels(BlockMean)},
    {17, -100, 100, Contrasted},
    {18, Rgb(150, 150, 150), Rgb(150, 150, 150), Pixels(Threshold)},
    {18, Rgb(99, 200, 250), Rgb(99, 200, 250), Pixels(Threshold)},
    {19, 0, 0, SharpenedAndCarried},
    {20, 0, 0, Pixels(Ordered)},
    {21, 1, 1000, Diffused({{0, 0, 0, 7, 0}, {0, 3, 5, 1, 0}}, 16)},
    {22, 1, 1000, Diffused({{0, 0, 0, 8, 4}, {2, 4, 8, 4, 2}}, 32)},
    {23, 1, 1000, Diffused({{0, 0, 0, 8, 4}, {2, 4, 8, 4, 2}, {1, 2, 4, 2, 1}}, 42)},
    {24, 0, 0, Cells(2, 2, false, Kuwahara)},
    {25, 0, 0, Interior([](auto& c) { return c.Nth(8); })},
    {26, 0, 0, Interior([](auto& c) { return c.Nth(0); })},
    {27, 0, 0, Interior([](auto& c) { return c.Own() - c.Nth(0); })},
    {28, 0, 0, Interior([](auto& c) { return c.Nth(4); })},
    {29, 1, 100, Noisy},
    {30, -100, 100, Pixels([](auto& c) { return (c.Own() - c.Gray()) * Single(c.a / 100.0) + c.Own(); })},
    {31, 1, 100, Pixels([](auto& c) { return std::pow(c.Own() / 255.0, 1.0 / c.a) * 255.0; })},
    {32, 0, 0, Pixels(Old)},
};

// Every level of every part; one tone; noise.
std::vector<Picture> Pictures() {
  Picture levels(256, 1);
  for (std::uint32_t i = 0; i < 256; ++i) levels.Writable()[i] = Unir(i, 255 - i, i * 7 & 0xFF);
  std::vector<Picture> all = {levels, Picture::Filled(5, 4, kBlack), Picture::Filled(5, 4, kWhite)};
  for (const Extent& size : test::kSizes) all.push_back(test::Noise(size, size.width));
  return all;
}

}  // namespace

TEST(Formulas, HoldToTheBit) {
  for (const Picture& p : Pictures())
    for (const Case& c : kCases) {
      std::vector<int> arguments = {c.from, c.to, (c.from + 2 * c.to) / 3};
      if (c.from != kColour && c.effect != 18) arguments.insert(arguments.end(), {15, INT32_MIN, INT32_MAX});
      const bool all = p.Height() == 1 || c.effect == 15;
      for (int a = c.from; all && c.to - c.from <= 200 && a < c.to; ++a) arguments.push_back(a);
      for (const int a : arguments)
        ASSERT_TRUE(test::Same(Applied(c.effect, a, p), c.formula(p, std::clamp(a, c.from, c.to))))
            << "effect " << c.effect << " with " << a << " on " << p.Width() << " x " << p.Height();
    }
}

TEST(Formulas, WorkedPixels) {
  const char* orders[] = {"123", "312", "231", "132", "321", "213", "123"};
  for (int i = 0; i <= 6; ++i)
    EXPECT_EQ(Applied(16, i, Picture::Filled(1, 1, Rgb('1', '2', '3'))).ColourAt(0, 0),
              Rgb(orders[i][0], orders[i][1], orders[i][2]))
        << i;
  struct Row {
    int effect;
    Colour before, after;
  };
  for (const Row& r : {Row{2, Rgb(10, 20, 30), Rgb(245, 235, 225)}, Row{12, Rgb(10, 20, 31), Rgb(20, 20, 20)},
                       Row{32, kBlack, Rgb(64, 24, 8)}, Row{32, Rgb(10, 20, 250), Rgb(107, 67, 51)}})
    EXPECT_EQ(Applied(r.effect, 0, Picture::Filled(1, 1, r.before)).ColourAt(0, 0), r.after) << r.effect;
}
