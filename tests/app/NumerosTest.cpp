// The number fields beside the sliders and the size as a number of columns, in the real window.
#include <QAbstractButton>
#include <QComboBox>
#include <QLabel>
#include <QScrollBar>
#include <QSlider>
#include <QSpinBox>
#include <QTest>

#include "effects/frmEfectConfig.h"
#include "tests/support/MainWindow.h"

using namespace pixmosa;
using test::Find;

namespace {

struct Loaded : test::MainWindow {
  Loaded() { Load(Picture::Filled(400, 300, kWhite)); }

  void Type(QSpinBox& number, const char* text) {
    number.setFocus();
    number.selectAll();
    QTest::keyClicks(&number, text);
    QTest::keyClick(&number, Qt::Key_Tab);
    Follow();
  }
  void Choose(int preset) {
    auto& list = Find<QComboBox>(window, "cboPresetColumnas");
    list.setCurrentIndex(preset);
    emit list.activated(preset);
    Follow();
  }
  void Follow() {
    QCoreApplication::processEvents();
    QTest::qWait(1);
  }
  QSpinBox& Columns() { return Find<QSpinBox>(window, "numColumnas"); }
  int Line() { return static_cast<int>(Text().find("\r\n")); }
};

}  // namespace

class NumerosTest : public QObject {
  Q_OBJECT

 private slots:
  void ColumnsAndSizeFollowEachOther();
  void PresetsAreColumns();
  void ColumnsAskedForStayWithAnyFont();
  void SlidersHaveNumbers();
};

void NumerosTest::ColumnsAndSizeFollowEachOther() {
  Loaded m;
  auto& size = Find<QSlider>(m.window, "sldTamaño");
  const int whole = m.program.basAscii.AsciiColumns;
  QCOMPARE(m.Columns().value(), whole);
  struct Row {
    int columns, percent;
  };
  for (const Row& r : {Row{whole / 2, 50}, {7, 700 / whole}, {whole * 3, 198}}) {
    m.Type(m.Columns(), std::to_string(r.columns).c_str());
    QCOMPARE(m.Line(), r.columns);
    QVERIFY(std::abs(size.value() - r.percent) <= 1);
    QCOMPARE(Find<QLabel>(m.window, "lblFilas").text(), QString("x %1 filas").arg(m.Area().blockCount()));
  }
  size.setValue(20);
  m.Follow();
  QCOMPARE(m.Columns().value(), RoundHalfEven(whole * 0.2));
  QCOMPARE(m.Line(), m.Columns().value());
  Find<QAbstractButton>(m.window, "lbl100").click();
  QCOMPARE(m.Columns().value(), whole);
  m.Trigger(kModos[kModoMosaico]);
  QCOMPARE(Find<QLabel>(m.window, "lblFilas").text(), "");
}

void NumerosTest::PresetsAreColumns() {
  Loaded m;
  for (const auto& [preset, columns] : {std::pair{0, 80}, {1, 72}, {2, 120}}) {
    m.Choose(preset);
    QCOMPARE(m.Line(), columns);
    QCOMPARE(m.Columns().value(), columns);
  }
  m.Choose(3);
  QCOMPARE(m.Area().horizontalScrollBar()->maximum(), 0);
  m.Type(m.Columns(), std::to_string(m.Columns().value() + 8).c_str());
  QVERIFY2(m.Area().horizontalScrollBar()->maximum() > 0, "a cell or two and the vertical bar's place more");
  QCOMPARE(Find<QComboBox>(m.window, "cboPresetColumnas").currentIndex(), -1);
}

void NumerosTest::ColumnsAskedForStayWithAnyFont() {
  Loaded m;
  m.dialogs.fonts = {{"DejaVu Sans Mono", 20}, {"DejaVu Sans Mono", 40}};
  m.Choose(0);
  m.dialogs.answers = {false, false};
  m.Trigger("mnuFontsChange");
  QCOMPARE(m.Columns().value(), 80);
  Find<QSlider>(m.window, "sldTamaño").setValue(99);
  const int columns = m.Columns().value();
  m.Trigger("mnuFontsChange");
  QVERIFY2(m.Columns().value() < columns, "a size is a share of the screen");
}

void NumerosTest::SlidersHaveNumbers() {
  Loaded m;
  auto& light = Find<QSlider>(m.window, "sldLuminosidad");
  auto& number = Find<QSpinBox>(m.window, "numLuminosidad");
  m.Type(number, "-37");
  QVERIFY(light.value() == -37 && m.program.ajustes.luminosity == -37);
  light.setValue(12);
  QCOMPARE(number.value(), 12);

  m.Trigger("mnuAumentarbrillo");
  auto& dialog = Find<frmEfectConfig>(m.window, "frmEfectConfig");
  auto& slider = Find<QSlider>(dialog, "sldEfecto");
  auto& value = Find<QSpinBox>(dialog, "numEfecto");
  QVERIFY(value.minimum() == slider.minimum() && value.maximum() == slider.maximum());
  m.Type(value, "25");
  QCOMPARE(slider.value(), 25);
  QTest::keyClick(&slider, Qt::Key_End);
  QCOMPARE(value.value(), slider.maximum());
  m.Trigger("mnuMetodo1");
  QVERIFY(value.maximum() == slider.maximum() && value.value() == slider.value());
}

QTEST_MAIN(NumerosTest)
#include "NumerosTest.moc"
