// The fourth bytes and the progress. Under the sanitizers this is the test that no worker leaves its buffers.
#include <gtest/gtest.h>

#include "effects/basFiltrosConfig.h"
#include "tests/support/Noise.h"

using namespace pixmosa;

TEST(EveryEffect, RunsOnThinPicturesAndKeepsTheFourthByte) {
  for (int effect = 1; effect <= kEfectos; ++effect)
    for (const Extent& size : {Extent{1, 1}, {1, 7}, {7, 1}, {2, 9}, {9, 2}, {32767, 1}, {1, 3000}}) {
      const Picture before = test::Noise(size, 1);
      for (const std::int32_t argument : {Efecto(effect)->menu, INT32_MIN, INT32_MAX}) {
        test::RecordingProgress progress;
        const Picture after = test::Applied(effect, argument, before, progress);
        ASSERT_TRUE(after.Size() == size && progress.values.back() == 100);
        ASSERT_TRUE(progress.shown == 1 && progress.hidden == 1);
        for (std::size_t i = 0; i < before.PixelCount(); ++i)
          ASSERT_EQ(after.Pixels()[i] >> 24, before.Pixels()[i] >> 24)
              << "effect " << effect << " with " << argument << " on " << size.width << " x " << size.height;
      }
    }
}

TEST(EveryEffect, ProgressFollowsTheRows) {
  struct Row {
    int effect;
    std::vector<int> values;
    const char* why;
  };
  for (const Row& r : {Row{12, {16, 33, 50, 66, 83, 100, 100}, "every row and the closing 100"},
                       {2, {100}, "Negativo moves another property of the bar"},
                       {3, {33, 50, 66, 83, 100}, "interior rows only"},
                       {8, {16, 33, 50, 66, 83, 100}, "the last row is left out"},
                       {24, {50, 66, 100}, "two rows of border"},
                       {17, {5, 20, 36, 52, 68, 84, 100, 100}, ""},
                       {19, {20, 36, 52, 68, 84, 100, 100}, ""},
                       {21, {2, 10, 25, 40, 55, 70, 85, 100, 100}, ""},
                       {23, {3, 10, 25, 40, 55, 70, 85, 100, 100}, ""}}) {
    test::RecordingProgress progress;
    test::Applied(r.effect, Efecto(r.effect)->menu, Picture::Filled(5, 6, kWhite), progress);
    EXPECT_EQ(progress.values, r.values) << r.effect << " " << r.why;
  }
}
