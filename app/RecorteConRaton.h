// Marking the part of a picture that stays: a rectangle over its view, drawn, moved and sized with the mouse
// or the keyboard, and the bar with its proportions and buttons.
#pragma once

#include <QWidget>

#include "effects/Recorte.h"

class QComboBox;
class QLabel;

namespace pixmosa {

// Lies over the view of a picture and shows its rectangle in the view's scale.
class RecorteConRaton final : public QWidget {
  Q_OBJECT

 public:
  // `natural` is the picture's size in pixels. The whole of it is marked at first.
  RecorteConRaton(QSize natural, QWidget* view);

  // Width by height that the rectangle keeps; 0 for any.
  void PonerProporcion(double proportion);

  Zona Marcada() const { return {marca_.x(), marca_.y(), marca_.width(), marca_.height()}; }

 signals:
  void Cambiada();
  void Aceptada();
  void Dejada();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  enum class Gesto { Ninguno, Marcar, Mover, Borde };
  QPoint Pixel(QPointF at) const;
  QRectF EnVista(const QRect& zone) const;
  Qt::Edges BordesEn(QPointF at) const;
  void MarcarEntre(QPoint fixed, QPoint moving);
  void Mover(QPoint topLeft);
  void Poner(QRect zone);

  QSize natural_;
  QRect marca_;
  double proporcion_ = 0;
  Gesto gesto_ = Gesto::Ninguno;
  QPoint fijo_;  // the corner that stays, or where in the rectangle it was taken
  Qt::Edges borde_;
  QRect antes_;
};

// The bar under it.
class BarraDeRecorte final : public QWidget {
  Q_OBJECT

 public:
  BarraDeRecorte(RecorteConRaton* crop, QSize natural);

 private:
  void Mostrar();

  RecorteConRaton* recorte_;
  QLabel* lblRecorte_;
};

}  // namespace pixmosa
