// How near the text is seen, and which cell the pointer is on.
#include <algorithm>
#include <cmath>

#include <QFontMetricsF>
#include <QGestureEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextLayout>
#include <QWheelEvent>

#include "platform/qt/AreaDeTexto.h"
#include "platform/qt/FormatoDeCeldas.h"
#include "platform/qt/QtFont.h"

namespace pixmosa {
namespace {

constexpr double kMenorAlto = 2, kMayorAlto = 200;  // of a row, in pixels
constexpr double kPaso = 1.25;
constexpr int kVuelta = 120;  // of a mouse wheel: one step

// A cell of the font as the text area shows it: its rows are whole pixels high.
QSizeF CeldaDe(const QFont& font) {
  const QFontMetricsF metrics(font);
  return {metrics.horizontalAdvance(u'0'), std::ceil(metrics.height())};
}

// The largest font whose rows are at most `height` pixels high; the letters' distance gives its cells the
// proportions of `cell`.
QFont FuenteDeAlto(const Font& font, double height, QSizeF cell) {
  QFont f = SmoothQtFontOf(font, 1);
  int pixels = static_cast<int>(height);
  do {
    f.setPixelSize(std::max(1, pixels--));
  } while (pixels > 0 && CeldaDe(f).height() > height);
  const QSizeF own = CeldaDe(f);
  f.setLetterSpacing(QFont::AbsoluteSpacing, own.height() * cell.width() / cell.height() - own.width());
  return f;
}

int Letras(const QString& line) {
  return static_cast<int>(
      std::count_if(line.begin(), line.end(), [](QChar c) { return !c.isLowSurrogate(); }));
}

}  // namespace

void AreaDeTexto::PonerFuente(const Font& font) {
  fuente_ = font;
  MostrarFuente();
}

double AreaDeTexto::Alto() const {
  return std::max(kMenorAlto, std::round(escala_ * CeldaDe(QtFontOf(fuente_)).height()));
}

void AreaDeTexto::MostrarFuente() {
  const QSizeF cell = CeldaDe(QtFontOf(fuente_));
  const QFont f = Alto() == cell.height() ? QtFontOf(fuente_) : FuenteDeAlto(fuente_, Alto(), cell);
  setFont(f);
  document()->setDefaultFont(f);
  if (celdas_) celdas_->Medir();
  // Getting a font counts as an edit of an empty document.
  if (document()->isEmpty()) document()->clearUndoRedoStacks();
  // Only another wrapping makes what can be scrolled to smaller.
  setLineWrapMode(WidgetWidth);
  AjustarAlineacion();
}

void AreaDeTexto::PonerEscala(double scale, QPointF about) {
  const double own = CeldaDe(QtFontOf(fuente_)).height(), before = Alto();
  escala_ = std::clamp(scale, kMenorAlto / own, std::max(1.0, kMayorAlto / own));
  const double now = Alto();
  if (now == before) return;
  QScrollBar *across = horizontalScrollBar(), *down = verticalScrollBar();  // by pixels, and by rows
  const double x = (across->value() + about.x()) * now / before - about.x();
  const double y = down->value() + about.y() / before - about.y() / now;
  MostrarFuente();
  across->setValue(static_cast<int>(std::lround(x)));
  down->setValue(static_cast<int>(std::lround(y)));
}

void AreaDeTexto::Acercar(int steps) {
  AcercarA(steps, viewport()->rect().center());
}

void AreaDeTexto::AcercarA(int steps, QPointF about) {
  const double before = Alto(), after = std::round(before * std::pow(kPaso, steps));
  // A step is one pixel at least.
  PonerEscala((after == before ? before + steps : after) / CeldaDe(QtFontOf(fuente_)).height(), about);
}

void AreaDeTexto::TamañoReal() {
  PonerEscala(1, viewport()->rect().center());
}

double AreaDeTexto::Margen() const {
  return 4 * document()->documentMargin() + 1;  // twice on each side, and rounded up
}

void AreaDeTexto::VerTodo() {
  const QSize text = Medidas();
  if (text.isEmpty()) return;
  const QSizeF cell = CeldaDe(QtFontOf(fuente_));
  const double margin = Margen();
  const double width = maximumViewportSize().width() - margin,
               height = maximumViewportSize().height() - margin;
  const double row =
      std::floor(std::min(height / text.height(), width / text.width() * cell.height() / cell.width()));
  PonerEscala(std::min(1.0, row / cell.height()), {});
  horizontalScrollBar()->setValue(0);
  verticalScrollBar()->setValue(0);
}

QSize AreaDeTexto::Medidas() const {
  if (EstaVacia()) return {0, 0};
  int columns = 0;
  for (QTextBlock line = document()->begin(); line.isValid(); line = line.next())
    if (line.length() > columns) columns = std::max(columns, Letras(line.text()));
  // The end of the last line begins no other.
  return {columns, blockCount() - (blockCount() > 1 && document()->lastBlock().length() == 1)};
}

int AreaDeTexto::ColumnasVisibles() const {
  const double width = maximumViewportSize().width() - verticalScrollBar()->sizeHint().width() - Margen();
  return std::max(1, static_cast<int>(width / CeldaDe(document()->defaultFont()).width()));
}

QPoint AreaDeTexto::CeldaEn(QPoint position) const {
  const QTextBlock block = cursorForPosition(position).block();
  const QRectF place = blockBoundingGeometry(block).translated(contentOffset());
  if (!block.layout() || block.layout()->lineCount() == 0) return {};
  const QTextLine line = block.layout()->lineAt(0);
  if (position.y() < place.top() || position.y() >= place.bottom() || position.x() < place.left() + line.x())
    return {};
  const int at = line.xToCursor(position.x() - place.left(), QTextLine::CursorOnCharacter);
  if (at >= block.length() - 1) return {};
  return {Letras(block.text().left(at)) + 1, block.blockNumber() + 1};
}

void AreaDeTexto::mouseMoveEvent(QMouseEvent* event) {
  QPlainTextEdit::mouseMoveEvent(event);
  emit Senalada(CeldaEn(event->position().toPoint()));
}

void AreaDeTexto::wheelEvent(QWheelEvent* event) {
  if (!event->modifiers().testFlag(Qt::ControlModifier)) {
    QPlainTextEdit::wheelEvent(event);
    return;
  }
  event->accept();
  // A touchpad sends many small turns: they add up.
  giro_ += event->angleDelta().y();
  const int steps = giro_ / kVuelta;
  giro_ -= steps * kVuelta;
  if (steps != 0) AcercarA(steps, event->position());
}

bool AreaDeTexto::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::Leave) {
    emit Senalada({});
  } else if (event->type() == QEvent::NativeGesture) {
    const auto* pinch = static_cast<QNativeGestureEvent*>(event);
    if (pinch->gestureType() != Qt::ZoomNativeGesture) return QPlainTextEdit::viewportEvent(event);
    PonerEscala(escala_ * (1 + pinch->value()), pinch->position());
    return true;
  } else if (event->type() == QEvent::Gesture) {
    auto* gestures = static_cast<QGestureEvent*>(event);
    const auto* pinch = static_cast<QPinchGesture*>(gestures->gesture(Qt::PinchGesture));
    if (!pinch) return QPlainTextEdit::viewportEvent(event);
    PonerEscala(escala_ * pinch->scaleFactor(), viewport()->mapFromGlobal(pinch->centerPoint()));
    return true;
  }
  return QPlainTextEdit::viewportEvent(event);
}

}  // namespace pixmosa
