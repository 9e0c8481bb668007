// The tools beside the first five, the selection, the view and the recovery, driven by mouse and keyboard.
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

#include "platform/AtomicFile.h"
#include "tests/editor/Editor.h"

using namespace pixmosa;
using test::Editor;
using test::Find;
using test::Rows;
using Strings = std::vector<std::string>;

class HerramientasTest : public QObject {
  Q_OBJECT

 private slots:
  void ToolsDrawAndUndo() {
    struct Row {
      Qt::Key key;
      const char* action;
      Cell from, to;
      Strings rows;
    };
    for (const Row& r : {Row{Qt::Key_N, "Linea", {1, 1}, {4, 2}, {"##    ", "  ##  ", "      "}},
                         {Qt::Key_F, "Flecha", {1, 2}, {5, 2}, {"      ", "---->  ", "      "}},
                         {Qt::Key_E, "Elipse", {1, 1}, {5, 3}, {" ###  ", "#   # ", " ###  "}},
                         {Qt::Key_M, "Marco", {6, 3}, {1, 1}, {"┌────┐", "│    │", "└────┘"}}}) {
      Editor e;
      QTest::keyClick(&e.surface, r.key);
      QVERIFY2(Find<QAction>(e.window, r.action).isChecked(), r.action);
      e.Trace({r.from, {r.from.column + 1, r.from.row}, r.to});
      Strings rows = r.rows;
      if (r.key == Qt::Key_F) rows[1] = "----> ";
      QCOMPARE(Rows(e.state.Grid, 1, 3, 6), rows);
      QTest::keyClick(&e.window, Qt::Key_Z, Qt::ControlModifier);
      QVERIFY(e.state.Grid == Lienzo());
    }
  }

  void TextIsTyped() {
    Editor e("123456");
    QTest::keyClick(&e.surface, Qt::Key_T);
    e.Click({2, 1});
    QTest::keyClicks(&e.surface, "bL");
    QVERIFY(Find<QAction>(e.window, "Texto").isChecked());
    QKeyEvent enye(QEvent::KeyPress, 0, Qt::NoModifier, QString::fromUtf8("ñ"));
    QApplication::sendEvent(&e.surface, &enye);
    QInputMethodEvent dead;
    dead.setCommitString(QString::fromUtf8("é€"));
    QApplication::sendEvent(&e.surface, &dead);
    QTest::keyClick(&e.surface, Qt::Key_Backspace);
    QTest::keyClick(&e.surface, Qt::Key_Return);
    QTest::keyClicks(&e.surface, "x y");
    QTest::keyClick(&e.surface, Qt::Key_Left);
    QTest::keyClick(&e.surface, Qt::Key_Delete);
    QTest::keyClick(&e.surface, Qt::Key_Home);
    QTest::keyClick(&e.surface, Qt::Key_Down);
    QTest::keyClicks(&e.surface, "z");
    QCOMPARE(DrawingText(e.state), "1bLñé \r\n x\r\n z");
  }

