#include <QLabel>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QSlider>
#include <QTest>
#include <QTimer>

#include "effects/basFiltrosConfig.h"
#include "effects/frmEfectConfig.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/MainWindow.h"
#include "tests/support/Noise.h"

using namespace pixmosa;
using test::Find;
using test::Grays;
using test::Levels;
using test::Same;
using Rows = std::vector<std::vector<int>>;

namespace {

// The captions of a menu, submenus in brackets, "-" for a separator.
QString Tree(const QMenu& menu) {
  QStringList parts;
  for (const QAction* a : menu.actions())
    parts << (a->isSeparator() ? "-" : a->menu() ? a->text() + "[" + Tree(*a->menu()) + "]" : a->text());
  return parts.join("|");
}

const Rows kLoaded = {{10, 20, 30}, {40, 50, 60}};

// The entry of each effect and its argument, where it is not 0; at the end the other entries of 16.
constexpr char kEntries[] =
    "mnuNitidez 2,mnuNegativo,mnuDesenfocar,mnuDifuminar 6,mnuHumo,mnuRealceBorde 1,"
    "mnuContornos 0xFFFFFF,mnuRealzar 0x787800,mnuRealzarMas 0x787800,mnugrabado 0x787800,"
    "mnuMasGrabado 0x787800,mnuGrises,mnuRelieve,mnuAumentarbrillo 10,mnuPixelizar 3,mnuRGB1 1,"
    "mnuAumentarcontraste 10,mnuMetodo1 0x969696,mnuMetodo2,mnuMetodo3,mnuMetodo4 15,mnuMetodo5 15,"
    "mnuMetodo6 15,mnuAcuarela,mnuDilate,mnuErosion,mnuContornosUnidos,-,mnuruido 50,"
    "mnuAumentarsaturacion 15,mnuGamma,mnuOldPhoto,mnuRGB2 2,mnuRGB3 3,mnuRGB4 4,mnuRGB5 5";

const Rows kNumbered = {{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}, {13, 14, 15, 16}};

struct Turn {
  const char* control;
  Rows result;
};
const Turn kTurns[] = {
    {"mnuHFlip", {{4, 3, 2, 1}, {8, 7, 6, 5}, {12, 11, 10, 9}, {16, 15, 14, 13}}},
    {"mnuVFLip", {{13, 14, 15, 16}, {9, 10, 11, 12}, {5, 6, 7, 8}, {1, 2, 3, 4}}},
    {"mnuGirar90", {{13, 9, 5, 1}, {14, 10, 6, 2}, {15, 11, 7, 3}, {16, 12, 8, 4}}},
    {"mnuGirar270", {{4, 8, 12, 16}, {3, 7, 11, 15}, {2, 6, 10, 14}, {1, 5, 9, 13}}},
    {"mnuEspejoAenB", {{1, 2, 3, 4}, {5, 6, 7, 8}, {9, 10, 11, 12}, {5, 6, 7, 8}}},
    {"mnuEspejoBenA", {{1, 2, 3, 4}, {13, 14, 15, 16}, {9, 10, 11, 12}, {13, 14, 15, 16}}},
    {"mnuEspejoDenI", {{1, 4, 3, 4}, {5, 8, 7, 8}, {9, 12, 11, 12}, {13, 16, 15, 16}}},
    {"mnuEspejoIenD", {{1, 2, 3, 2}, {5, 6, 7, 6}, {9, 10, 11, 10}, {13, 14, 15, 14}}},
};

struct EffectWindow : test::MainWindow {
  explicit EffectWindow(const Picture& picture = Grays(kLoaded)) { Load(picture, "imagen.bmp"); }
  frmEfectConfig& Dialog() { return Find<frmEfectConfig>(window, "frmEfectConfig"); }
  QSlider& Slider() { return Find<QSlider>(Dialog(), "sldEfecto"); }
  void Press(const char* button) { QTest::mouseClick(&Find<QPushButton>(Dialog(), button), Qt::LeftButton); }
  Rows Now() const { return Levels(program.imagen.picMain); }

