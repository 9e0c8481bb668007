#include "editor/frmEditor_Superficie.h"

#include <QFontMetrics>
#include <QMouseEvent>
#include <QPainter>

#include "platform/qt/QtFont.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

constexpr int kWidth = CellWidth * (kColumns - 1), kHeight = CellHeight * (kRows - 1);
constexpr QColor kLineas(0xE0, 0xE0, 0xE0);

Point PointOf(const QMouseEvent* event) {
  const QPoint p = event->position().toPoint();
  return {p.x(), p.y()};
}

QRect RectOf(Cell c) {
  const Point p = PointFromCell(c);
  return {p.x, p.y, CellWidth, CellHeight};
}

QRect RectOf(Point a, Point b) {
  return QRect(QPoint(a.x, a.y), QPoint(b.x, b.y)).normalized().adjusted(0, 0, 0, 0);
}

}  // namespace

Superficie::Superficie(BasEditor& editor, Historial& history, const Font& font, QWidget* parent)
    : QWidget(parent), editor_(editor), history_(history), font_(QtFontOf(font)) {
  setFixedSize(kWidth, kHeight);
  setMouseTracking(true);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setCursor(Qt::CrossCursor);
}

QSize Superficie::sizeHint() const {
  return {kWidth, kHeight};
}

void Superficie::PonerHerramienta(Tool tool) {
  tool_ = tool;
  anchor_.reset();
  update();
}

void Superficie::Hacer(const std::function<void()>& action) {
  history_.Empezar(editor_);
  action();
  history_.Terminar(editor_);
  Refrescar();
  emit Cambiado();
}

void Superficie::Refrescar() {
  if (editor_.AllChanged) {
    update();
  } else {
    for (const Cell c : editor_.Changed) update(RectOf(c).adjusted(-1, -1, 1, 1));
  }
  editor_.AllChanged = false;
  editor_.Changed.clear();
}

void Superficie::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  painter.setFont(font_);
  const int ascent =
      QFontMetrics(font_).ascent() - 1;  // the glyphs of size 10 are a little taller than a cell
  for (const QRect& area : event->region()) {
    painter.setClipRect(area);
    painter.fillRect(area, Qt::white);
    painter.setPen(kLineas);
    for (int x = area.left() / CellWidth * CellWidth; x <= area.right(); x += CellWidth)
      painter.drawLine(x, area.top(), x, area.bottom());
    for (int y = area.top() / CellHeight * CellHeight; y <= area.bottom(); y += CellHeight)
      painter.drawLine(area.left(), y, area.right(), y);
    painter.setPen(Qt::black);
    // One cell more at the top and left: its glyph may reach into the area.
    for (int row = std::max(1, area.top() / CellHeight); row <= area.bottom() / CellHeight + 1 && row < kRows;
         ++row)
      for (int column = std::max(1, area.left() / CellWidth);
           column <= area.right() / CellWidth + 1 && column < kColumns; ++column) {
        const auto code = static_cast<unsigned char>(editor_.Screen.At({column, row}));
        if (code <= ' ') continue;
        const QRect r = RectOf(Cell{column, row});
        painter.drawText(r.left(), r.top() + ascent, QString(VisibleChar(code)));
      }
  }
  if (!anchor_) return;
  painter.setClipping(false);
  painter.setPen(QPen(Qt::white, 1));
  painter.drawRect(RectOf(*anchor_, corner_));
  painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
  painter.drawRect(RectOf(*anchor_, corner_));
}

void Superficie::Trazar(Cell c) {
  if (tool_ == Tool::Libre) PintarCaracter(editor_, c.column, c.row, editor_.CurrentChar);
  if (tool_ == Tool::Borrar) EraseCell(editor_, c);
  Refrescar();
}

void Superficie::MoverGoma(Point corner) {
  const QRect before = RectOf(*anchor_, corner_);
  corner_ = SnapToLattice(corner);
  update(before.united(RectOf(*anchor_, corner_)).adjusted(-2, -2, 2, 2));
}

void Superficie::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const Point p = PointOf(event);
  if (EsCaja()) {
    corner_ = SnapToLattice(p);
    anchor_ = corner_;
    MoverGoma(p);
  } else if (tool_ != Tool::Rellenar) {
    history_.Empezar(editor_);
    Trazar(CellFromPoint(p));
  }
}

void Superficie::mouseMoveEvent(QMouseEvent* event) {
  const Point p = PointOf(event);
  const Cell c = CellFromPoint(p);
  if (tool_ == Tool::Libre) emit CeldaSenalada(c.column, c.row);
  if (!event->buttons().testFlag(Qt::LeftButton)) return;
  if (anchor_) {
    MoverGoma(p);
  } else if (!EsCaja() && tool_ != Tool::Rellenar) {
    Trazar(c);
  }
}

void Superficie::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const Point p = PointOf(event);
  if (anchor_) {
    MoverGoma(p);
    const Point from = *anchor_;
    anchor_.reset();
    update(RectOf(from, corner_).adjusted(-2, -2, 2, 2));
    Hacer([&] { DrawBox(editor_, from, corner_, tool_ == Tool::CajaR); });
  } else if (tool_ == Tool::Rellenar) {
    Hacer([&] { FloodFill(editor_, CellFromPoint(p)); });
  } else {
    history_.Terminar(editor_);
    emit Cambiado();
  }
}

}  // namespace pixmosa
