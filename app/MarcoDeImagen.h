// The frame `picMarco` with the working picture `picMain` behind it, whole or at natural size, and the two
// scroll bars that move it then.
#pragma once

#include <QPixmap>
#include <QPointer>
#include <QScrollBar>
#include <QWidget>

#include "effects/Recorte.h"
#include "platform/Picture.h"

namespace pixmosa {

class BarraDeRecorte;
class RecorteConRaton;

// Paints a picture at natural size, one pixel of the picture a pixel of the widget, or smaller.
class VistaDeImagen final : public QWidget {
  Q_OBJECT

 public:
  explicit VistaDeImagen(QWidget* parent = nullptr);

  // The widget takes the picture's size; with a `room` that it does not fit, the largest of its proportions
  // that does.
  void Mostrar(const Picture& picture, QSize room = {});
  void Ajustar(QSize room);

  QSize Natural() const { return {picture_.Width(), picture_.Height()}; }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  Picture picture_;
  QPixmap encogida_;  // made when it is first painted
};

class MarcoDeImagen final : public QWidget {
  Q_OBJECT

 public:
  explicit MarcoDeImagen(QWidget* parent = nullptr);

  // Shows a picture; the position is kept where its size is the same.
  void Mostrar(const Picture& picture);

  // Fits a picture that is larger than the frame, in the middle of it; or shows it at natural size.
  void PonerAjustada(bool fitted);

  // Lets the user mark a part of the picture; nothing without one.
  void Recortar();

  // A button for the corner between the bars.
  void PonerBoton(QWidget* button);

  // Where the bars put the picture: -step * (offset div step), the offset being the hidden pixels x value /
  // maximum, rounded half to even.
  static int Desplazamiento(int hidden, int value, int maximum, int step);

  QSize sizeHint() const override;

 signals:
  void AjustePedido();  // a double click: the other of the two ways to see it
  void RecorteElegido(const pixmosa::Zona& zone);
  void ArrastrePedido();  // the picture is dragged out

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  QSize Sitio() const;  // that a fitted picture has
  void Colocar();
  void Recolocar();  // after what lies around the frame has changed
  void AjustarBarras();
  void Mover();
  void DejarRecorte();

  QWidget* marco_;
  VistaDeImagen* vista_;
  QScrollBar* horizontal_;
  QScrollBar* vertical_;
  bool ajustada_ = true;
  QPointer<RecorteConRaton> recorte_;
  QPointer<BarraDeRecorte> barra_;
  QPoint pulsado_;
  int giro_ = 0;  // of the wheel, not yet moved by
};

}  // namespace pixmosa