  void StrokesFillsAndPicks() {
    Editor e;
    e.Trace({{1, 1}, {6, 2}});
    QCOMPARE(Rows(e.state.Grid, 1, 2, 6), (Strings{"###   ", "   ###"}));
    QTest::mousePress(&e.surface, Qt::LeftButton, {}, e.At({1, 5}));
    e.Trigger("mnuDeshacer");  // ends the stroke, and takes it back
    QTest::mouseRelease(&e.surface, Qt::LeftButton, {}, e.At({9, 5}));
    QCOMPARE(DrawingText(e.state), "###\r\n   ###");
    QTest::keyClick(&e.surface, Qt::Key_B);
    Find<QSpinBox>(e.window, "numGoma").setValue(3);
    Find<QCheckBox>(e.window, "chkBorrarDelTodo").setChecked(true);
    e.Trace({{2, 1}, {3, 1}});
    QCOMPARE(Rows(e.state.Grid, 1, 2, 6), (Strings{"      ", "    ##"}));
    QTest::keyClick(&e.surface, Qt::Key_R);
    QTest::mouseMove(&e.surface, e.At({2, 2}));
    const QImage before = e.surface.grab(QRect(0, 0, 80, 48)).toImage();
    e.Move({6, 2});
    QVERIFY2(e.surface.grab(QRect(0, 0, 80, 48)).toImage() != before, "shows what it would fill");
    e.state.CurrentChar.tinta = 0x0000FF;
    auto& table = Find<QListWidget>(e.window, "lstCaracteresAltos");
    QCOMPARE(table.count(), 128);
    table.setCurrentRow(0xF1 - 128);
    QVERIFY(Find<QLabel>(e.window, "lblCodigo").text().startsWith("Código 241"));
    Find<QPushButton>(e.window, "cmdTinta9").click();
    e.Click({6, 2});
    QCOMPARE(Rows(e.state.Grid, 2, 2, 6), Strings{"    ññ"});
    QVERIFY(e.state.Grid.Tinta({6, 2}) != kNoColour);
    Find<QListWidget>(e.window, "lstCaracteres").setCurrentRow('o' - 32);
    QTest::keyClick(&e.surface, Qt::Key_G);
    e.Click({5, 2});
    QCOMPARE(e.state.CurrentChar.caracter, U'ñ');
    QTest::keyClick(&e.surface, Qt::Key_1);  // the recent one that was put last
    QCOMPARE(e.state.CurrentChar.caracter, U'o');
  }

  void SelectionMovesAndGoesThroughTheClipboard() {
    Editor e("ab(\rcd/\r  .");
    QTest::keyClick(&e.surface, Qt::Key_S);
    e.Trace({{1, 1}, {2, 2}});
    e.Trace({{1, 1}, {3, 3}, {5, 3}});
    QTest::keyClick(&e.surface, Qt::Key_Left);
    QCOMPARE(Rows(e.state.Grid, 1, 1, 3), Strings{"ab("});  // it floats
    e.Click({20, 20});
    QCOMPARE(DrawingText(e.state), "  (\r  /\r  .ab\r\n   cd");
    QTest::keyClick(&e.window, Qt::Key_Z, Qt::ControlModifier);
    QCOMPARE(DrawingText(e.state), "ab(\rcd/\r  .");
    e.Trace({{1, 1}, {3, 2}});
    e.Trigger("mnuCopiarSel");
    QCOMPARE(e.shell.clipboard, "ab(\r\ncd/");
    e.Trigger("mnuFlipCaracterH");
    QCOMPARE(Rows(e.state.Grid, 1, 2, 3), (Strings{")da", "\\bc"}));
    e.Trigger("mnuCortarSel");
    QCOMPARE(Rows(e.state.Grid, 1, 2, 3), (Strings{"   ", "   "}));
    e.shell.clipboard = "ñ\n█";
    e.Trigger("mnuPegarSel");
    QTest::keyClick(&e.surface, Qt::Key_Right);
    QTest::keyClick(&e.surface, Qt::Key_Return);
    QCOMPARE(Rows(e.state.Grid, 1, 2, 3), (Strings{" ñ ", " █ "}));
    e.Trigger("mnuPegarSel");
    QTest::keyClick(&e.surface, Qt::Key_Escape);
    QCOMPARE(Rows(e.state.Grid, 1, 2, 3), (Strings{" ñ ", " █ "}));
    e.Trigger("mnuSeleccionarTodo");
    e.Trigger("mnuLlenarSel");
    QCOMPARE(Rows(e.state.Grid, 74, 75, 2), (Strings{"##", "  "}));
    e.Trigger("mnuReemplazarCaracter");
    auto& find = Find<QLineEdit>(e.window, "txtBuscar");
    QTest::keyClicks(&find, "#");
    QTest::keyClicks(&Find<QLineEdit>(e.window, "txtPoner"), "=");
    Find<QPushButton>(e.window, "cmdReemplazar").click();
    QCOMPARE(Find<QLabel>(e.window, "lblCuantos").text(), "Se han cambiado 7400.");
    QCOMPARE(Rows(e.state.Grid, 1, 1, 2), Strings{"=="});
  }

