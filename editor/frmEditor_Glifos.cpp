#include "editor/frmEditor_Glifos.h"

#include <QFontMetricsF>
#include <QPainterPath>

#include "editor/basEditor.h"
#include "platform/qt/Muestra.h"
#include "platform/qt/QtFont.h"
#include "platform/qt/QtText.h"

namespace pixmosa {
namespace {

// Lines, blocks and braille, which fill their cell so that they meet.
bool LlenaLaCelda(char32_t c) {
  return (c >= 0x2500 && c <= 0x259F) || (c >= 0x2800 && c <= 0x28FF);
}

QString TextoDe(char32_t c) {
  return c < 256 ? QString(c == 0xAD ? QChar(u'-') : QChar(static_cast<char16_t>(c)))
                 : QString::fromUcs4(&c, 1);
}

}  // namespace

void Glifos::PonerEscala(const Escala& scale, double pixelRatio) {
  scale_ = scale;
  ratio_ = pixelRatio;
  made_.clear();
}

void Glifos::Dibujar(QPainter& painter, QPoint at, char32_t c, Colour ink) {
  if (c <= U' ' || c == 0xA0) return;
  constexpr qsizetype kMost = 20000;
  const quint64 key = quint64{c} | static_cast<quint64>(ink + 1) << 21;
  auto found = made_.find(key);
  if (found == made_.end()) {
    if (made_.size() > kMost) made_.clear();
    found = made_.insert(key, Hacer(c, ink));
  }
  painter.drawPixmap(at - Margen(), *found);
}

QPixmap Glifos::Hacer(char32_t c, Colour ink) const {
  const QPoint margin = Margen();
  // Seen from afar, a glyph is its own size made smaller.
  const double shrink = scale_.ancho < CellWidth ? CellWidth / static_cast<double>(scale_.ancho) : 1;
  const QSizeF size = QSizeF(scale_.ancho + 2 * margin.x(), scale_.alto + 2 * margin.y());
  QPixmap glyph((size * shrink * ratio_).toSize());
  glyph.setDevicePixelRatio(shrink * ratio_);
  glyph.fill(Qt::transparent);
  QPainter painter(&glyph);
  painter.setPen(ink == kNoColour ? QColor(Qt::black) : QColorOf(ink));
  painter.setBrush(painter.pen().color());
  painter.translate(margin);
  if (shrink > 1) painter.scale(1 / shrink, 1 / shrink);
  Pintar(painter, c);
  painter.end();
  if (shrink > 1) {
    glyph = glyph.scaled((size * ratio_).toSize(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    glyph.setDevicePixelRatio(ratio_);
  }
  return glyph;
}

void Glifos::Pintar(QPainter& painter, char32_t c) const {
  const int width = std::max(scale_.ancho, CellWidth), height = std::max(scale_.alto, CellHeight);
  QFont font = width == CellWidth ? QtFontOf(font_) : SmoothQtFontOf(font_, 1);
  font.setPixelSize(PixelHeight(font_) * height / CellHeight);
  if (c > 0xFF)
    font.setStyleStrategy(static_cast<QFont::StyleStrategy>(font.styleStrategy() & ~QFont::NoFontMerging));
  const QFontMetricsF metrics(font);
  const QString text = TextoDe(c);
  if (LlenaLaCelda(c)) {
    QPainterPath path;
    path.addText(0, metrics.ascent(), font, text);
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(width / metrics.horizontalAdvance(text), height / (metrics.ascent() + metrics.descent()));
    painter.drawPath(path);
    return;
  }
  painter.setFont(font);
  // The glyphs are a little taller than a cell. One that another family lends is as wide as a cell at most.
  const double advance = metrics.horizontalAdvance(text);
  if (advance > width * 1.25) painter.scale(width / advance, 1);
  painter.drawText(QPointF(0, metrics.ascent() - height / static_cast<double>(CellHeight)), text);
}

}  // namespace pixmosa
