// What the drawing surface shows: only what lies in the area that is to be painted.
#include <QPaintEvent>
#include <QPainter>

#include "editor/frmEditor_Superficie.h"

namespace pixmosa {
namespace {

constexpr QColor kLineas(0xE0, 0xE0, 0xE0);
constexpr QColor kResalte(0x30, 0x80, 0xE0, 0x48);
constexpr int kMenorRejilla = 6;  // pixels of a cell that has lines

void MarcoDiscontinuo(QPainter& painter, const QRect& box) {
  painter.setPen(QPen(Qt::white, 1));
  painter.drawRect(box);
  painter.setPen(QPen(Qt::black, 1, Qt::DashLine));
  painter.drawRect(box);
}

}  // namespace

QRect Superficie::RectDeGoma() const {
  const Escala& s = kEscalas[scaleIndex_];
  const auto at = [&](Point p) { return QPoint(p.x * s.ancho / CellWidth, p.y * s.alto / CellHeight); };
  return QRect(at(*anchor_), at(corner_)).normalized();
}

QRect Superficie::RectDeCalco() const {
  const QRect whole = RectDe(ZonaEntera(editor_.Grid));
  return {QPoint(), tracing_.size().scaled(whole.size(), Qt::KeepAspectRatio)};
}

void Superficie::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  if (!tracing_.isNull() && tracingScaled_.isNull()) {
    constexpr qint64 kMostPixels = 16 << 20;
    const QSize size = RectDeCalco().size();
    tracingScaled_ =
        QPixmap::fromImage(qint64{size.width()} * size.height() > kMostPixels
                               ? tracing_
                               : tracing_.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
  }
  for (const QRect& area : event->region()) {
    painter.setClipRect(area);
    PintarArea(painter, area);
    PintarEncima(painter, area);
  }
}

void Superficie::PintarArea(QPainter& painter, const QRect& area) {
  const Escala& s = kEscalas[scaleIndex_];
  painter.fillRect(area, Qt::white);
  if (!tracing_.isNull()) {
    painter.setOpacity(opacity_);
    painter.drawPixmap(RectDeCalco(), tracingScaled_);
    painter.setOpacity(1);
  }
  if (grid_ && s.ancho >= kMenorRejilla) {
    painter.setPen(kLineas);
    for (int x = area.left() / s.ancho * s.ancho; x <= area.right(); x += s.ancho)
      painter.drawLine(x, area.top(), x, area.bottom());
    for (int y = area.top() / s.alto * s.alto; y <= area.bottom(); y += s.alto)
      painter.drawLine(area.left(), y, area.right(), y);
  }
  // One cell more all round: its glyph may reach into the area.
  const Lienzo& grid = editor_.Grid;
  const ZonaDeCeldas zone = EnElLienzo(grid, {CeldaEn(area.topLeft() - QPoint(s.ancho, s.alto)),
                                              CeldaEn(area.bottomRight() + QPoint(s.ancho, s.alto))});
  const bool lifted = floating_ && floating_->origen;
  for (int row = zone.desde.row; row <= zone.hasta.row; ++row)
    for (Cell c{zone.desde.column, row}; c.column <= zone.hasta.column; ++c.column)
      if (const char32_t ch = grid.Visto(c); ch > U' ' && !(lifted && floating_->origen->Contiene(c)))
        glyphs_.Dibujar(painter, RectDe({c, c}).topLeft(), ch, grid.Tinta(c));
}

void Superficie::PintarEncima(QPainter& painter, const QRect& area) {
  if (!region_.Vacia()) {
    const ZonaDeCeldas zone =
        EnElLienzo(editor_.Grid, {CeldaEn(area.topLeft()), CeldaEn(area.bottomRight())});
    for (int row = zone.desde.row; row <= zone.hasta.row; ++row)
      for (Cell c{zone.desde.column, row}, from = c; c.column <= zone.hasta.column; ++c.column) {
        if (!region_.Contiene(c)) continue;
        for (from = c; c.column < zone.hasta.column && region_.Contiene({c.column + 1, row});) ++c.column;
        painter.fillRect(RectDe({from, c}), kResalte);
      }
  }
  for (const auto& [c, ch] : figure_) {
    const QRect cell = RectDe({c, c});
    if (!cell.adjusted(-4, -4, 4, 4).intersects(area)) continue;
    painter.fillRect(cell, Qt::white);
    painter.fillRect(cell, kResalte);
    glyphs_.Dibujar(painter, cell.topLeft(), ch, editor_.CurrentChar.tinta);
  }
  if (floating_) {
    const Bloque& block = floating_->bloque;
    for (int row = 0; row < block.filas; ++row)
      for (int column = 0; column < block.columnas; ++column) {
        const Cell c{floating_->en.column + column, floating_->en.row + row};
        const QRect cell = RectDe({c, c});
        if (!cell.adjusted(-8, -8, 8, 8).intersects(area)) continue;
        const Letra& letter = block.En(column, row);
        if (opciones.porosa && letter.caracter == U' ') continue;
        painter.fillRect(cell, QColor(0xE8, 0xF1, 0xFC));
        glyphs_.Dibujar(painter, cell.topLeft(), letter.caracter, letter.tinta);
      }
  }
  if (selection_) {
    if (!floating_) painter.fillRect(RectDe(*selection_).intersected(area), QColor(0x30, 0x80, 0xE0, 0x20));
    MarcoDiscontinuo(painter, RectDe(*selection_).adjusted(0, 0, -1, -1));
  }
  if (tool_ == Tool::Texto) {
    painter.setPen(QPen(QColor(0x10, 0x60, 0xD0), 2));
    painter.drawRect(RectDe({cursor_, cursor_}));
  }
  if (anchor_) MarcoDiscontinuo(painter, RectDeGoma());
}

}  // namespace pixmosa
