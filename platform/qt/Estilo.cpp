#include "platform/qt/Estilo.h"

#include <algorithm>
#include <optional>
#include <span>
#include <type_traits>

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace pixmosa {
namespace {

// Percent of a pixel's alpha that stays where the icon is black and where it is white: what is light in it
// shows less, so that its parts stay apart.
constexpr int kMasClaro = 130, kMenosClaro = 30;

QIcon DeUnColor(const QIcon& icon, int side, double ratio, const QColor& colour) {
  QImage shape = icon.pixmap({side, side}, ratio).toImage().convertToFormat(QImage::Format_ARGB32);
  for (int y = 0; y < shape.height(); ++y)
    for (QRgb& p :
         std::span(reinterpret_cast<QRgb*>(shape.scanLine(y)), static_cast<std::size_t>(shape.width())))
      p = qRgba(colour.red(), colour.green(), colour.blue(),
                std::min(255, qAlpha(p) * (kMasClaro - qGray(p) * (kMasClaro - kMenosClaro) / 255) / 100));
  return QPixmap::fromImage(shape);
}

// The option as it is drawn where its entry is chosen: with the icon in the text's colour.
template <typename Option>
std::optional<Option> Elegida(const QStyle& style, const QStyleOption* option, const QWidget* widget) {
  const auto* entry = qstyleoption_cast<const Option*>(option);
  const bool chosen =
      entry && (entry->state & QStyle::State_Selected) && (entry->state & QStyle::State_Enabled);
  if (!chosen || entry->icon.isNull()) return std::nullopt;
  int side = style.pixelMetric(QStyle::PM_SmallIconSize, option, widget);
  if constexpr (std::is_same_v<Option, QStyleOptionViewItem>) side = entry->decorationSize.width();
  Option seen(*entry);
  seen.icon = DeUnColor(entry->icon, side, widget ? widget->devicePixelRatioF() : 1,
                        option->palette.highlightedText().color());
  return seen;
}

}  // namespace

void Estilo::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                         const QWidget* widget) const {
  if (element == CE_MenuItem) {
    if (const auto seen = Elegida<QStyleOptionMenuItem>(*this, option, widget))
      return QProxyStyle::drawControl(element, &*seen, painter, widget);
  } else if (element == CE_ItemViewItem) {
    if (const auto seen = Elegida<QStyleOptionViewItem>(*this, option, widget))
      return QProxyStyle::drawControl(element, &*seen, painter, widget);
  }
  QProxyStyle::drawControl(element, option, painter, widget);
}

}  // namespace pixmosa
