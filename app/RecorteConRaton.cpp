#include "app/RecorteConRaton.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QPushButton>

#include "platform/qt/Named.h"

namespace pixmosa {
namespace {

constexpr int kCerca = 7;  // pixels of the screen around an edge that take it
constexpr double kVelo = 0.55;

struct Proporcion {
  const char* texto;
  double valor;
};
constexpr double kDeLaImagen = -1;
constexpr std::array<Proporcion, 7> kProporciones = {{{"Libre", 0},
                                                      {"Como la imagen", kDeLaImagen},
                                                      {"1 : 1", 1},
                                                      {"4 : 3", 4.0 / 3},
                                                      {"3 : 2", 3.0 / 2},
                                                      {"16 : 9", 16.0 / 9},
                                                      {"2 : 3", 2.0 / 3}}};

}  // namespace

RecorteConRaton::RecorteConRaton(QSize natural, QWidget* view)
    : QWidget(view), natural_(natural), marca_({}, natural) {
  setObjectName("recorte");
  setAccessibleName(QStringLiteral("Parte de la imagen que queda"));
  setToolTip(
      QStringLiteral("Marque con el ratón la parte que queda; las flechas la mueven, Intro recorta, "
                     "Escape lo deja"));
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  resize(view->size());
  show();
  setFocus();
}

void RecorteConRaton::PonerProporcion(double proportion) {
  proporcion_ = proportion;
  if (proportion <= 0) return;
  // The largest of these proportions in the middle of what was marked.
  QSize size(marca_.width(), std::max(1, static_cast<int>(std::lround(marca_.width() / proportion))));
  if (size.height() > marca_.height())
    size = {std::max(1, static_cast<int>(std::lround(marca_.height() * proportion))), marca_.height()};
  QRect zone({}, size);
  zone.moveCenter(marca_.center());
  Poner(zone);
}

QPoint RecorteConRaton::Pixel(QPointF at) const {
  return {
      std::clamp(static_cast<int>(std::lround(at.x() * natural_.width() / width())), 0, natural_.width()),
      std::clamp(static_cast<int>(std::lround(at.y() * natural_.height() / height())), 0, natural_.height())};
}

QRectF RecorteConRaton::EnVista(const QRect& zone) const {
  const double across = double(width()) / natural_.width(), down = double(height()) / natural_.height();
  return {zone.x() * across, zone.y() * down, zone.width() * across, zone.height() * down};
}

Qt::Edges RecorteConRaton::BordesEn(QPointF at) const {
  const QRectF zone = EnVista(marca_);
  if (!zone.adjusted(-kCerca, -kCerca, kCerca, kCerca).contains(at)) return {};
  Qt::Edges edges;
  if (std::abs(at.x() - zone.left()) <= kCerca) edges |= Qt::LeftEdge;
  if (std::abs(at.x() - zone.right()) <= kCerca) edges |= Qt::RightEdge;
  if (std::abs(at.y() - zone.top()) <= kCerca) edges |= Qt::TopEdge;
  if (std::abs(at.y() - zone.bottom()) <= kCerca) edges |= Qt::BottomEdge;
  return edges;
}

void RecorteConRaton::Poner(QRect zone) {
  zone = zone.intersected({{}, natural_});
  if (zone.isEmpty()) return;
  marca_ = zone;
  update();
  emit Cambiada();
}

void RecorteConRaton::MarcarEntre(QPoint fixed, QPoint moving) {
  QPoint span = moving - fixed;
  if (proporcion_ > 0) {
    // As large as the pointer asks for and the picture has room for on that side.
    const int roomX = span.x() < 0 ? fixed.x() : natural_.width() - fixed.x();
    const int roomY = span.y() < 0 ? fixed.y() : natural_.height() - fixed.y();
    double across = std::max<double>(std::abs(span.x()), std::abs(span.y()) * proporcion_);
    across = std::min({across, double(roomX), roomY * proporcion_});
    const int w = static_cast<int>(std::lround(across)),
              h = static_cast<int>(std::lround(across / proporcion_));
    span = {span.x() < 0 ? -w : w, span.y() < 0 ? -h : h};
  }
  const QPoint other = fixed + span;
  Poner({QPoint(std::min(fixed.x(), other.x()), std::min(fixed.y(), other.y())),
         QSize(std::abs(span.x()), std::abs(span.y()))});
}

void RecorteConRaton::Mover(QPoint topLeft) {
  Poner({{std::clamp(topLeft.x(), 0, natural_.width() - marca_.width()),
          std::clamp(topLeft.y(), 0, natural_.height() - marca_.height())},
         marca_.size()});
}

void RecorteConRaton::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const QPoint at = Pixel(event->position());
  borde_ = BordesEn(event->position());
  antes_ = marca_;
  const bool whole = marca_.size() == natural_;
  if (borde_ && !whole) {
    gesto_ = Gesto::Borde;
    // The corner across from what was taken.
    fijo_ = {borde_.testFlag(Qt::LeftEdge) ? marca_.x() + marca_.width() : marca_.x(),
             borde_.testFlag(Qt::TopEdge) ? marca_.y() + marca_.height() : marca_.y()};
  } else if (!whole && marca_.contains(at)) {
    gesto_ = Gesto::Mover;
    fijo_ = at - marca_.topLeft();
  } else {
    gesto_ = Gesto::Marcar;
    fijo_ = at;
  }
}