  // The picture as the window shows it.
  Rows Seen() {
    const QImage shown = Find<QWidget>(window, "picMain").grab().toImage();
    Rows rows(static_cast<std::size_t>(shown.height()));
    for (int y = 0; y < shown.height(); ++y)
      for (int x = 0; x < shown.width(); ++x)
        rows[static_cast<std::size_t>(y)].push_back(qRed(shown.pixel(x, y)));
    return rows;
  }
};

// Large enough that an effect yields to the event loop many times.
const Picture kLarge = test::Noise({3000, 2500}, 1);

}  // namespace

class ImagenMenuTest : public QObject {
  Q_OBJECT

 private slots:
  void menuHasItsCaptions() {
    test::MainWindow w;
    const QMenu& menu = Find<QMenu>(w.window, "mnuImagen");
    QCOMPARE(menu.title(), QString("&Imagen"));
    QVERIFY(w.window.menuBar()->actions().contains(menu.menuAction()));
    // What is added stands behind it.
    QCOMPARE(
        Tree(menu).section("|-|Deshacer el", 0, 0),
        QString(
            "Girar[Horizontalmente|Verticalmente|90 grados a la derecha|90 grados a la izquierda]|"
            "Colores[Escala de grises|Negativo|Blanco y negro[Método 1|Método 2|Método 3|Método 4|Método 5|"
            "Método 6]|Intercambiar RGB[RGB -> BRG|RGB -> GBR|RGB -> RBG|RGB -> BGR|RGB -> GRB]|"
            "Corrección gamma]|Intensidad[Brillo|Contraste|Saturacion]|"
            "Bordes[Realzar|Realzar más|Grabado|Más grabado|Relieve|Realce solo del borde|Marcar contornos|"
            "Marcar contornos unidos]|"
            "Efectos[Acuarela|Añadir ruido|Humo|Desenfocar|Erosión|Foto antigua|Nitidez|Difuminar|"
            "Aumentar exposición|Pixelizar]|"
            "Espejos[Reflejar parte derecha en la izquierda|Reflejar parte izquierda en la derecha|"
            "Reflejar parte inferior en la superior|Reflejar parte superior en la inferior]|-|"
            "Deshacer cambios|Volver a la imagen original"));
  }

  void entriesWithoutAPictureDoNothing() {
    test::MainWindow w;
    for (const char* name :
         {"mnuNegativo", "mnuHFlip", "mnuUndoPicture", "mnuImageReload", "mnuAumentarbrillo"})
      w.Trigger(name);
    QVERIFY(!w.window.findChild<QDialog*>("frmEfectConfig") && w.program.imagen.picMain.IsEmpty());
  }

  void everyStepIsUndoneAndDoneAgain() {
    EffectWindow w;
    const Rows loaded = w.Now();
    QVERIFY(!Find<QAction>(w.window, "mnuDeshacerImagen").isEnabled());
    w.Trigger("mnuNegativo");
    const Rows negative = w.Now();
    w.Trigger("mnuGirar90");
    const Rows turned = w.Now();
    w.Trigger("mnuDeshacerImagen");
    QCOMPARE(w.Now(), negative);
    w.Trigger("mnuDeshacerImagen");
    QCOMPARE(w.Now(), loaded);
    w.Trigger("mnuRehacerImagen");
    w.Trigger("mnuRehacerImagen");
    QCOMPARE(w.Now(), turned);
    QVERIFY(!Find<QAction>(w.window, "mnuRehacerImagen").isEnabled());
    w.Trigger("mnuHistorial");
    auto& list = Find<QListWidget>(w.window, "lsvHistorial");
    QCOMPARE(list.count(), 3);
    QCOMPARE(list.item(1)->text(), QString("Negativo"));
    QTest::mouseClick(list.viewport(), Qt::LeftButton, {}, list.visualItemRect(list.item(0)).center());
    QCOMPARE(w.Now(), loaded);
    w.dialogs.paths.push_back(w.folder.File("retocada.png"));
    w.Trigger("mnuGuardarImagen");
    QCOMPARE(Levels(w.pictures.Read(w.folder.File("retocada.png"))), loaded);
  }

