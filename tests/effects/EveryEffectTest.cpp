// What holds for every row of the effect table, on the smallest and the longest pictures and at the ends of
// every range. Under the sanitizers this is the test that no worker leaves its buffers.
#include <gtest/gtest.h>

#include "effects/Giros.h"
#include "effects/basFiltrosConfig.h"
#include "tests/support/Effects.h"

using namespace pixmosa;
using test::Applied;

namespace {

constexpr Extent kSizes[] = {{1, 1}, {1, 7}, {7, 1},  {2, 2},     {2, 9},   {9, 2},
                             {3, 3}, {4, 5}, {33, 3}, {32767, 1}, {1, 3000}};

Picture Stripes(Extent size) {
  Picture p(size.width, size.height);
  for (std::size_t i = 0; i < p.PixelCount(); ++i)
    p.Writable()[i] = static_cast<std::uint32_t>(i * 2654435761U) ^ static_cast<std::uint32_t>(i << 24);
  return p;
}

// The values that the dialog or the menu can give, and some that nothing gives.
std::vector<std::int32_t> Arguments(int effect) {
  const EffectConfig& e = *Efecto(effect);
  return {e.menu,
          ArgumentoDelDeslizador(effect, e.Min),
          ArgumentoDelDeslizador(effect, e.Max),
          e.Min,
          e.Max,
          0,
          -1,
          INT32_MIN,
          INT32_MAX};
}

}  // namespace

TEST(EveryEffect, RunsOnThinPicturesAndKeepsTheFourthByte) {
  for (int effect = 1; effect <= kEfectos; ++effect)
    for (const Extent& size : kSizes) {
      const Picture before = Stripes(size);
      for (const std::int32_t argument : Arguments(effect)) {
        test::RecordingProgress progress;
        const Picture after = Applied(effect, argument, before, progress);
        ASSERT_EQ(after.Size(), size);
        ASSERT_EQ(progress.values.back(), 100) << "effect " << effect;
        ASSERT_EQ(progress.shown, 1);
        ASSERT_EQ(progress.hidden, 1);
        for (std::size_t i = 0; i < before.PixelCount(); ++i)
          ASSERT_EQ(after.Pixels()[i] >> 24, before.Pixels()[i] >> 24)
              << "effect " << effect << " with " << argument << " on " << size.width << " x " << size.height;
      }
    }
}

// Worked by hand: rows 1..4 of a picture of four rows show 25, 50, 75, 100 and the closing 100.
TEST(EveryEffect, ProgressFollowsTheRows) {
  const Picture p = Picture::Filled(5, 6, kWhite);
  const auto values = [&](int effect) {
    test::RecordingProgress progress;
    Applied(effect, Efecto(effect)->menu, p, progress);
    return progress.values;
  };
  using V = std::vector<int>;
  EXPECT_EQ(values(12), (V{16, 33, 50, 66, 83, 100, 100}));
  EXPECT_EQ(values(2), (V{100})) << "Negativo moves another property of the bar";
  EXPECT_EQ(values(3), (V{33, 50, 66, 83, 100})) << "interior rows only";
  EXPECT_EQ(values(8), (V{16, 33, 50, 66, 83, 100})) << "the last row is left out";
  EXPECT_EQ(values(24), (V{50, 66, 100})) << "two rows of border";
  EXPECT_EQ(values(17), (V{5, 20, 36, 52, 68, 84, 100, 100}));
  EXPECT_EQ(values(19), (V{20, 36, 52, 68, 84, 100, 100}));
  EXPECT_EQ(values(21), (V{2, 10, 25, 40, 55, 70, 85, 100, 100}));
  EXPECT_EQ(values(23).front(), 3);
}

TEST(EveryEffect, PixelizeFillsTheFourBlocksOf25By25) {
  const Picture p = Applied(15, 20, Stripes({25, 25}));
  for (int y = 0; y < 25; ++y)
    for (int x = 0; x < 25; ++x) ASSERT_EQ(p.ColourAt(x, y), p.ColourAt(x < 20 ? 0 : 20, y < 20 ? 0 : 20));
  EXPECT_NE(p.ColourAt(0, 0), p.ColourAt(20, 0));
}
