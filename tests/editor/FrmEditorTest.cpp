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

#include "platform/AtomicFile.h"
#include "platform/qt/QtDialogs.h"
#include "tests/editor/Editor.h"

using namespace pixmosa;
using test::Editor;
using test::Find;
using test::Rows;
using Strings = std::vector<std::string>;

class FrmEditorTest : public QObject {
  Q_OBJECT

 private slots:
  void FreeDrawingFollowsThePointer() {
    Editor e;
    auto& list = Find<QListWidget>(e.window, "lstCaracteres");
    QCOMPARE(list.count(), 96);
    list.setCurrentRow('*' - 32);
    e.Drag({QPoint(4, 6), {12, 6}, {20, 18}, {-30, 6}, {5000, 6}, {30, 895}});
    QCOMPARE(Rows(e.state.Grid, 1, 2, 4), (Strings{"**  ", "  * "}));
    QCOMPARE(e.state.Grid.Caracter({4, 75}), U' ');
    QCOMPARE(Find<QLabel>(e.window, "posicion").text(), "(4,75)");
    QTest::mouseClick(&e.surface, Qt::RightButton, {}, {60, 60});
    QCOMPARE(e.state.Grid.Caracter(CellFromPoint({60, 60})), U' ');
    e.Trigger("mnuDeshacer");
    QVERIFY(e.state.Grid == Lienzo());  // the whole stroke
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
      QCOMPARE(test::Seen(e.state.Grid, 1, 1, 2)[0] == "  ", std::string(r.tool) == "Borrar");
    }
  }

  void MenusTransformAndUndo() {
    Editor e("aB");
    QVERIFY(!Find<QAction>(e.window, "mnuRehacer").isEnabled());
    constexpr const char* kSteps[][2] = {
        {"mnuMinMay", "AB"},        {"mnuMayMin", "ab"},         {"mnureemplazar", "ab"},
        {"mnuFlipCaracterV", "ap"}, {"mnuFlipCaracterH", "qa"},  {"mnuDeshacer", "ap"},
        {"mnuDeshacer", "ab"},      {"mnuFlipHorizontal", "  "}, {"mnuFlipVertical", "  "},
        {"mnuCLS", "  "},           {"mnuDeshacer", "  "},       {"mnuDeshacer", "  "},
        {"mnuDeshacer", "ab"},      {"mnuRehacer", "  "}};
    for (const auto& [entry, shown] : kSteps) {
      e.Trigger(entry);
      QCOMPARE(Rows(e.state.Grid, 1, 1, 2), Strings{shown});
    }
    QCOMPARE(e.state.Grid.Caracter({1, 2}), U'\n');
  }

  void SendsCopiesAndSaves() {
    Editor e("ab\x1F \r\nc  ");
    QSignalSpy sent(&e.window, &frmEditor::Enviado);
    e.Trigger("mnuEnviar");
    QCOMPARE(sent.takeFirst().at(0).value<std::string>(), "ab\x1F \r\nc  ");
    e.Drag({QPoint(36, 6)});
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
        e.Drag({QPoint(100, 100)});
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

  void SaysWhatDoesNotFitAndAligns() {
    Editor e("ab\r\n" + std::string(4100, 'x'));
    auto& warning = Find<QLabel>(e.window, "lblNoCabe");
    QVERIFY(warning.isVisible());
    QVERIFY(warning.text().startsWith("El texto tiene 4100 columnas y 2 líneas, y aquí caben 4095 y 4096."));
    e.Trigger("mnuCLS");
    QVERIFY(!warning.isVisible());
    e.Trigger("mnuDeshacer");
    QVERIFY(warning.isVisible());
    e.window.Abrir("ab\r\ncd");
    QVERIFY(!warning.isVisible());
    auto& shifted = Find<QLabel>(e.window, "lblDesplazado");
    QVERIFY(shifted.isVisible());
    emit shifted.linkActivated("alinear");
    QVERIFY(!shifted.isVisible());
    QCOMPARE(Rows(e.state.Grid, 1, 2, 3), (Strings{"ab ", "cd "}));
    QCOMPARE(DrawingText(e.state), "ab\r\ncd");
    e.Trigger("mnuDeshacer");
    QCOMPARE(Rows(e.state.Grid, 2, 2, 3), (Strings{"\ncd"}));
    const QSize screen = e.window.screen()->availableSize();  // 800 x 800 here
    QVERIFY(e.window.frameSize().width() <= screen.width() &&
            e.window.frameSize().height() <= screen.height());
    QVERIFY(e.window.minimumSizeHint().width() <= 600 && e.window.minimumSizeHint().height() <= 500);
  }

  void SurfaceShowsInk() {
    Editor e;
    const auto cell = [&] { return e.surface.grab(QRect(16, 24, CellWidth, CellHeight)).toImage(); };
    const QImage blank = cell();
    e.Drag({QPoint(20, 30)});
    QVERIFY(cell() != blank);
    e.Trigger("Borrar");
    e.Drag({QPoint(20, 30)});
    QCOMPARE(cell(), blank);
  }
};

QTEST_MAIN(FrmEditorTest)
#include "FrmEditorTest.moc"
