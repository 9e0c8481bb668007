#include "effects/frmEfectConfig_Detalle.h"

#include <algorithm>

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include "platform/qt/QtPicture.h"

namespace pixmosa {
namespace {

constexpr QSize kMedida(420, 150);
constexpr int kPasoDeTecla = 16;

}  // namespace

DetalleDeImagen::DetalleDeImagen(QWidget* parent) : QWidget(parent) {
  setMinimumSize(200, 90);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setCursor(Qt::OpenHandCursor);
  setFocusPolicy(Qt::TabFocus);
}

QSize DetalleDeImagen::sizeHint() const {
  return kMedida;
}

void DetalleDeImagen::Mostrar(const Picture& before, const Picture& after) {
  const bool other = before.Size() != antes_.Size();
  antes_ = before;
  despues_ = after;
  if (other) {
    const QSize view = Vista();
    IrA({(before.Width() - view.width()) / 2, (before.Height() - view.height()) / 2});
  }
  update();
}

QSize DetalleDeImagen::Vista() const {
  return QSize(width() / 2, height()) * devicePixelRatioF();
}

void DetalleDeImagen::IrA(QPoint origin) {
  const QSize view = Vista();
  const auto bound = [](int at, int whole, int seen) { return std::clamp(at, 0, std::max(0, whole - seen)); };
  origen_ = {bound(origin.x(), antes_.Width(), view.width()),
             bound(origin.y(), antes_.Height(), view.height())};
  update();
}

void DetalleDeImagen::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), palette().dark());
  const QSize view = Vista();
  const auto half = [&](const Picture& picture, int left, const QString& caption) {
    const QRect place(left, 0, width() / 2, height());
    if (!picture.IsEmpty()) {
      const QRect part = QRect(origen_, view) & QRect(0, 0, picture.Width(), picture.Height());
      painter.save();
      painter.setClipRect(place);
      painter.translate(left, 0);
      painter.scale(1 / devicePixelRatioF(), 1 / devicePixelRatioF());
      painter.drawImage(QPoint(0, 0), ImageOf(picture), part);
      painter.restore();
    }
    const QRect label = painter.fontMetrics().boundingRect(caption).adjusted(-4, -1, 4, 1);
    const QRect sign(place.left() + 3, place.bottom() - label.height() - 2, label.width(), label.height());
    painter.fillRect(sign, palette().toolTipBase());
    painter.setPen(palette().toolTipText().color());
    painter.drawText(sign, Qt::AlignCenter, caption);
  };
  half(antes_, 0, QStringLiteral("Antes"));
  half(despues_, width() / 2, QStringLiteral("Después"));
  painter.setPen(hasFocus() ? palette().highlight().color() : palette().window().color());
  painter.drawLine(width() / 2, 0, width() / 2, height());
  if (hasFocus()) painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void DetalleDeImagen::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  desde_ = event->pos();
  origenDesde_ = origen_;
  setCursor(Qt::ClosedHandCursor);
}

void DetalleDeImagen::mouseMoveEvent(QMouseEvent* event) {
  if (event->buttons().testFlag(Qt::LeftButton))
    IrA(origenDesde_ - (event->pos() - desde_) * devicePixelRatioF());
}

void DetalleDeImagen::mouseReleaseEvent(QMouseEvent*) {
  setCursor(Qt::OpenHandCursor);
}

void DetalleDeImagen::keyPressEvent(QKeyEvent* event) {
  QPoint step;
  switch (event->key()) {
    case Qt::Key_Left:
      step = {-kPasoDeTecla, 0};
      break;
    case Qt::Key_Right:
      step = {kPasoDeTecla, 0};
      break;
    case Qt::Key_Up:
      step = {0, -kPasoDeTecla};
      break;
    case Qt::Key_Down:
      step = {0, kPasoDeTecla};
      break;
    default:
      QWidget::keyPressEvent(event);
      return;
  }
  IrA(origen_ + step);
}

void DetalleDeImagen::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  IrA(origen_);
}

}  // namespace pixmosa
