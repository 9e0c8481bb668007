// The dispatcher with its busy rule, undo and reload; flips and mirrors.
#include <gtest/gtest.h>
#include <utility>

#include "effects/Giros.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/Effects.h"

using namespace pixmosa;
using test::Grays;
using test::Levels;
using Rows = std::vector<std::vector<int>>;

namespace {

constexpr int kNegativo = 2, kBrillo = 14, kPixelizar = 15;
const Rows kLoaded = {{10, 20}, {30, 40}}, kNegative = {{245, 235}, {225, 215}},
           kFlipped = {{235, 245}, {215, 225}};

class Dispatch : public testing::Test {
 protected:
  MFiltros m;
  ImagenDeTrabajo image, preview;
  std::vector<int> opened;  // what the dialog was shown for
  test::RecordingProgress progress;

  void SetUp() override {
    image.Cargar(Grays(kLoaded));
    preview.Asignar(image.picMain);
    m.AbrirDialogo = [this](int effect) { opened.push_back(effect); };
  }

  bool Apply(int effect, std::int32_t argument = 0) {
    return ApplyEffect(m, image, effect, image, argument, progress, true);
  }
  Rows Now() const { return Levels(image.picMain); }
};

}  // namespace

TEST_F(Dispatch, UndoHasOneLevelAndReloadGoesBackToTheAssignedPicture) {
  Apply(kNegativo);
  EXPECT_EQ(Now(), kNegative);
  Apply(16, 1);
  Apply(kNegativo);
  image.Deshacer();
  image.Deshacer();
  EXPECT_EQ(Now(), kNegative) << "twice is the same as once";
  Apply(kNegativo);
  Girar(image, Giros()[0]);
  image.VolverALaOriginal();
  EXPECT_EQ(Now(), kNegative) << "the undone picture was assigned";
  image.Deshacer();
  EXPECT_EQ(Now(), kLoaded) << "reloading leaves the undo copy, made before the flip";
}

TEST_F(Dispatch, ConfigurableEffectsOpenTheDialog) {
  EXPECT_FALSE(Apply(kBrillo, 10));
  m.CurrentDialogEffect = kPixelizar;
  EXPECT_FALSE(Apply(kBrillo, 10)) << "another effect's dialog";
  EXPECT_EQ(Now(), kLoaded);
  EXPECT_EQ(progress.shown, 0);
  m.CurrentDialogEffect = kBrillo;
  EXPECT_TRUE(Apply(kBrillo, 100));
  EXPECT_EQ(opened, (std::vector<int>{kBrillo, kBrillo, kBrillo}));
  EXPECT_EQ(Now(), (Rows{{20, 40}, {60, 80}}));
}

TEST_F(Dispatch, EditsTheDialogsBitmapAndKeepsTheUndoCopyOfTheMainPicture) {
  preview.Asignar(Grays({{1}}));
  image.picUndo = {};
  ApplyEffect(m, image, kBrillo, preview, 100, progress, false);
  EXPECT_TRUE(opened.empty());
  EXPECT_EQ(Levels(preview.picMain), (Rows{{2}}));
  EXPECT_EQ(Now(), kLoaded);
  EXPECT_EQ(Levels(image.picUndo), kLoaded);
}

TEST_F(Dispatch, WhatHappensInTheMiddle) {
  progress.onYield = [&] { EXPECT_FALSE(Apply(12) || Apply(kBrillo, 10)) << "a second effect"; };
  EXPECT_TRUE(Apply(kNegativo));
  EXPECT_EQ(Now(), kNegative);
  EXPECT_TRUE(opened.empty());
  progress.onYield = [&] { image.Cargar(Grays({{1, 2, 3}})); };
  Apply(kNegativo);
  EXPECT_EQ(Now(), (Rows{{1, 2, 3}})) << "an assigned picture stays";
  EXPECT_FALSE(m.EffectBusy);
  EXPECT_EQ(progress.hidden, 2);
}

