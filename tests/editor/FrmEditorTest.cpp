// The editor's tools driven by real mouse events.
#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QSignalSpy>
#include <QTest>

#include "editor/frmEditor.h"
#include "editor/frmEditor_Superficie.h"
#include "platform/AtomicFile.h"
#include "tests/support/DrawingRows.h"
#include "tests/support/Find.h"
#include "tests/support/RecordingDialogs.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;
using test::Find;
using test::Rows;
using Strings = std::vector<std::string>;

namespace {

struct Editor {
  BasEditor state;
  test::RecordingDialogs dialogs;
  test::RecordingShell shell;
  frmEditor window{state, Font{}, dialogs, shell, nullptr};
  QWidget& surface = Find<Superficie>(window, "picDraw");

  explicit Editor(std::string_view text = {}) { window.Abrir(text); }

  void Trigger(const char* action) { Find<QAction>(window, action).trigger(); }

  // Presses at the first point, moves through the others and releases at the last.
  void Drag(std::initializer_list<QPoint> points) {
    QTest::mousePress(&surface, Qt::LeftButton, {}, *points.begin());
    for (const QPoint& p : points) {
      QMouseEvent move(QEvent::MouseMove, p, surface.mapToGlobal(p), Qt::NoButton, Qt::LeftButton,
                       Qt::NoModifier);
      QApplication::sendEvent(&surface, &move);
    }
    QTest::mouseRelease(&surface, Qt::LeftButton, {}, *(points.end() - 1));
  }
};

}  // namespace

class FrmEditorTest : public QObject {
  Q_OBJECT

 private slots:
  void OpensTheText();
  void FreeDrawingFollowsThePointer();
  void EraserLeavesTheGrid();
  void BoxesSnapToTheLattice();
  void FillTakesTheReleasedCell();
  void MenusTransformAndUndo();
  void InertEntriesChangeNothing();
  void SendsCopiesAndSaves();
  void AsksBeforeLosingChanges();
  void SurfaceShowsInk();
};

void FrmEditorTest::OpensTheText() {
  Editor e("ab\r\ncd");
  QCOMPARE(Rows(e.state.Grid, 1, 2, 3), (Strings{"ab ", "\ncd"}));
  QCOMPARE(e.window.windowTitle(), "Editor Ascii");
  auto& list = Find<QListWidget>(e.window, "lstCaracteres");
  QCOMPARE(list.count(), 96);
  QVERIFY(!Find<QAction>(e.window, "mnuRehacer").isEnabled());
}

void FrmEditorTest::FreeDrawingFollowsThePointer() {
  Editor e;
  auto& list = Find<QListWidget>(e.window, "lstCaracteres");
  list.setCurrentRow('*' - 32);
  e.Drag({{4, 6}, {12, 6}, {20, 18}, {-30, 6}, {5000, 6}, {30, 895}});
  QCOMPARE(Rows(e.state.Grid, 1, 2, 4), (Strings{"**  ", "  * "}));
  QCOMPARE(e.state.Grid.At({4, 75}), ' ');
  QCOMPARE(Find<QLabel>(e.window, "posicion").text(), "(4,75)");
  QTest::mouseClick(&e.surface, Qt::RightButton, {}, {60, 60});
  QCOMPARE(e.state.Grid.At(CellFromPoint({60, 60})), ' ');
  e.Trigger("mnuDeshacer");
  QCOMPARE(e.state.Grid, Characters());  // the whole stroke
  e.Trigger("Borrar");
  QTest::mouseMove(&e.surface, {100, 100});
  QCOMPARE(Find<QLabel>(e.window, "posicion").text(), "");
}

void FrmEditorTest::EraserLeavesTheGrid() {
  Editor e("abc");
  e.Trigger("Borrar");
  e.Drag({{4, 6}, {12, 6}});
  QCOMPARE(Rows(e.state.Screen, 1, 1, 3), (Strings{"  c"}));
  QCOMPARE(Rows(e.state.Grid, 1, 1, 3), (Strings{"abc"}));
}

void FrmEditorTest::BoxesSnapToTheLattice() {
  Editor e;
  e.Trigger("Caja");
  e.Drag({{9, 13}, {20, 20}, {38, 45}});  // corners (8, 12) and (40, 48)
  QCOMPARE(Rows(e.state.Grid, 1, 5, 6), (Strings{"      ", " +--+ ", " |  | ", " +--+ ", "      "}));
  e.Trigger("CajaR");
  e.Drag({{40, 48}, {8, 12}});
  QCOMPARE(Rows(e.state.Grid, 3, 3, 6), (Strings{" |##| "}));
}

