// The real editor over recording dialogs and desktop.
#pragma once

#include <QAction>
#include <QApplication>
#include <QLineEdit>
#include <QTest>

#include "editor/TextoDelEditor.h"
#include "editor/frmEditor.h"
#include "editor/frmEditor_Superficie.h"
#include "tests/support/DrawingRows.h"
#include "tests/support/Find.h"
#include "tests/support/RecordingDialogs.h"
#include "tests/support/TestFolder.h"

namespace pixmosa::test {

struct Editor {
  BasEditor state;
  RecordingDialogs dialogs;
  RecordingShell shell;
  TestFolder folder;
  Picture picture;
  Dibujo exported;
  frmEditor window{state,
                   Font{},
                   dialogs,
                   shell,
                   nullptr,
                   {folder.Path(), [this] { return picture; }, [] { return Picture(); },
                    [this](const Dibujo& drawing) { exported = drawing; }}};
  Superficie& surface = Find<Superficie>(window, "picDraw");

  explicit Editor(const std::string& text = {}) {
    window.Abrir(text);
    [[maybe_unused]] const bool shown = QTest::qWaitForWindowActive(&window);
  }

  void Trigger(const char* action) { Find<QAction>(window, action).trigger(); }

  // The middle of a cell.
  static QPoint At(Cell c, QSize cell = {CellWidth, CellHeight}) {
    return {(c.column - 1) * cell.width() + cell.width() / 2,
            (c.row - 1) * cell.height() + cell.height() / 2};
  }

  void Move(Cell c) { Point(At(c)); }
  void Click(Cell c, QSize cell = {CellWidth, CellHeight}) {
    QTest::mouseClick(&surface, Qt::LeftButton, {}, At(c, cell));
  }

  // Presses at the first point, moves through the others and releases at the last.
  void Drag(std::initializer_list<QPoint> points) {
    QTest::mousePress(&surface, Qt::LeftButton, {}, *points.begin());
    for (const QPoint& p : points) Point(p, Qt::LeftButton);
    QTest::mouseRelease(&surface, Qt::LeftButton, {}, *(points.end() - 1));
  }
  void Trace(std::initializer_list<Cell> cells) {
    QTest::mousePress(&surface, Qt::LeftButton, {}, At(*cells.begin()));
    for (const Cell& c : cells) Point(At(c), Qt::LeftButton);
    QTest::mouseRelease(&surface, Qt::LeftButton, {}, At(*(cells.end() - 1)));
  }

 private:
  void Point(QPoint p, Qt::MouseButtons held = Qt::NoButton) {
    QMouseEvent move(QEvent::MouseMove, p, surface.mapToGlobal(p), Qt::NoButton, held, Qt::NoModifier);
    QApplication::sendEvent(&surface, &move);
  }
};

}  // namespace pixmosa::test
