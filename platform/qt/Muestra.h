// Colour swatches.
#pragma once

#include <QPainter>
#include <QPushButton>

#include "platform/Colour.h"

namespace pixmosa {

inline QColor QColorOf(Colour colour) {
  const ColourParts c = SplitColour(colour);
  return {c.red, c.green, c.blue};
}

inline void PintarMuestra(QPushButton* swatch, Colour colour) {
  QPixmap fill(28, 14);
  fill.fill(QColorOf(colour));
  QPainter frame(&fill);
  frame.setPen(Qt::gray);
  frame.drawRect(fill.rect().adjusted(0, 0, -1, -1));
  frame.end();
  swatch->setIcon(fill);
}

// A button that shows a colour.
inline QPushButton* MuestraDeColor(const char* name, const char* help, Colour colour) {
  auto* swatch = new QPushButton;
  swatch->setObjectName(QString::fromUtf8(name));
  swatch->setToolTip(QString::fromUtf8(help));
  swatch->setAccessibleName(QString::fromUtf8(help));
  swatch->setIconSize({28, 14});
  swatch->setFixedWidth(42);
  PintarMuestra(swatch, colour);
  return swatch;
}

}  // namespace pixmosa
