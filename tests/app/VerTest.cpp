// How near picture and drawing are seen, in the real window.
#include <cmath>

#include <QAbstractTextDocumentLayout>
#include <QLabel>
#include <QPointingDevice>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>
#include <QTextLayout>
#include <QWheelEvent>

#include "tests/support/MainWindow.h"

using namespace pixmosa;
using test::Find;

namespace {

std::string Rows(int columns, int rows) {
  std::string text;
  for (int y = 0; y < rows; ++y)
    text += (y ? "\r\n" : "") + std::string(static_cast<std::size_t>(columns), 'M');
  return text;
}

// What a row and a cell of it measure on the screen.
struct Trozo {
  double width, height;
};

Trozo CellOf(AreaDeTexto& area, int row = 0) {
  const QTextBlock block = area.document()->findBlockByNumber(row);
  const double height = area.document()->documentLayout()->blockBoundingRect(block).height();
  return {block.layout()->lineAt(0).naturalTextWidth() / block.text().toUcs4().size(), height};
}

void Turn(AreaDeTexto& area, int angle, QPointF at = {100, 100}) {
  QWheelEvent turn(at, at, {}, {0, angle}, Qt::NoButton, Qt::ControlModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(area.viewport(), &turn);
}

}  // namespace

class VerTest : public QObject {
  Q_OBJECT

