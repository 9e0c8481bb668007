// Cropping with the mouse, recipes and the last effect again, in the real window.
#include <QComboBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include "app/RecorteConRaton.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/MainWindow.h"

using namespace pixmosa;
using test::Find;
using test::Grays;
using test::Levels;
using Rows = std::vector<std::vector<int>>;

namespace {

// 200 x 100, each pixel's gray its column; shown at natural size in its frame.
Picture Columns() {
  Picture p(200, 100);
  for (int i = 0; i < 200 * 100; ++i) p.Writable()[i] = PixelOfColour(Rgb(i % 200, i % 200, i % 200));
  return p;
}

struct Window : test::MainWindow {
  RecorteConRaton& Crop() { return Find<RecorteConRaton>(window, "recorte"); }
  void Drag(QPoint from, QPoint to) {
    QTest::mousePress(&Crop(), Qt::LeftButton, {}, from);
    QMouseEvent move(QEvent::MouseMove, to, Crop().mapToGlobal(to), Qt::NoButton, Qt::LeftButton, {});
    QApplication::sendEvent(&Crop(), &move);
    QTest::mouseRelease(&Crop(), Qt::LeftButton, {}, to);
  }
  std::array<int, 4> Marked() {
    const Zona z = Crop().Marcada();
    return {z.x, z.y, z.ancho, z.alto};
  }
  const Picture& Now() { return program.imagen.picMain; }
};

}  // namespace

class ImagenTest : public QObject {
  Q_OBJECT

 private slots:
  void APartIsMarkedMovedSizedAndCut();
  void ProportionsAreKeptAndLeavingChangesNothing();
  void RecipesAreKeptAndAppliedFromTheMenu();
  void TheLastEffectIsRepeated();
  void ALongEffectCanBeCancelled();
  void ALongLoadingShowsItselfAndCanBeGivenUp();
};

void ImagenTest::APartIsMarkedMovedSizedAndCut() {
  Window m;
  m.Trigger("mnuRecortar");  // nothing to crop: nothing happens
  m.Load(Columns());
  m.Trigger("mnuRecortar");
  m.Drag({150, 80}, {50, 20});
  QCOMPARE(m.Marked(), (std::array{50, 20, 100, 60}));
  m.Drag({100, 50}, {110, 45});  // inside: moves
  QCOMPARE(m.Marked(), (std::array{60, 15, 100, 60}));
  m.Drag({160, 40}, {180, 0});  // its right edge alone
  QCOMPARE(m.Marked(), (std::array{60, 15, 120, 60}));
  m.Drag({60, 15}, {70, 25});  // a corner
  QCOMPARE(m.Marked(), (std::array{70, 25, 110, 50}));
  QTest::keyClick(&m.Crop(), Qt::Key_Left);
  QTest::keyClick(&m.Crop(), Qt::Key_Down, Qt::ShiftModifier);
  QCOMPARE(m.Marked(), (std::array{69, 25, 110, 51}));
  QCOMPARE(Find<QLabel>(m.window, "lblRecorte").text(), "110 x 51");
  QTest::mouseClick(&Find<QPushButton>(m.window, "cmdRecortar"), Qt::LeftButton);
  QCOMPARE(m.Now().Size(), (Extent{110, 51}));
  QCOMPARE(Levels(m.Now())[0][0], 69);
  QVERIFY(!m.window.findChild<QPushButton*>("cmdRecortar") ||
          !m.window.findChild<QPushButton*>("cmdRecortar")->isVisible());
  m.Trigger("mnuDeshacerImagen");
  QCOMPARE(m.Now().Size(), (Extent{200, 100}));
}

void ImagenTest::ProportionsAreKeptAndLeavingChangesNothing() {
  Window m;
  m.Load(Columns());
  m.Trigger("mnuRecortar");
  auto& list = Find<QComboBox>(m.window, "cboProporcionRecorte");
  list.setCurrentText("1 : 1");
  QCOMPARE(m.Marked(), (std::array{50, 0, 100, 100}));
  m.Drag({10, 90}, {60, 80});
  QCOMPARE(m.Marked(), (std::array{10, 40, 50, 50}));
  m.Drag({150, 90}, {199, 10});  // as large as there is room for
  QCOMPARE(m.Marked(), (std::array{150, 40, 50, 50}));
  QTest::keyClick(&m.Crop(), Qt::Key_Escape);
  QCOMPARE(m.Now().Size(), (Extent{200, 100}));
}

