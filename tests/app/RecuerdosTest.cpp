// What stays from one run of the window to the next.
#include <QLabel>
#include <QMenu>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include "tests/support/MainWindow.h"

using namespace pixmosa;
using test::Find;

namespace {

// A second run on the first one's registry.
struct Otra : test::MainWindow {
  explicit Otra(const test::FakeRegistry& before) : MainWindow({}, before) {}
};

QStringList Recientes(test::MainWindow& m) {
  QStringList names;
  for (const QAction* a : Find<QMenu>(m.window, "mnuRecientes").actions())
    if (!a->isSeparator()) names += a->text();
  return names;
}

}  // namespace

class RecuerdosTest : public QObject {
  Q_OBJECT

 private slots:
  void OptionsFontAndWindowComeBack();
  void NothingComesBackWhereItIsNotWanted();
  void FactoryValuesAreOneQuestionAway();
  void RecentPicturesAreListedAndOneThatIsGoneIsForgotten();
  void TheTitleNamesThePictureAndMarksUnsavedText();
};

void RecuerdosTest::OptionsFontAndWindowComeBack() {
  test::MainWindow m;
  Find<QSpinBox>(m.window, "numColumnas").setValue(66);
  Find<QSlider>(m.window, "sldLuminosidad").setValue(-20);
  m.dialogs.fonts.push_back({"DejaVu Sans Mono", 16});
  m.Trigger("mnuFontsChange");
  m.Trigger(kModos[kModoBordes]);
  m.window.resize(900, 640);
  QVERIFY(m.window.close());
  Otra other(m.registry);
  QCOMPARE(Find<QSpinBox>(other.window, "numColumnas").value(), 66);
  QCOMPARE(other.program.basAscii.AsciiColumns, 66);
  QCOMPARE(Find<QSlider>(other.window, "sldLuminosidad").value(), -20);
  QCOMPARE(other.program.ajustes.font, (Font{"DejaVu Sans Mono", 12}));
  QCOMPARE(Find<QLabel>(other.window, "lblModo").text(), QString::fromUtf8(kModos[kModoBordes]));
  QVERIFY(Find<QWidget>(other.window, "mrcAscii(1)").isVisible());
  QCOMPARE(other.window.size(), QSize(900, 640));
}

void RecuerdosTest::NothingComesBackWhereItIsNotWanted() {
  test::MainWindow m;
  m.Load(Picture::Filled(4, 4, kWhite));
  Find<QSlider>(m.window, "sldLuminosidad").setValue(-20);
  m.Trigger("mnuRecordar");
  QVERIFY(m.window.close());
  Otra other(m.registry);
  QCOMPARE(other.program.ajustes.luminosity, 0);
  QVERIFY(!Find<QAction>(other.window, "mnuRecordar").isChecked());
  QVERIFY(!Find<QMenu>(other.window, "mnuRecientes").menuAction()->isEnabled());
}

void RecuerdosTest::FactoryValuesAreOneQuestionAway() {
  test::MainWindow m;
  const Font font = m.program.ajustes.font;
  const int columns = m.program.basAscii.AsciiColumns;
  Find<QSpinBox>(m.window, "numColumnas").setValue(66);
  m.Trigger(kModos[kModoTexto]);
  m.dialogs.fonts.push_back({"DejaVu Sans Mono", 16});
  m.Trigger("mnuFontsChange");
  m.Trigger("mnuValoresDeFabrica");  // and "no"
  QCOMPARE(m.program.columnas, 66);
  m.dialogs.answers = {true};
  m.Trigger("mnuValoresDeFabrica");
  QCOMPARE(m.program.ajustes.font, font);
  QCOMPARE(Find<QSpinBox>(m.window, "numColumnas").value(), columns);
  QCOMPARE(Find<QLabel>(m.window, "lblModo").text(), QString::fromUtf8(kModos[kModoGrises]));
  // The panel that was made anew works.
  m.Load(Picture::Filled(40, 40, Rgb(128, 128, 128)));
  Find<QSpinBox>(m.window, "numColumnas").setValue(12);
  QTRY_COMPARE(m.Area().Medidas().width(), 12);
}

void RecuerdosTest::RecentPicturesAreListedAndOneThatIsGoneIsForgotten() {
  test::MainWindow m;
  for (const char* name : {"a.png", "b.png", "a.png"}) m.Load(Picture::Filled(4, 4, kWhite), name);
  QVERIFY(m.window.close());
  std::filesystem::remove(m.folder.File("b.png"));
  Otra other(m.registry);
  auto& menu = Find<QMenu>(other.window, "mnuRecientes");
  QCOMPARE(Recientes(other), QStringList({"&1 a.png", "&2 b.png", "&Vaciar la lista"}));
  menu.actions().at(0)->trigger();
  QCOMPARE(other.program.imagen.picMain.Width(), 4);
  menu.actions().at(1)->trigger();
  QCOMPARE(other.dialogs.log.back(), "Fail|Error en la carga|No se ha podido cargar la imagen");
  emit menu.aboutToShow();
  QCOMPARE(Recientes(other), QStringList({"&1 a.png", "&Vaciar la lista"}));
}

void RecuerdosTest::TheTitleNamesThePictureAndMarksUnsavedText() {
  test::MainWindow m;
  QCOMPARE(m.window.windowTitle(), "Pixmosa[*]");
  m.Load(Picture::Filled(4, 4, kBlack), "gato.png");
  QCOMPARE(m.window.windowTitle(), "gato.png[*] - Pixmosa");
  QVERIFY(!m.window.windowIcon().isNull());
  m.Trigger("mnuPlay");
  QVERIFY(!m.window.isWindowModified());
  QTest::keyClicks(&m.Area(), "x");
  QVERIFY(m.window.isWindowModified());
  m.dialogs.paths = {m.folder.File("gato.txt")};
  m.Trigger("mnuGuardar");
  QVERIFY(!m.window.isWindowModified());
}

QTEST_MAIN(RecuerdosTest)
#include "RecuerdosTest.moc"
