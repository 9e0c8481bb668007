// The frame `picMarco` with the working picture `picMain` behind it and the two scroll bars that move it.
#pragma once

#include <QScrollBar>
#include <QWidget>

#include "platform/Picture.h"

namespace pixmosa {

// Paints a picture at natural size, one pixel of the picture a pixel of the widget.
class VistaDeImagen final : public QWidget {
  Q_OBJECT

 public:
  explicit VistaDeImagen(QWidget* parent = nullptr);
  void Mostrar(const Picture& picture);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Picture picture_;
};

class MarcoDeImagen final : public QWidget {
  Q_OBJECT

 public:
  explicit MarcoDeImagen(QWidget* parent = nullptr);

  // Shows a picture; the position is kept where its size is the same.
  void Mostrar(const Picture& picture);

  // Where the bars put the picture: -step * (offset div step), the offset being the hidden pixels x value /
  // maximum, rounded half to even.
  static int Desplazamiento(int hidden, int value, int maximum, int step);

  QSize sizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void AjustarBarras();
  void Mover();

  QWidget* marco_;
  VistaDeImagen* vista_;
  QScrollBar* horizontal_;
  QScrollBar* vertical_;
  int giro_ = 0;  // of the wheel, not yet moved by
};

}  // namespace pixmosa
