// A part of a picture before and after an effect, side by side, each of its pixels one of the screen.
#pragma once

#include <QWidget>

#include "platform/Picture.h"

namespace pixmosa {

// Dragging and the arrow keys move the part that is seen.
class DetalleDeImagen final : public QWidget {
  Q_OBJECT

 public:
  explicit DetalleDeImagen(QWidget* parent = nullptr);

  // Two pictures of one size. A picture of another size than before is seen at its middle.
  void Mostrar(const Picture& before, const Picture& after);

  // The pixel at the top left of both halves.
  QPoint Origen() const { return origen_; }

  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

 private:
  QSize Vista() const;  // pixels of the picture that a half shows
  void IrA(QPoint origin);

  Picture antes_, despues_;
  QPoint origen_, desde_, origenDesde_;
};

}  // namespace pixmosa
