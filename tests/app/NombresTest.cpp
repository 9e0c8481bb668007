// What a screen reader says and what the Tab key reaches, in every window.
#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAccessibleWidget>
#include <QComboBox>
#include <QLineEdit>
#include <QMenu>
#include <QScrollBar>
#include <QSlider>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include "tests/support/MainWindow.h"

using namespace pixmosa;
using test::Find;

namespace {

bool EsControl(const QWidget& w) {
  if (!w.isEnabled() || w.objectName().startsWith("qt_")) return false;
  const QWidget* parent = w.parentWidget();
  // Parts of another control.
  if (qobject_cast<const QComboBox*>(parent) || qobject_cast<const QAbstractSpinBox*>(parent) ||
      qobject_cast<const QScrollBar*>(&w) || w.inherits("QToolBarExtension") || w.inherits("QMenuBar") ||
      w.inherits("QHeaderView"))
    return false;
  return qobject_cast<const QAbstractButton*>(&w) || qobject_cast<const QComboBox*>(&w) ||
         qobject_cast<const QLineEdit*>(&w) || qobject_cast<const QAbstractSpinBox*>(&w) ||
         qobject_cast<const QSlider*>(&w) || qobject_cast<const QAbstractItemView*>(&w) ||
         w.inherits("QPlainTextEdit");
}

// The controls seen in a window that a reader has no name for.
QStringList SinNombre(const QWidget& window) {
  QStringList nameless;
  for (QWidget* w : window.findChildren<QWidget*>()) {
    if (!w->isVisible() || !EsControl(*w)) continue;
    const QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(w);
    if (!seen || seen->text(QAccessible::Name).trimmed().isEmpty())
      nameless += QString(w->metaObject()->className()) + " " + w->objectName();
  }
  return nameless;
}

// The same of a modal window that a menu entry opens.
QStringList SinNombreTras(test::MainWindow& m, const char* action) {
  QStringList nameless = {"not open"};
  QTimer::singleShot(0, &m.window, [&] {
    if (QWidget* open = QApplication::activeModalWidget()) {
      nameless = SinNombre(*open);
      open->close();
    }
  });
  m.Trigger(action);
  return nameless;
}

}  // namespace

class NombresTest : public QObject {
  Q_OBJECT

 private slots:
  void EveryControlHasANameInEveryMode();
  void EveryWindowsControlsHaveNames();
  void TabReachesEveryControl();
};

void NombresTest::EveryControlHasANameInEveryMode() {
  test::MainWindow m(ProgramFolder() / "Fonts");
  m.Load(Picture::Filled(40, 40, kWhite));
  for (const char* mode : kModos) {
    m.Trigger(mode);
    QCOMPARE(SinNombre(m.window).join(", "), QString());
  }
  m.Trigger("mnuRecortar");
  QCOMPARE(SinNombre(m.window).join(", "), QString());
}

void NombresTest::EveryWindowsControlsHaveNames() {
  test::MainWindow m;
  m.Load(Picture::Filled(40, 40, kWhite));
  m.Trigger("mnuPlay");
  for (const char* entry : {"mnuExportar", "mnuExportarPelicula", "mnuComparar", "mnuFixedFonts",
                            "mnuEstadisticas", "mnuSistema", "mnuAcercaDe"})
    QVERIFY2(SinNombreTras(m, entry).isEmpty(),
             (entry + (": " + SinNombreTras(m, entry).join(", "))).toUtf8().constData());
  for (const char* entry : {"mnuAumentarbrillo", "mnuHistorial", "mnuEditor", "mnuPreviewAsciiArt"}) {
    m.Trigger(entry);
    for (const QWidget* window : QApplication::topLevelWidgets())
      if (window->isVisible()) QCOMPARE(SinNombre(*window).join(", "), QString());
  }
}

void NombresTest::TabReachesEveryControl() {
  test::MainWindow m;
  m.Load(Picture::Filled(40, 40, kWhite));
  m.window.activateWindow();
  QSet<const QWidget*> reached;
  for (const Qt::Key key : {Qt::Key_Tab, Qt::Key_Backtab}) {
    Find<QWidget>(m.window, "cboPaletas").setFocus();
    // The text keeps the key to itself; it lies between the last control and the first.
    while (QApplication::focusWidget() != &m.Area()) {
      reached.insert(QApplication::focusWidget());
      QTest::keyClick(QApplication::focusWidget(), key);
      QVERIFY(reached.size() < 200);
    }
    reached.insert(&m.Area());
  }
  QStringList missed;
  for (QWidget* w : m.window.findChildren<QWidget*>())
    if (w->isVisible() && EsControl(*w) && !reached.contains(w) && !w->focusProxy())
      missed += w->objectName();
  QCOMPARE(missed.join(", "), QString());
}

QTEST_MAIN(NombresTest)
#include "NombresTest.moc"
