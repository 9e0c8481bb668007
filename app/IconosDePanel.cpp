#include "app/IconosDePanel.h"

#include <functional>

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace pixmosa {
namespace {

constexpr int kSide = 16, kScale = 2;  // drawn twice as fine for high-resolution screens

QIcon Dibujado(const std::function<void(QPainter&, const QColor& ink)>& draw) {
  QPixmap picture(kSide * kScale, kSide * kScale);
  picture.setDevicePixelRatio(kScale);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  draw(painter, QGuiApplication::palette().color(QPalette::WindowText));
  return picture;
}

}  // namespace

QIcon IconoDeRenglones(Qt::Alignment alignment) {
  return Dibujado([&](QPainter& painter, const QColor& ink) {
    int y = 2;
    for (const int width : {13, 8, 13, 6}) {
      const int spare = 14 - width;
      const int x = alignment == Qt::AlignLeft ? 0 : alignment == Qt::AlignRight ? spare : spare / 2;
      painter.fillRect(x + 1, y, width, 2, ink);
      y += 3;
    }
  });
}

QIcon IconoDeBorde(Qt::Edge side) {
  return Dibujado([&](QPainter& painter, const QColor& ink) {
    QColor faint = ink;
    faint.setAlphaF(0.35F);
    painter.setPen(faint);
    painter.drawRect(2, 2, 11, 11);
    const bool across = side == Qt::TopEdge || side == Qt::BottomEdge;
    const int at = side == Qt::TopEdge || side == Qt::LeftEdge ? 1 : 12;
    painter.fillRect(across ? 1 : at, across ? at : 1, across ? 14 : 3, across ? 3 : 14, ink);
  });
}

}  // namespace pixmosa