void RecorteConRaton::mouseMoveEvent(QMouseEvent* event) {
  if (!event->buttons().testFlag(Qt::LeftButton)) {
    const Qt::Edges edges = marca_.size() == natural_ ? Qt::Edges() : BordesEn(event->position());
    const bool across = edges & (Qt::LeftEdge | Qt::RightEdge), down = edges & (Qt::TopEdge | Qt::BottomEdge);
    const bool falling = edges.testFlag(Qt::LeftEdge) == edges.testFlag(Qt::TopEdge);
    setCursor(across && down ? (falling ? Qt::SizeFDiagCursor : Qt::SizeBDiagCursor)
              : across       ? Qt::SizeHorCursor
              : down         ? Qt::SizeVerCursor
              : marca_.size() != natural_ && marca_.contains(Pixel(event->position())) ? Qt::SizeAllCursor
                                                                                       : Qt::CrossCursor);
    return;
  }
  QPoint at = Pixel(event->position());
  switch (gesto_) {
    case Gesto::Marcar:
      MarcarEntre(fijo_, at);
      break;
    case Gesto::Mover:
      Mover(at - fijo_);
      break;
    case Gesto::Borde:
      // An edge alone leaves the other direction as it was.
      if (!(borde_ & (Qt::LeftEdge | Qt::RightEdge))) at.setX(antes_.x() + antes_.width());
      if (!(borde_ & (Qt::TopEdge | Qt::BottomEdge))) at.setY(antes_.y() + antes_.height());
      MarcarEntre(fijo_, at);
      break;
    case Gesto::Ninguno:
      break;
  }
}

void RecorteConRaton::mouseDoubleClickEvent(QMouseEvent*) {
  emit Aceptada();
}

void RecorteConRaton::keyPressEvent(QKeyEvent* event) {
  QPoint step;
  switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      emit Aceptada();
      return;
    case Qt::Key_Escape:
      emit Dejada();
      return;
    case Qt::Key_Left:
      step = {-1, 0};
      break;
    case Qt::Key_Right:
      step = {1, 0};
      break;
    case Qt::Key_Up:
      step = {0, -1};
      break;
    case Qt::Key_Down:
      step = {0, 1};
      break;
    default:
      QWidget::keyPressEvent(event);
      return;
  }
  if (event->modifiers().testFlag(Qt::ShiftModifier)) {
    MarcarEntre(marca_.topLeft(), marca_.topLeft() + QPoint(marca_.width(), marca_.height()) + step);
  } else {
    Mover(marca_.topLeft() + step);
  }
}

void RecorteConRaton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QRectF zone = EnVista(marca_);
  QPainterPath outside;
  outside.addRect(rect());
  outside.addRect(zone);
  painter.fillPath(outside, QColor::fromRgbF(0, 0, 0, kVelo));
  // Seen on any picture: black and white by turns.
  painter.setPen(QPen(Qt::black, 1));
  const QRectF frame = zone.adjusted(0.5, 0.5, -0.5, -0.5);
  painter.drawRect(frame);
  painter.setPen(QPen(Qt::white, 1, Qt::DashLine));
  painter.drawRect(frame);
}

BarraDeRecorte::BarraDeRecorte(RecorteConRaton* crop, QSize natural) : recorte_(crop) {
  setObjectName("barraDeRecorte");
  setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
  auto* proportion = named<QComboBox>("cboProporcionRecorte");
  for (const Proporcion& p : kProporciones)
    proportion->addItem(QString::fromUtf8(p.texto),
                        p.valor == kDeLaImagen ? double(natural.width()) / natural.height() : p.valor);
  proportion->setToolTip(QStringLiteral("Las proporciones que guarda lo marcado"));
  proportion->setAccessibleName(QStringLiteral("Proporciones del recorte"));
  connect(proportion, &QComboBox::currentIndexChanged, crop,
          [crop, proportion] { crop->PonerProporcion(proportion->currentData().toDouble()); });
  lblRecorte_ = named<QLabel>("lblRecorte");
  lblRecorte_->setToolTip(QStringLiteral("Píxeles de ancho y de alto de la parte que queda"));
  auto* accept = named<QPushButton>("cmdRecortar", QStringLiteral("&Recortar"));
  auto* leave = named<QPushButton>("cmdDejarRecorte", QStringLiteral("Dejarlo"));
  connect(accept, &QAbstractButton::clicked, crop, &RecorteConRaton::Aceptada);
  connect(leave, &QAbstractButton::clicked, crop, &RecorteConRaton::Dejada);
  connect(crop, &RecorteConRaton::Cambiada, this, &BarraDeRecorte::Mostrar);
  proportion->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  proportion->setMinimumContentsLength(5);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 4, 0, 4);
  row->addWidget(proportion, 1);
  row->addWidget(lblRecorte_);
  row->addWidget(accept);
  row->addWidget(leave);
  Mostrar();
}

void BarraDeRecorte::Mostrar() {
  const Zona zone = recorte_->Marcada();
  lblRecorte_->setText(QStringLiteral("%1 x %2").arg(zone.ancho).arg(zone.alto));
}

}  // namespace pixmosa