  void TheCanvasHasAnySize() {
    Editor e("ab");
    e.Trigger("mnuRedimensionar");
    Find<QSpinBox>(e.window, "numColumnasEditor").setValue(320);
    Find<QSpinBox>(e.window, "numFilasEditor").setValue(111);
    QTest::keyClick(&Find<QSpinBox>(e.window, "numFilasEditor"), Qt::Key_Return);
    QCOMPARE(e.surface.size(), QSize(320 * 8, 112 * 12));
    e.Trace({{320, 111}});
    QCOMPARE(e.state.Grid.Caracter({320, 111}), U'#');
    e.Trigger("mnuDeshacer");
    e.Trigger("mnuAcercarEditor");
    QCOMPARE(e.surface.size(), QSize(320 * 12, 112 * 18));
    e.Click({3, 2}, {12, 18});
    QCOMPARE(e.state.Grid.Caracter({3, 2}), U'#');
    e.Trigger("mnuAjustarLienzo");
    QCOMPARE(e.surface.size(), QSize(3 * 12, 3 * 18));
    QCOMPARE(DrawingText(e.state), "ab\r\n  #");
    e.Trigger("mnuTamanoRealEditor");
    const QImage lines = e.surface.grab().toImage();
    e.Trigger("mnuRejilla");
    QVERIFY(e.surface.grab().toImage() != lines);
  }

  void TracesExportsAndSavesAsAscii() {
    Editor e("a");
    const QImage blank = e.surface.grab().toImage();
    e.picture = Picture::Filled(10, 10, Rgb(255, 0, 0));
    e.Trigger("mnuCalco");
    QVERIFY(e.surface.grab().toImage() != blank);
    e.Trigger("mnuCalco");
    QCOMPARE(e.surface.grab().toImage(), blank);
    Find<QPushButton>(e.window, "cmdTinta9").click();
    QTest::keyClick(&e.surface, Qt::Key_M);
    Find<QComboBox>(e.window, "cboMarco").setCurrentIndex(2);
    e.Trace({{1, 2}, {3, 3}});
    e.Trigger("mnuExportarDibujo");
    QCOMPARE(e.exported.filas.size(), 3U);
    QCOMPARE(e.exported.filas[1][0], (Celda{U'╔', Rgb(230, 30, 30)}));
    e.dialogs.paths = {e.folder.File("a.txt")};
    e.Trigger("mnuGuardarDibujo");
    QCOMPARE(LeerArchivo(e.folder.File("a.txt")), "a\r\n+-+\r\n+-+\r\n");
    QVERIFY(e.dialogs.log.back().starts_with("Inform|Guardar el dibujo|El dibujo tiene caracteres"));
    QSignalSpy sent(&e.window, &frmEditor::Enviado);
    e.Trigger("mnuEnviar");
    QCOMPARE(sent.takeFirst().at(0).value<std::string>(), "a\r\n╔═╗\r\n╚═╝");
    e.window.Abrir("a\r\n╔═╗\r\n╚═╝");
    QVERIFY2(e.state.Grid.HayTinta(), "the same text keeps its colours");
  }

  void WhatWasLostIsOffered() {
    Editor e("ab");
    e.Trace({{3, 1}});
    const auto files = [&] {
      std::vector<std::string> names;
      for (const auto& f : std::filesystem::directory_iterator(e.folder.Path())) names.push_back(f.path());
      return names;
    };
    QTRY_COMPARE_WITH_TIMEOUT(files().size(), 1U, 3000);
    const std::string kept = LeerArchivo(files()[0]);
    QVERIFY(e.window.close() || e.dialogs.log.back().starts_with("AskToSave"));
    e.dialogs.respuestas = {Respuesta::Descartar};
    QVERIFY(e.window.close());
    QVERIFY(files().empty());
    EscribirArchivo(e.folder.File("dibujo-99999999.pixmosa"), kept);  // of no process
    e.window.Abrir("otro");
    auto& offer = Find<QLabel>(e.window, "lblRecuperar");
    QVERIFY(offer.isVisible());
    emit offer.linkActivated("recuperar");
    QCOMPARE(DrawingText(e.state), "ab#");
    QVERIFY(!offer.isVisible());
    e.Trigger("mnuDeshacer");
    QCOMPARE(DrawingText(e.state), "otro");
  }
};

QTEST_MAIN(HerramientasTest)
#include "HerramientasTest.moc"
