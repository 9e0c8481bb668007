// The desktop's style, with the icons of chosen menu entries and list rows in the colour of their text.
#pragma once

#include <QProxyStyle>

namespace pixmosa {

class Estilo final : public QProxyStyle {
  Q_OBJECT

 public:
  using QProxyStyle::QProxyStyle;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
};

}  // namespace pixmosa
