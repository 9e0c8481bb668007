#include <gtest/gtest.h>
#include <utility>

#include "effects/Giros.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/Effects.h"

using namespace pixmosa;
using test::Grays;
using test::Levels;
using test::RecordingProgress;
using Rows = std::vector<std::vector<int>>;

namespace {

constexpr int kNegativo = 2, kBrillo = 14, kPixelizar = 15;

class Dispatch : public testing::Test {
 protected:
  MFiltros m;
  ImagenDeTrabajo image;
  std::vector<int> opened;  // what the dialog was shown for
  RecordingProgress progress;

  void SetUp() override {
    image.Cargar(Grays({{10, 20}, {30, 40}}));
    m.AbrirDialogo = [this](int effect) { opened.push_back(effect); };
  }

  bool Apply(int effect, std::int32_t argument = 0, bool ask = true) {
    return ApplyEffect(m, image, effect, image, argument, progress, ask);
  }
  Rows Now() const { return Levels(image.picMain); }
};

const Rows kLoaded = {{10, 20}, {30, 40}}, kNegative = {{245, 235}, {225, 215}};

}  // namespace

TEST_F(Dispatch, UndoHasOneLevelAndReloadGoesBackToTheAssignedPicture) {
  Apply(kNegativo);
  EXPECT_EQ(Now(), kNegative);
  Apply(16, 1);
  Apply(kNegativo);
  EXPECT_EQ(Now(), kLoaded);
  image.Deshacer();
  image.Deshacer();
  EXPECT_EQ(Now(), kNegative) << "twice is the same as once";
  Apply(kNegativo);
  image.VolverALaOriginal();
  EXPECT_EQ(Now(), kNegative) << "the undone picture was assigned";
  image.Deshacer();
  EXPECT_EQ(Now(), kNegative) << "reloading leaves the undo copy";
}

TEST_F(Dispatch, ReloadThrowsEditsAway) {
  Apply(kNegativo);
  Girar(image, Giros()[0]);
  image.VolverALaOriginal();
  EXPECT_EQ(Now(), kLoaded);
  image.Deshacer();
  EXPECT_EQ(Now(), kNegative) << "as it was before the flip";
}

TEST_F(Dispatch, ConfigurableEffectsOpenTheDialog) {
  EXPECT_FALSE(Apply(kBrillo, 10));
  EXPECT_EQ(progress.shown, 0);
  m.CurrentDialogEffect = kPixelizar;
  EXPECT_FALSE(Apply(kBrillo, 10)) << "another effect's dialog";
  EXPECT_EQ(Now(), kLoaded);
  m.CurrentDialogEffect = kBrillo;
  EXPECT_TRUE(Apply(kBrillo, 100));
  EXPECT_EQ(opened, (std::vector<int>{kBrillo, kBrillo, kBrillo}));
  EXPECT_EQ(Now(), (Rows{{20, 40}, {60, 80}}));
}

TEST_F(Dispatch, EditsTheDialogsBitmapAndKeepsTheUndoCopyOfTheMainPicture) {
  ImagenDeTrabajo preview;
  preview.Asignar(image.picMain);
  image.picUndo = {};
  ApplyEffect(m, image, kNegativo, preview, 0, progress, true);
  EXPECT_EQ(Levels(preview.picMain), kNegative);
  EXPECT_EQ(Now(), kLoaded);
  EXPECT_EQ(Levels(image.picUndo), kLoaded);
}

TEST_F(Dispatch, SecondEffectIsIgnoredWhileOneRuns) {
  progress.onYield = [&] {
    EXPECT_TRUE(m.EffectBusy);
    EXPECT_FALSE(Apply(12));
    EXPECT_FALSE(Apply(kBrillo, 10));
  };
  EXPECT_TRUE(Apply(kNegativo));
  EXPECT_EQ(Now(), kNegative);
  EXPECT_FALSE(m.EffectBusy);
  EXPECT_EQ(progress.shown, 1);
  EXPECT_TRUE(opened.empty());
}

TEST_F(Dispatch, PictureAssignedInTheMiddleStays) {
  progress.onYield = [&] { image.Cargar(Grays({{1, 2, 3}})); };
  Apply(kNegativo);
  EXPECT_EQ(Now(), (Rows{{1, 2, 3}}));
  EXPECT_FALSE(m.EffectBusy);
}

// A turn asked for while an effect runs on the picture is done to its result; one meant for a picture that
// was replaced meanwhile goes with it.
TEST_F(Dispatch, FlipInTheMiddleWaitsForTheResult) {
  bool asked = false;
  const auto flipOnce = [&] {
    if (!std::exchange(asked, true)) PedirGiro(m, image, Giros()[0]);
  };
  progress.onYield = flipOnce;
  Apply(kNegativo);
  EXPECT_EQ(Now(), (Rows{{235, 245}, {215, 225}}));
  image.Deshacer();
  EXPECT_EQ(Now(), kNegative);

  asked = false;
  progress.onYield = [&] {
    flipOnce();
    image.Deshacer();
  };
  Apply(kNegativo);
  EXPECT_EQ(Now(), kNegative);

  ImagenDeTrabajo preview;
  preview.Asignar(image.picMain);
  asked = false;
  progress.onYield = flipOnce;
  ApplyEffect(m, image, kNegativo, preview, 0, progress, false);
  EXPECT_EQ(Now(), (Rows{{235, 245}, {215, 225}})) << "the effect ran on another picture";
  EXPECT_EQ(Levels(preview.picMain), kLoaded);
}

TEST_F(Dispatch, NumbersOutsideTheTableChangeNothingButTheUndoCopy) {
  for (const int n : {0, 33, -1}) {
    image.picUndo = {};
    Apply(n);
    EXPECT_EQ(Now(), kLoaded);
    EXPECT_EQ(Levels(image.picUndo), kLoaded);
  }
}

TEST_F(Dispatch, WithoutAPictureNothingHappens) {
  image = {};
  Apply(kNegativo);
  Apply(kBrillo, 10);
  EXPECT_TRUE(image.picMain.IsEmpty());
  EXPECT_TRUE(opened.empty());
}

TEST_F(Dispatch, PicturesShareTheirPixelsUntilOneIsWritten) {
  EXPECT_EQ(image.picMain.Pixels(), image.picUndo.Pixels());
  const std::uint32_t* first = image.picMain.Pixels();
  Apply(kNegativo);
  EXPECT_EQ(image.picUndo.Pixels(), image.picMainAsignada.Pixels());
  EXPECT_EQ(image.picUndo.Pixels(), first);
  const std::uint32_t* second = image.picMain.Pixels();
  Apply(kNegativo);
  Apply(kNegativo);
  EXPECT_EQ(image.picMain.Pixels(), second) << "the undo copy's block is used again";
}