  // A configurable entry opens its dialog; chosen again, it runs with the menu's own argument.
  void everyEntryRunsItsEffect() {
    const Picture noise = test::Noise({13, 11}, 1);
    EffectWindow w(noise);
    for (int i = 1; const QString& entry : QString(kEntries).split(',')) {
      const int effect = i <= kEfectos ? i : 16, argument = entry.section(' ', 1).toInt(nullptr, 0);
      const std::string control = entry.section(' ', 0, 0).toStdString();
      if (i++ == 28) continue;  // it has none
      w.program.imagen.Cargar(noise);
      w.program.mFiltros.random.Seed(1);
      w.Trigger(control.c_str());
      if (Efecto(effect)->Configurable) {
        QCOMPARE(w.program.mFiltros.CurrentDialogEffect, effect);
        QVERIFY2(Same(w.program.imagen.picMain, noise), control.c_str());
        w.Trigger(control.c_str());
      }
      QVERIFY2(Same(w.program.imagen.picMain, test::Applied(effect, argument, noise)), control.c_str());
    }
  }

  void everyTurnIsDoneAndSeen() {
    EffectWindow w(Grays(kNumbered));
    for (const Turn& turn : kTurns) {
      w.Trigger(turn.control);
      QVERIFY2(w.Seen() == turn.result, turn.control);
      w.Trigger("mnuUndoPicture");
      QVERIFY2(w.Seen() == kNumbered, turn.control);
    }
  }

