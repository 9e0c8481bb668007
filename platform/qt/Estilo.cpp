#include "platform/qt/Estilo.h"

#include <QPainter>
#include <QStyleOptionMenuItem>
#include <QWidget>

namespace pixmosa {
namespace {

QIcon DeUnColor(const QIcon& icon, int side, double ratio, const QColor& colour) {
  QPixmap shape = icon.pixmap({side, side}, ratio);
  QPainter painter(&shape);
  painter.setCompositionMode(QPainter::CompositionMode_SourceIn);
  painter.fillRect(shape.rect(), colour);
  painter.end();
  return shape;
}

}  // namespace

void Estilo::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                         const QWidget* widget) const {
  const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
  const bool chosen = entry && (entry->state & State_Selected) && (entry->state & State_Enabled);
  if (element != CE_MenuItem || !chosen || entry->icon.isNull()) {
    QProxyStyle::drawControl(element, option, painter, widget);
    return;
  }
  QStyleOptionMenuItem seen(*entry);
  seen.icon = DeUnColor(entry->icon, pixelMetric(PM_SmallIconSize, option, widget),
                        widget ? widget->devicePixelRatioF() : 1, option->palette.highlightedText().color());
  QProxyStyle::drawControl(element, &seen, painter, widget);
}

}  // namespace pixmosa
