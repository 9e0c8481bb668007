// The editor's tools driven by real mouse events.
#include <QAction>
#include <QLabel>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>

#include "editor/TextoDelEditor.h"
#include "editor/frmEditor.h"
#include "editor/frmEditor_Superficie.h"
#include "platform/AtomicFile.h"
#include "platform/qt/QtDialogs.h"
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
  test::TestFolder folder;
  frmEditor window{state, Font{}, dialogs, shell, nullptr};
  QWidget& surface = Find<Superficie>(window, "picDraw");

  explicit Editor(const std::string& text = {}) { window.Abrir(text); }

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
  void FreeDrawingFollowsThePointer() {
    Editor e;
    auto& list = Find<QListWidget>(e.window, "lstCaracteres");
    QCOMPARE(list.count(), 96);
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

  void ToolsFollowTheirGestures() {
    struct Row {
      const char* tool;
      std::initializer_list<QPoint> gesture;
      Strings grid;  // rows 1..4 of a drawing of "aaa b"
    };
    for (const Row& r : {Row{"Borrar", {{4, 6}, {12, 6}}, {"aaa b ", "      ", "      ", "      "}},
                         {"Caja", {{9, 13}, {20, 20}, {38, 45}}, {"aaa b ", " +--+ ", " |  | ", " +--+ "}},
                         {"CajaR", {{40, 48}, {8, 12}}, {"aaa b ", " +--+ ", " |##| ", " +--+ "}},
                         {"Rellenar", {{400, 400}, {12, 6}}, {"### b ", "      ", "      ", "      "}}}) {
      Editor e("aaa b");
      e.Trigger(r.tool);
      e.Drag(r.gesture);
      QCOMPARE(Rows(e.state.Grid, 1, 4, 6), r.grid);
      QCOMPARE(Rows(e.state.Screen, 1, 1, 2)[0] == "  ", std::string(r.tool) == "Borrar");
    }
  }

  void MenusTransformAndUndo() {
    Editor e("aB");
    QVERIFY(!Find<QAction>(e.window, "mnuRehacer").isEnabled());
    constexpr const char* kSteps[][2] = {
        {"mnuMinMay", "AB"},        {"mnuMayMin", "ab"},        {"mnureemplazar", "ab"},
        {"mnuFlipCaracterH", "ab"}, {"mnuFlipCaracterV", "ab"}, {"mnuFlipHorizontal", "  "},
        {"mnuFlipVertical", "  "},  {"mnuCLS", "  "},           {"mnuDeshacer", "  "},
        {"mnuDeshacer", "  "},      {"mnuDeshacer", "ab"},      {"mnuRehacer", "  "}};
    for (const auto& [entry, shown] : kSteps) {
      e.Trigger(entry);
      QCOMPARE(Rows(e.state.Grid, 1, 1, 2), Strings{shown});
    }
    QCOMPARE(e.state.Grid.At({1, 2}), '\n');
  }

  void SendsCopiesAndSaves() {
    Editor e("ab\x1F \r\nc  ");
    QSignalSpy sent(&e.window, &frmEditor::Enviado);
    e.Trigger("mnuEnviar");
    QCOMPARE(sent.takeFirst().at(0).value<std::string>(), "ab\x1F \r\nc  ");
    e.Drag({{36, 6}});
    const std::string text = "ab\x1F #\r\nc  ";
    e.Trigger("mnuCopiar");
    QCOMPARE(e.shell.clipboard, text);
    e.dialogs.paths = {e.folder.File("d.txt"), "/dev/full"};
    e.Trigger("mnuGuardarDibujo");
    QCOMPARE(LeerArchivo(e.folder.File("d.txt")), text + "\r\n");
    e.Trigger("mnuGuardarDibujo");
    QCOMPARE(e.dialogs.log.back(),
             "Fail|Error al guardar|No se ha podido escribir \"/dev/full\": no queda espacio en el disco.");
  }

  void AsksBeforeLosingChanges() {
    for (const bool reopen : {false, true}) {
      Editor e("ab");
      const auto lose = [&] { return reopen ? e.window.Abrir("cd") : e.window.close(); };
      QVERIFY(lose() && e.dialogs.log.empty());  // nothing was changed
      const auto draw = [&] {
        e.window.Abrir("ab");
        e.Drag({{100, 100}});
        return DrawingText(e.state);
      };
      const std::string drawn = draw();
      QVERIFY(!lose());  // an empty script cancels
      QCOMPARE(e.dialogs.log.size(), 1U);
      QVERIFY(e.dialogs.log[0].starts_with(
          "AskToSave|Editor Ascii|El dibujo tiene cambios que no se han guardado ni"));
      e.dialogs.respuestas = {Respuesta::Guardar, Respuesta::Guardar, Respuesta::Descartar};
      QVERIFY2(!lose(), "no file was chosen");
      QCOMPARE(DrawingText(e.state), drawn);
      QVERIFY(e.window.isVisible());
      e.dialogs.paths = {e.folder.File("g.txt")};
      QVERIFY(lose());
      QCOMPARE(LeerArchivo(e.folder.File("g.txt")), drawn + "\r\n");
      draw();
      QVERIFY(lose());
      QCOMPARE(DrawingText(e.state), reopen ? "cd" : drawn);
      draw();
      e.Trigger("mnuEnviar");
      QVERIFY(lose());
    }
  }

  void TheQuestionStandsOverTheEditor() {
    QWidget other;
    QtDialogs dialogs;
    dialogs.SetOwner(&other);
    Editor e;
    for (const auto& [press, answer] : {std::pair{"", Respuesta::Cancelar},
                                        {"Guardar", Respuesta::Guardar},
                                        {"Descartar", Respuesta::Descartar},
                                        {"Cancelar", Respuesta::Cancelar}}) {
      QString seen;
      QTimer::singleShot(0, [&, button = QString(press)] {
        auto& box = *qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        seen = box.parentWidget()->objectName() + " " + box.defaultButton()->text();
        for (QAbstractButton* b : box.buttons())
          if (b->text() == button) b->click();
        box.close();
      });
      QApplication::setActiveWindow(&e.window);
      QCOMPARE(dialogs.AskToSave("texto", "título"), answer);
      QCOMPARE(seen, "frmEditor Guardar");
    }
  }

  void SaysOnceWhatDoesNotFit() {
    Editor e("ab\r\n" + std::string(320, 'x'));
    auto& warning = Find<QLabel>(e.window, "lblNoCabe");
    QVERIFY(warning.isVisible());
    QVERIFY(warning.text().startsWith("El texto tiene 320 columnas y 2 líneas, y aquí caben 99 y 74."));
    e.Trigger("mnuCLS");
    QVERIFY(!warning.isVisible());
    e.Trigger("mnuDeshacer");
    QVERIFY(warning.isVisible());
    e.window.Abrir("ab");
    QVERIFY(!warning.isVisible());
    const QSize screen = e.window.screen()->availableSize();  // 800 x 800 here
    QVERIFY(e.window.frameSize().width() <= screen.width() &&
            e.window.frameSize().height() <= screen.height());
    QVERIFY(e.window.minimumSizeHint().width() <= 600 && e.window.minimumSizeHint().height() <= 500);
  }

  void SurfaceShowsInk() {
    Editor e;
    const auto cell = [&] { return e.surface.grab(QRect(16, 24, CellWidth, CellHeight)).toImage(); };
    const QImage blank = cell();
    e.Drag({{20, 30}});
    QVERIFY(cell() != blank);
    e.Trigger("Borrar");
    e.Drag({{20, 30}});
    QCOMPARE(cell(), blank);
  }
};

QTEST_MAIN(FrmEditorTest)
#include "FrmEditorTest.moc"