 private slots:
  void ALargePictureFitsItsFrame();
  void TheDrawingIsSeenNearerAndFarther();
  void AllOfTheDrawingIsSeen();
  void TheLineMeasuresAndPointsAt();
};

void VerTest::ALargePictureFitsItsFrame() {
  test::MainWindow m;
  auto& picture = Find<QWidget>(m.window, "picMain");
  auto& frame = Find<QWidget>(m.window, "picMarco");
  Picture half = Picture::Filled(3000, 600, kWhite);
  for (int y = 0; y < 600; ++y) std::fill_n(half.Writable() + y * 3000, 1500, 0xFF000000U);
  m.Load(half);
  QCOMPARE(picture.width(), frame.width());
  QCOMPARE(picture.height(), static_cast<int>(std::lround(frame.width() / 5.0)));
  QVERIFY(std::abs(picture.geometry().center().y() - frame.rect().center().y()) <= 1);
  const QImage seen = picture.grab().toImage();
  QCOMPARE(seen.pixelColor(5, 5), QColor(Qt::black));
  QCOMPARE(seen.pixelColor(seen.width() - 5, 5), QColor(Qt::white));
  QVERIFY(!Find<QScrollBar>(m.window, "HScroll1").isEnabled());

  const QPoint right(frame.width() * 3 / 4, frame.height() / 2);
  QTest::mouseDClick(&frame, Qt::LeftButton, {}, right);
  QVERIFY(!Find<QAction>(m.window, "mnuAjustarImagen").isChecked());
  QCOMPARE(picture.size(), QSize(3000, 600));
  QVERIFY2(std::abs(picture.x() + 2250 - frame.width() / 2) <= 12, "what was clicked on is in the middle");
  QTest::mouseDClick(&picture, Qt::LeftButton, {}, {2250, 300});
  QVERIFY(Find<QAction>(m.window, "mnuAjustarImagen").isChecked() && picture.width() == frame.width());
  m.window.resize(m.window.size() + QSize(0, 100));
  m.Load(Picture::Filled(20, 10, kWhite));
  QVERIFY2(picture.size() == QSize(20, 10), "a small one is not made larger");
}

void VerTest::TheDrawingIsSeenNearerAndFarther() {
  test::MainWindow m;
  m.Area().PonerUtf8(Rows(200, 100) + "\r\n≠≠≠≠█");
  const QFont own = m.Area().document()->defaultFont();
  const BasAscii before = m.program.basAscii;
  const Trozo real = CellOf(m.Area());
  // Rows of that height or, where the font has no such size, a pixel less; a line is measured in whole
  // pixels.
  const auto proportional = [&](double height) {
    const Trozo now = CellOf(m.Area());
    const double width = now.height * real.width / real.height;
    return (now.height == height || now.height == height - 1) && std::abs(now.width - width) < 0.02 &&
           std::abs(CellOf(m.Area(), 100).width - width) <= 0.2001;
  };
  Turn(m.Area(), 60);
  QVERIFY(proportional(real.height));
  Turn(m.Area(), 60);
  QVERIFY(proportional(std::round(real.height * 1.25)));
  QVERIFY(!m.Area().SinGuardar() && !m.Area().PuedeDeshacer());
  m.Trigger("mnuTamanoReal");
  QVERIFY(m.Area().document()->defaultFont() == own);
  m.Trigger("mnuAlejar");
  QVERIFY(proportional(std::round(real.height / 1.25)));
  for (int i = 0; i < 20; ++i) m.Trigger("mnuAlejar");
  QVERIFY(proportional(2));
  m.Trigger("mnuTamanoReal");
  QNativeGestureEvent pinch(Qt::ZoomNativeGesture, QPointingDevice::primaryPointingDevice(), 2, {9, 9},
                            {9, 9}, {9, 9}, 1.0, {});
  QApplication::sendEvent(m.Area().viewport(), &pinch);
  QVERIFY(proportional(2 * real.height));

  QCOMPARE(m.program.ajustes.font, Font());
  QCOMPARE(m.program.basAscii.AsciiColumns, before.AsciiColumns);
  QCOMPARE(m.program.basAscii.CellWidth, before.CellWidth);
  QCOMPARE(m.Area().Utf8(), Rows(200, 100) + "\r\n≠≠≠≠█");
}

void VerTest::AllOfTheDrawingIsSeen() {
  test::MainWindow m;
  for (const auto& [columns, rows] : {std::pair{300, 20}, {30, 250}, {280, 90}, {10, 3}}) {
    m.Area().PonerTexto(Rows(columns, rows));
    m.Trigger("mnuTamanoReal");
    const Trozo real = CellOf(m.Area());
    m.Trigger("mnuVerTodo");
    QTest::qWait(1);
    QCOMPARE(m.Area().horizontalScrollBar()->maximum(), 0);
    QCOMPARE(m.Area().verticalScrollBar()->maximum(), 0);
    // Were the rows two pixels higher, it would not be.
    const double height = CellOf(m.Area()).height + 2;
    const QSize room = m.Area().maximumViewportSize();
    QVERIFY(height > real.height || height * rows + 4 > room.height() ||
            columns * height * real.width / real.height + 9 > room.width());
  }
}

void VerTest::TheLineMeasuresAndPointsAt() {
  test::MainWindow m;
  const auto line = [&] { return Find<QLabel>(m.window, "lblMedidas").text(); };
  QCOMPARE(line(), "");
  m.Area().PonerUtf8("abc\r\n≠≠█de😀\r\n");
  QCOMPARE(line(), "6 columnas x 2 filas");
  for (const char* way : {"mnuTamanoReal", "mnuAcercar"}) {
    m.Trigger(way);
    const Trozo cell = CellOf(m.Area());
    const auto point = [&](double column, double row) {
      const QPointF at(2 + (column - 0.5) * cell.width, 2 + (row - 0.5) * cell.height);
      QMouseEvent move(QEvent::MouseMove, at, at, Qt::NoButton, Qt::NoButton, {});
      QApplication::sendEvent(m.Area().viewport(), &move);
      return line();
    };
    QCOMPARE(point(1, 1), "6 columnas x 2 filas · columna 1, fila 1");
    QCOMPARE(point(5, 2), "6 columnas x 2 filas · columna 5, fila 2");
    QCOMPARE(point(5, 1), "6 columnas x 2 filas");
  }
}

QTEST_MAIN(VerTest)
#include "VerTest.moc"