  // "Ctrl+Z" undoes text typed by the user first.
  void effectsUndoAndReload() {
    const Rows negative = {{245, 235, 225}, {215, 205, 195}};
    EffectWindow w;
    w.Trigger("mnuNegativo");
    QCOMPARE(w.Seen(), negative);
    w.Trigger("mnuHFlip");
    w.Area().setFocus();
    QTest::keyClicks(&w.Area(), "abc");
    QTest::keyClick(&w.Area(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(w.Text(), std::string());
    QVERIFY(w.Seen() != negative);
    w.Load(Grays(kLoaded));
    w.Trigger("mnuNegativo");
    w.Trigger("mnuImageReload");
    QCOMPARE(w.Seen(), kLoaded);
    w.Trigger("mnuNegativo");
    w.Trigger("mnuHFlip");
    w.Area().setFocus();
    QTest::keyClick(&w.Area(), Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(w.Seen(), negative);
  }

  void dialogShowsRangeAndUnchangedPreview() {
    EffectWindow w;
    w.Trigger("mnuAumentarbrillo");
    QVERIFY(w.Dialog().isVisible() && !w.Dialog().isModal());
    QCOMPARE(w.Dialog().windowTitle(), QString("Parámetros del filtro"));
    const auto& range = Find<QLabel>(w.Dialog(), "lblRango");
    QCOMPARE(range.text(), QString("Rango del filtro: -100 , 100"));
    w.Slider().setValue(40);
    w.Press("cmdCancel");
    w.Trigger("mnuAumentarbrillo");
    QCOMPARE(w.Slider().value(), 0);
    w.Slider().setValue(40);
    w.Trigger("mnuPixelizar");
    QCOMPARE(range.text(), QString("Rango del filtro: 1 , 20"));
    QCOMPARE(w.Slider().maximum(), 20);
    QCOMPARE(w.Slider().value(), 1);
    w.Press("cmdApply");
    QCOMPARE(w.Now(), kLoaded);
    QVERIFY(!w.Dialog().isVisible());
  }

  void previewsNeverAccumulateAndApplyCanBeUndone() {
    EffectWindow w;
    w.Trigger("mnuAumentarbrillo");
    w.Slider().setFocus();
    for (const Qt::Key key : {Qt::Key_End, Qt::Key_Home, Qt::Key_End}) QTest::keyClick(&w.Slider(), key);
    QCOMPARE(w.Now(), kLoaded);
    w.Press("cmdApply");
    const Rows doubled = {{20, 40, 60}, {80, 100, 120}};
    QCOMPARE(w.Seen(), doubled);
    w.Trigger("mnuNegativo");
    w.Trigger("mnuImageReload");
    QCOMPARE(w.Now(), doubled);
    w.Trigger("mnuAumentarbrillo");
    QTest::keyClick(&w.Slider(), Qt::Key_Home);
    w.Press("cmdApply");
    w.Trigger("mnuUndoPicture");
    QCOMPARE(w.Now(), doubled);
  }

  void cancelAndCloseBoxLeaveThePictureAndTheThresholdIsGrey() {
    EffectWindow w;
    const long holders = w.program.imagen.picMain.Block().use_count();
    for (const bool box : {false, true}) {
      w.Trigger("mnuMetodo1");
      w.Slider().setValue(45);
      box ? static_cast<void>(w.Dialog().close()) : w.Press("cmdCancel");
      QCOMPARE(w.Now(), kLoaded);
      QCOMPARE(w.program.mFiltros.CurrentDialogEffect, 0);
      QCOMPARE(w.program.imagen.picMain.Block().use_count(), holders);
    }
    w.Trigger("mnuMetodo1");
    w.Slider().setValue(45);
    w.Press("cmdApply");
    QCOMPARE(w.Now(), (Rows{{0, 0, 0}, {0, 255, 255}}));
  }

  void previewKeepsTheProportions() {
    EffectWindow w;
    struct Row {
      QSize picture, preview;
      bool stretched;
    };
    for (const Row& r : {Row{{400, 200}, {155, 78}, true},  // 77.5 to even
                         {{100, 155}, {155, 155}, false},
                         {{155, 100}, {155, 155}, false},
                         {{100, 310}, {50, 155}, true},
                         {{400, 100}, {155, 39}, true}}) {
      Picture p = Picture::Filled(r.picture.width(), r.picture.height(), kWhite);
      for (std::size_t i = 0; i < p.PixelCount(); ++i)
        if (static_cast<int>(i) % p.Width() < p.Width() / 2) p.Writable()[i] = PixelOfColour(kBlack);
      w.Load(p, "imagen.bmp");
      w.Trigger("mnuNitidez");
      auto& shown = Find<ImagenEstirable>(w.Dialog(), "Image1");
      QCOMPARE(shown.size(), r.preview);
      QCOMPARE(shown.Estirada(), r.stretched);
      const QImage seen = shown.grab().toImage();
      const int half = (r.stretched ? r.preview : r.picture).width() / 2;
      QCOMPARE(seen.pixelColor(half - 7, 38), QColor(Qt::black));
      QCOMPARE(seen.pixelColor(half + 8, 0), QColor(Qt::white));
      w.Press("cmdCancel");
    }
  }

  void lastValueWinsAndIsWhatGetsApplied() {
    EffectWindow w(kLarge);
    const Picture loaded = w.program.imagen.picMain;
    w.Trigger("mnuNitidez");
    bool inTheMiddle = false, barMoved = false;
    QTimer::singleShot(0, &w.window, [&] {
      inTheMiddle = w.program.mFiltros.EffectBusy;
      barMoved = Find<QProgressBar>(w.Dialog(), "prgBar1").isVisible();
      w.Slider().setValue(70);
      w.Slider().setValue(100);
      w.Trigger("mnuNegativo");
      w.Press("cmdApply");
    });
    w.Slider().setValue(30);
    QVERIFY(inTheMiddle && barMoved);
    QVERIFY(!w.Dialog().isVisible());
    QVERIFY(Same(w.program.imagen.picMain, test::Applied(1, 100, loaded)));
  }

  // A value that arrives while the main window's effect runs is previewed when that has ended.
  void valueDuringAnotherEffectIsNotLost() {
    EffectWindow w(kLarge);
    w.Trigger("mnuAumentarbrillo");
    QTimer::singleShot(0, &w.window, [&] {
      QVERIFY(w.program.mFiltros.EffectBusy);
      w.Slider().setValue(-100);
      w.Press("cmdApply");
    });
    w.Trigger("mnuHumo");
    QTRY_VERIFY(!w.Dialog().isVisible());
    QCOMPARE(w.program.imagen.picMain.ColourAt(1000, 1000), kBlack);
  }

  void closingInTheMiddleIsSafe() {
    for (const bool program : {false, true}) {
      EffectWindow w(kLarge);
      const Picture loaded = w.program.imagen.picMain;
      w.Trigger("mnuNitidez");
      QTimer::singleShot(0, &w.window, [&] {
        QVERIFY(w.program.mFiltros.EffectBusy);
        if (program) w.window.close();
        w.Dialog().close();
      });
      w.Slider().setValue(30);
      QVERIFY(!w.program.mFiltros.EffectBusy);
      QCOMPARE(w.program.mFiltros.CurrentDialogEffect, 0);
      QVERIFY(Same(w.program.imagen.picMain, loaded));
    }
  }
};

QTEST_MAIN(ImagenMenuTest)
#include "ImagenMenuTest.moc"
