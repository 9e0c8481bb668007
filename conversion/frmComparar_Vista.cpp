#include "conversion/frmComparar_Vista.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <vector>

#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include "conversion/Malla.h"
#include "platform/Luz.h"

namespace pixmosa {
namespace {

constexpr double kAumentoDeMuesca = 1.25;  // for one notch of the wheel

// Where the view's middle may lie so that nothing but picture is in view, along one side.
double Dentro(double middle, double picture, double view) {
  const double half = std::min(0.5, view / picture / 2);
  return std::clamp(middle, half, 1 - half);
}

// The part 0..255 of linear light 0..1, after IEC 61966-2-1.
uchar ParteDeLuz(float light) {
  const double v = light <= 0.0031308F ? 12.92 * light : 1.055 * std::pow(light, 1 / 2.4) - 0.055;
  return static_cast<uchar>(std::clamp(std::lround(255 * v), 0L, 255L));
}

// Every pixel counts in the mean of light, so that fine characters become the tone that an eye sees from
// afar.
QImage ReducidaEnLuz(const QImage& gray, QSize size) {
  std::array<float, 256> light{};
  for (int part = 0; part < 256; ++part) light[part] = static_cast<float>(LuzDeParte(part));
  std::vector<float> values;
  values.reserve(static_cast<std::size_t>(gray.width()) * gray.height());
  for (int y = 0; y < gray.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(gray.constScanLine(y));
    std::transform(row, row + gray.width(), std::back_inserter(values),
                   [&](QRgb pixel) { return light[qGreen(pixel)]; });
  }
  const Malla means = MediaDe(values, {gray.width(), gray.height()}, {size.width(), size.height()});
  QImage reduced(size, QImage::Format_Grayscale8);
  for (int y = 0; y < size.height(); ++y)
    std::transform(means.Fila(y).begin(), means.Fila(y).end(), reduced.scanLine(y), ParteDeLuz);
  return reduced;
}

}  // namespace

VistaComparada::VistaComparada(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setFocusPolicy(Qt::StrongFocus);
  setCursor(Qt::OpenHandCursor);
}

void VistaComparada::Mostrar(const QImage& image, const QString& instead) {
  imagen_ = image;
  gris_ = image.format() == QImage::Format_RGB32 && image.allGray();
  enVez_ = instead;
  reducida_ = {};
  update();
}

void VistaComparada::Encuadrar(const Encuadre& part) {
  parte_ = part;
  update();
}

double VistaComparada::Escala() const {
  return parte_.aumento * std::min(static_cast<double>(width()) / imagen_.width(),
                                   static_cast<double>(height()) / imagen_.height());
}

void VistaComparada::Pedir(Encuadre part) {
  if (imagen_.isNull()) return;
  part.aumento = std::clamp(part.aumento, 1.0, kMayorAumento);
  parte_.aumento = part.aumento;
  const double scale = Escala();
  part.centro = {Dentro(part.centro.x(), imagen_.width() * scale, width()),
                 Dentro(part.centro.y(), imagen_.height() * scale, height())};
  Encuadrar(part);
  emit Encuadrada(part);
}

void VistaComparada::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().color(QPalette::Mid));
  if (imagen_.isNull()) {
    painter.drawText(rect().adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap, enVez_);
    return;
  }
  const double scale = Escala();
  const QSizeF size = QSizeF(imagen_.size()) * scale;
  const QPointF corner(width() / 2.0 - parte_.centro.x() * size.width(),
                       height() / 2.0 - parte_.centro.y() * size.height());
  const double dots = devicePixelRatioF();
  if (scale * dots >= 1) {
    painter.setRenderHint(QPainter::SmoothPixmapTransform, scale * dots < 2);
    painter.drawImage(QRectF(corner, size), imagen_);
  } else {
    const QSize whole = (size * dots).toSize().expandedTo({1, 1});
    if (reducida_.size() != whole)
      reducida_ =
          QPixmap::fromImage(gris_ ? ReducidaEnLuz(imagen_, whole)
                                   : imagen_.scaled(whole, Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
    reducida_.setDevicePixelRatio(dots);
    painter.drawPixmap(corner.toPoint(), reducida_);
  }
  if (hasFocus()) {
    painter.setPen(palette().color(QPalette::Highlight));
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
  }
}

void VistaComparada::wheelEvent(QWheelEvent* event) {
  event->accept();
  if (imagen_.isNull()) return;
  constexpr double kMuesca = 120;
  const double before = Escala();
  Encuadre part = parte_;
  part.aumento = std::clamp(part.aumento * std::pow(kAumentoDeMuesca, event->angleDelta().y() / kMuesca), 1.0,
                            kMayorAumento);
  // The point below the pointer stays there.
  const double after = before / parte_.aumento * part.aumento;
  const QPointF away = event->position() - QRectF(rect()).center();
  part.centro += QPointF(away.x() / imagen_.width(), away.y() / imagen_.height()) * (1 / before - 1 / after);
  Pedir(part);
}

void VistaComparada::mousePressEvent(QMouseEvent* event) {
  agarrada_ = event->position();
}

void VistaComparada::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) return;
  Mover(event->position() - agarrada_);
  agarrada_ = event->position();
}

void VistaComparada::Mover(QPointF by) {
  if (imagen_.isNull()) return;
  const QPointF moved = by / Escala();
  Encuadre part = parte_;
  part.centro -= QPointF(moved.x() / imagen_.width(), moved.y() / imagen_.height());
  Pedir(part);
}

void VistaComparada::mouseDoubleClickEvent(QMouseEvent*) {
  Pedir({});
}

void VistaComparada::keyPressEvent(QKeyEvent* event) {
  constexpr double kPaso = 40;
  switch (event->key()) {
    case Qt::Key_Plus:
      return Pedir({parte_.aumento * kAumentoDeMuesca, parte_.centro});
    case Qt::Key_Minus:
      return Pedir({parte_.aumento / kAumentoDeMuesca, parte_.centro});
    case Qt::Key_Home:
      return Pedir({});
    case Qt::Key_Left:
      return Mover({kPaso, 0});
    case Qt::Key_Right:
      return Mover({-kPaso, 0});
    case Qt::Key_Up:
      return Mover({0, kPaso});
    case Qt::Key_Down:
      return Mover({0, -kPaso});
    default:
      QWidget::keyPressEvent(event);
  }
}

void VistaComparada::focusInEvent(QFocusEvent*) {
  update();
}

void VistaComparada::focusOutEvent(QFocusEvent*) {
  update();
}

}  // namespace pixmosa
