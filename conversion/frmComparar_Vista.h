// A picture fitted into its widget, which several such views show the same part of.
#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

namespace pixmosa {

// What of a picture is in view.
struct Encuadre {
  double aumento = 1;        // 1: the whole picture fits; 1..kMayorAumento
  QPointF centro{0.5, 0.5};  // the point in the middle of the view, in widths and heights of the picture
};

// The wheel and the keys + and - zoom, dragging and the arrows move, a double click and the key Home show the
// whole again.
class VistaComparada final : public QWidget {
  Q_OBJECT

 public:
  static constexpr double kMayorAumento = 32;

  explicit VistaComparada(QWidget* parent = nullptr);

  // A null image leaves the view empty, with this sentence in it.
  void Mostrar(const QImage& image, const QString& instead = {});
  void Encuadrar(const Encuadre& part);

  QSize sizeHint() const override { return {320, 320}; }
  QSize minimumSizeHint() const override { return {120, 120}; }

 signals:
  void Encuadrada(const Encuadre& part);  // by the user

 protected:
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  double Escala() const;  // pixels of the view for one of the picture
  void Pedir(Encuadre part);
  void Mover(QPointF by);  // pixels of the view

  QImage imagen_;
  bool gris_ = false;  // gray all over, as drawn text is
  QString enVez_;
  Encuadre parte_;
  QPixmap reducida_;  // the picture at a scale below 1, made for the last one
  QPointF agarrada_;
};

}  // namespace pixmosa