void ImagenTest::RecipesAreKeptAndAppliedFromTheMenu() {
  Window m;
  qputenv("XDG_DATA_HOME", m.folder.Path().c_str());
  m.Load(Grays({{10, 20, 30}, {40, 50, 60}}));
  QVERIFY(!Find<QAction>(m.window, "mnuGuardarReceta").isEnabled());
  m.Trigger("mnuNegativo");
  m.Trigger("mnuGirar90");
  m.dialogs.textos = {"mi receta"};
  m.Trigger("mnuGuardarReceta");
  m.Load(Grays({{1, 2}}));
  emit Find<QMenu>(m.window, "mnuRecetas").aboutToShow();
  m.Trigger("receta:mi receta");
  QCOMPARE(Levels(m.Now()), (Rows{{254}, {253}}));
  m.Trigger("mnuUndoPicture");
  QCOMPARE(Levels(m.Now()), (Rows{{1, 2}}));
  // The same name again is a question, and "no" keeps the first.
  m.Trigger("mnuHFlip");
  m.dialogs.textos = {"mi receta"};
  m.Trigger("mnuGuardarReceta");
  QVERIFY(m.dialogs.log.back().starts_with("Ask|Recetas|Ya hay una receta"));
  m.dialogs.textos = {"a/b"};
  m.Trigger("mnuGuardarReceta");
  QVERIFY(m.dialogs.log.back().starts_with("Fail||Una receta no se puede llamar \"a/b\""));
}

void ImagenTest::TheLastEffectIsRepeated() {
  Window m;
  m.Load(Grays({{10, 20}}));
  QVERIFY(!Find<QAction>(m.window, "mnuRepetirEfecto").isEnabled());
  m.Trigger("mnuNegativo");
  m.Trigger("mnuRepetirEfecto");
  QCOMPARE(Levels(m.Now()), (Rows{{10, 20}}));
  m.Trigger("mnuAumentarbrillo");
  Find<QSlider>(m.window, "sldEfecto").setValue(40);
  QTest::mouseClick(&Find<QPushButton>(m.window, "cmdApply"), Qt::LeftButton);
  const Rows once = Levels(m.Now());
  m.Trigger("mnuAumentarbrillo");  // begins with the value applied last, and shows it
  QCOMPARE(Find<QSpinBox>(m.window, "numEfecto").value(), 40);
  QTest::mouseClick(&Find<QPushButton>(m.window, "cmdCancel"), Qt::LeftButton);
  m.Load(Grays({{10, 20}}));
  m.Trigger("mnuRepetirEfecto");
  QCOMPARE(Levels(m.Now()), once);
}

void ImagenTest::ALongEffectCanBeCancelled() {
  Window m;
  Picture large = Picture::Filled(2500, 2500, Rgb(10, 20, 30));
  m.Load(large, "grande.bmp");
  QTimer::singleShot(0, &m.window, [&] {
    QVERIFY(m.program.mFiltros.EffectBusy);
    Find<QPushButton>(m.window, "cmdCancelar").click();
  });
  m.Trigger("mnuHumo");
  QVERIFY(!m.program.mFiltros.EffectBusy);
  QCOMPARE(m.Now().ColourAt(1000, 1000), Rgb(10, 20, 30));
  QVERIFY(m.dialogs.log.size() == 1);  // the one that loaded
  QVERIFY(Find<QLabel>(m.window, "lblEnlace").text().startsWith("Cancelado"));
}

void ImagenTest::ALongLoadingShowsItselfAndCanBeGivenUp() {
  Window m;
  m.Load(Grays({{10, 20}}), "antes.png");
  m.pictures.milisegundos = 600;
  for (const bool wait : {true, false}) {
    bool shown = false, free = true;
    QTimer::singleShot(450, &m.window, [&] {
      shown = Find<QProgressBar>(m.window, "prgBar1").isVisible();
      free = m.window.menuBar()->isEnabled();
      if (!wait) QTest::keyClick(&m.window, Qt::Key_Escape);
    });
    m.Load(Grays({{30, 40, 50}}), wait ? "nueva.png" : "otra.png");
    QVERIFY(shown && !free && m.window.menuBar()->isEnabled());
    QCOMPARE(NombreDeImagen(m.program), "nueva");
  }
  QCOMPARE(Find<QLabel>(m.window, "lblEnlace").text(), "Carga cancelada.");
}

QTEST_MAIN(ImagenTest)
#include "ImagenTest.moc"
