#include <gtest/gtest.h>

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

class RecordingWindow final : public VentanaDeEfectos {
 public:
  std::vector<std::string> log;
  void MostrarDialogo() override { log.push_back("show"); }
  void CargarEfecto(int effect) override { log.push_back("load " + std::to_string(effect)); }
  void RefrescarPicMain() override { log.push_back("refresh"); }
};

class Dispatch : public testing::Test {
 protected:
  MFiltros m;
  ImagenDeTrabajo image;
  RecordingWindow window;
  RecordingProgress progress;

  void SetUp() override { image.Cargar(Grays({{10, 20}, {30, 40}})); }

  void Apply(int effect, std::int32_t argument = 0, bool ask = true) {
    ApplyEffect(m, image, window, effect, BitmapDe(image), argument, progress, ask);
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
  Apply(kBrillo, 10);
  EXPECT_EQ(window.log, (std::vector<std::string>{"show", "load 14"}));
  EXPECT_EQ(Now(), kLoaded);
  EXPECT_EQ(progress.shown, 0);
  m.CurrentDialogEffect = kPixelizar;
  Apply(kBrillo, 10);
  EXPECT_EQ(Now(), kLoaded) << "another effect's dialog";
  m.CurrentDialogEffect = kBrillo;
  window.log.clear();
  Apply(kBrillo, 100);
  EXPECT_EQ(window.log, (std::vector<std::string>{"show", "refresh"}));
  EXPECT_EQ(Now(), (Rows{{20, 40}, {60, 80}}));
}

TEST_F(Dispatch, EditsTheDialogsBitmapAndKeepsTheUndoCopyOfTheMainPicture) {
  ImagenDeTrabajo preview;
  preview.Asignar(image.picMain);
  image.picUndo = {};
  ApplyEffect(m, image, window, kNegativo, BitmapDe(preview), 0, progress, true);
  EXPECT_EQ(Levels(preview.picMain), kNegative);
  EXPECT_EQ(Now(), kLoaded);
  EXPECT_EQ(Levels(image.picUndo), kLoaded);
}

TEST_F(Dispatch, SecondEffectIsIgnoredWhileOneRuns) {
  progress.onYield = [&] {
    EXPECT_TRUE(m.EffectBusy);
    Apply(12);
    Apply(kBrillo, 10);
  };
  Apply(kNegativo);
  EXPECT_EQ(Now(), kNegative);
  EXPECT_FALSE(m.EffectBusy);
  EXPECT_EQ(progress.shown, 1);
  EXPECT_EQ(window.log, (std::vector<std::string>{"refresh"}));
}

TEST_F(Dispatch, PictureAssignedInTheMiddleStays) {
  progress.onYield = [&] { image.Cargar(Grays({{1, 2, 3}})); };
  Apply(kNegativo);
  EXPECT_EQ(Now(), (Rows{{1, 2, 3}}));
  EXPECT_FALSE(m.EffectBusy);
}

TEST_F(Dispatch, FlipInTheMiddleIsWrittenOver) {
  progress.onYield = [&] { Girar(image, Giros()[0]); };
  Apply(kNegativo);
  EXPECT_EQ(Now(), kNegative);
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
  EXPECT_TRUE(window.log.empty());
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