// A turn asked for while an effect runs on the picture is done to its result; one meant for a picture that
// was replaced meanwhile goes with it.
TEST_F(Dispatch, FlipInTheMiddleWaitsForTheResult) {
  const auto during = [&](ImagenDeTrabajo& bitmap, auto&& more) {
    bool asked = false;
    progress.onYield = [&, more] {
      if (!std::exchange(asked, true)) PedirGiro(m, image, Giros()[0]);
      more();
    };
    ApplyEffect(m, image, kNegativo, bitmap, 0, progress, false);
  };
  during(image, [] {});
  EXPECT_EQ(Now(), kFlipped);
  image.Deshacer();
  EXPECT_EQ(Now(), kNegative);
  during(image, [&] { image.Deshacer(); });
  EXPECT_EQ(Now(), kNegative);
  during(preview, [] {});
  EXPECT_EQ(Now(), kFlipped) << "the effect ran on another picture";
  EXPECT_EQ(Levels(preview.picMain), kNegative);
}

TEST_F(Dispatch, NumbersOutsideTheTableAndNoPicture) {
  for (const int n : {0, 33, -1}) {
    image.picUndo = {};
    Apply(n);
    EXPECT_EQ(Now(), kLoaded);
    EXPECT_EQ(Levels(image.picUndo), kLoaded) << "nothing but the undo copy";
  }
  image = {};
  EXPECT_FALSE(Apply(kNegativo) || Apply(kBrillo, 10) || !opened.empty());
  for (const Giro& g : Giros()) Girar(image, g);
  EXPECT_TRUE(image.picMain.IsEmpty());
}

TEST_F(Dispatch, PicturesShareTheirPixelsUntilOneIsWritten) {
  const std::uint32_t* first = image.picMain.Pixels();
  EXPECT_EQ(first, image.picUndo.Pixels());
  Apply(kNegativo);
  EXPECT_EQ(image.picUndo.Pixels(), first);
  EXPECT_EQ(image.picMainAsignada.Pixels(), first);
  const std::uint32_t* second = image.picMain.Pixels();
  Apply(kNegativo);
  Apply(kNegativo);
  EXPECT_EQ(image.picMain.Pixels(), second) << "the undo copy's block is used again";
}

// Position 0 never takes part. Size 5: round(1.5) = 2, so 1 and 2 pair with 4 and 3; size 7: round(2.5) = 2;
// size 3: round(0.5) = 0, nothing; size 4: only 1 with 3, the middle stays.
TEST(Giros, FlipsAndMirrors) {
  using Line = std::vector<int>;
  const auto turned = [](void (*turn)(Picture&), const Line& line, bool down) {
    Rows rows = {line, line};
    if (down) rows.clear();
    for (const int v : line)
      if (down) rows.push_back({v});
    ImagenDeTrabajo image;
    image.Cargar(Grays(rows));
    turn(image.picMain);
    EXPECT_EQ(Levels(image.picUndo), rows) << "the shared copy keeps its pixels";
    Line result;
    for (const Line& row : Levels(image.picMain)) result.push_back(row[0]);
    return down ? result : Levels(image.picMain)[1];
  };
  struct Row {
    Line before, flipped, first, second;  // `first`: the half nearer to 0 onto the other
  };
  for (const Row& r :
       {Row{{1}, {1}, {1}, {1}},
        {{1, 2, 3}, {3, 2, 1}, {1, 2, 3}, {1, 2, 3}},
        {{1, 2, 3, 4}, {4, 3, 2, 1}, {1, 2, 3, 2}, {1, 4, 3, 4}},
        {{1, 2, 3, 4, 5}, {5, 4, 3, 2, 1}, {1, 2, 3, 3, 2}, {1, 5, 4, 4, 5}},
        {{1, 2, 3, 4, 5, 6, 7}, {7, 6, 5, 4, 3, 2, 1}, {1, 2, 3, 4, 5, 3, 2}, {1, 7, 6, 4, 5, 6, 7}}}) {
    EXPECT_EQ(turned(FlipHorizontal, r.before, false), r.flipped);
    EXPECT_EQ(turned(FlipVertical, r.before, true), r.flipped);
    EXPECT_EQ(turned(MirrorTopToBottom, r.before, true), r.first);
    EXPECT_EQ(turned(MirrorBottomToTop, r.before, true), r.second);
    EXPECT_EQ(turned(MirrorLeftToRight, r.before, false), r.first);
    EXPECT_EQ(turned(MirrorRightToLeft, r.before, false), r.second);
  }
}