void FrmEditorTest::FillTakesTheReleasedCell() {
  Editor e("aaa b");
  e.Trigger("Rellenar");
  QTest::mousePress(&e.surface, Qt::LeftButton, {}, {400, 400});
  QTest::mouseRelease(&e.surface, Qt::LeftButton, {}, {12, 6});
  QCOMPARE(Rows(e.state.Grid, 1, 1, 5), (Strings{"### b"}));
}

void FrmEditorTest::MenusTransformAndUndo() {
  Editor e("aB");
  e.Trigger("mnuMinMay");
  QCOMPARE(Rows(e.state.Grid, 1, 1, 2), (Strings{"AB"}));
  e.Trigger("mnuMayMin");
  QCOMPARE(Rows(e.state.Grid, 1, 1, 2), (Strings{"ab"}));
  const Characters before = e.state.Grid;
  e.Trigger("mnuFlipHorizontal");
  QCOMPARE(e.state.Grid.At({1, 2}), '\n');
  e.Trigger("mnuFlipVertical");
  e.Trigger("mnuCLS");
  for (int i = 0; i < 3; ++i) e.Trigger("mnuDeshacer");
  QCOMPARE(e.state.Grid, before);
  e.Trigger("mnuRehacer");
  QCOMPARE(e.state.Grid.At({1, 2}), '\n');
}

void FrmEditorTest::InertEntriesChangeNothing() {
  Editor e("(/b");
  for (const char* name : {"mnureemplazar", "mnuFlipCaracterH", "mnuFlipCaracterV"}) {
    const Characters before = e.state.Grid;
    e.Trigger(name);
    QCOMPARE(e.state.Grid, before);
  }
}

void FrmEditorTest::SendsCopiesAndSaves() {
  Editor e("ab\x1F \r\nc  \r\n\r\n");
  QSignalSpy sent(&e.window, &frmEditor::Enviado);
  const std::string text = "ab\r\n c";
  e.Trigger("mnuEnviar");
  QCOMPARE(sent.at(0).at(0).value<std::string>(), text);
  e.Trigger("mnuCopiar");
  QCOMPARE(e.shell.clipboard, text);
  test::TestFolder folder;
  e.dialogs.paths = {folder.File("d.txt"), "/dev/full"};
  e.Trigger("mnuGuardarDibujo");
  QCOMPARE(LeerArchivo(folder.File("d.txt")), text + "\r\n");
  e.Trigger("mnuGuardarDibujo");
  QCOMPARE(e.dialogs.log.back(),
           "Fail|Error al guardar|No se ha podido escribir \"/dev/full\": no queda espacio en el disco.");
}

void FrmEditorTest::AsksBeforeLosingChanges() {
  Editor e("ab");
  QVERIFY(e.window.close());
  QVERIFY2(e.dialogs.log.empty(), "nothing changed");
  e.window.show();
  e.Drag({{100, 100}});
  e.dialogs.answers = {false, true};
  QVERIFY(!e.window.close());
  QCOMPARE(e.dialogs.log.size(), 1U);
  QVERIFY(e.window.close());
  e.window.show();
  e.Trigger("mnuEnviar");
  QVERIFY(e.window.close());
  QCOMPARE(e.dialogs.log.size(), 2U);
}

void FrmEditorTest::SurfaceShowsInk() {
  Editor e;
  const auto ink = [&](Cell c) {
    const Point p = PointFromCell(c);
    const QImage shown = e.surface.grab(QRect(p.x, p.y, CellWidth, CellHeight)).toImage();
    int n = 0;
    for (int y = 0; y < shown.height(); ++y)
      for (int x = 0; x < shown.width(); ++x) n += shown.pixelColor(x, y) == QColor(Qt::black);
    return n;
  };
  QCOMPARE(ink({3, 3}), 0);
  e.Drag({{20, 30}});
  QVERIFY(ink({3, 3}) > 8);
  e.Trigger("Borrar");
  e.Drag({{20, 30}});
  QCOMPARE(ink({3, 3}), 0);
}

QTEST_MAIN(FrmEditorTest)
#include "FrmEditorTest.moc"
