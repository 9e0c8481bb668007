#include "app/MarcoDeImagen.h"

#include <algorithm>

#include <QApplication>
#include <QFrame>
#include <QGridLayout>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QWheelEvent>

#include "app/RecorteConRaton.h"
#include "platform/Rounding.h"
#include "platform/qt/Named.h"
#include "platform/qt/QtPicture.h"

namespace pixmosa {
namespace {

constexpr int kVisibleWidth = 320, kVisibleHeight = 250;
constexpr int kStepAcross = 6, kStepDown = 12;
constexpr int kVuelta = 120, kPasosPorVuelta = 3;  // of a mouse wheel, and what one moves

}  // namespace

VistaDeImagen::VistaDeImagen(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
}

void VistaDeImagen::Mostrar(const Picture& picture, QSize room) {
  picture_ = picture;
  encogida_ = {};
  Ajustar(room);
  setVisible(!picture.IsEmpty());
  update();
}

void VistaDeImagen::Ajustar(QSize room) {
  const bool larger = Natural().width() > room.width() || Natural().height() > room.height();
  resize(room.isEmpty() || !larger ? Natural()
                                   : Natural().scaled(room, Qt::KeepAspectRatio).expandedTo({1, 1}));
}

void VistaDeImagen::paintEvent(QPaintEvent* event) {
  if (picture_.IsEmpty()) return;
  QPainter painter(this);
  if (size() == Natural()) {
    painter.drawImage(event->rect(), ImageOf(picture_), event->rect());
    return;
  }
  const QSize pixels = size() * devicePixelRatioF();
  if (encogida_.size() != pixels) encogida_ = QPixmap::fromImage(Vista(picture_, pixels));
  painter.drawPixmap(rect(), encogida_);
}

MarcoDeImagen::MarcoDeImagen(QWidget* parent) : QWidget(parent) {
  auto* frame = named<QFrame>("picMarco", this);
  frame->setFrameShape(QFrame::NoFrame);
  frame->setAutoFillBackground(true);
  frame->setBackgroundRole(QPalette::Dark);
  frame->setToolTip(
      tr("Imagen de trabajo: arrastre aquí una imagen para cargarla; "
         "doble clic para verla entera o a tamaño natural"));
  marco_ = frame;
  frame->installEventFilter(this);
  vista_ = named<VistaDeImagen>("picMain", frame);
  vista_->hide();
  horizontal_ = named<QScrollBar>("HScroll1", Qt::Horizontal, this);
  vertical_ = named<QScrollBar>("VScroll1", Qt::Vertical, this);

  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(0);
  grid->addWidget(marco_, 0, 0);
  grid->addWidget(vertical_, 0, 1);
  grid->addWidget(horizontal_, 1, 0);
  connect(horizontal_, &QScrollBar::valueChanged, this, &MarcoDeImagen::Mover);
  connect(vertical_, &QScrollBar::valueChanged, this, &MarcoDeImagen::Mover);
  AjustarBarras();
}

QSize MarcoDeImagen::sizeHint() const {
  return {kVisibleWidth + vertical_->sizeHint().width(), kVisibleHeight + horizontal_->sizeHint().height()};
}

void MarcoDeImagen::Mostrar(const Picture& picture) {
  const QSize before = vista_->size();
  DejarRecorte();
  vista_->Mostrar(picture, Sitio());
  AjustarBarras();
  if (before != vista_->size()) {
    horizontal_->setValue(0);
    vertical_->setValue(0);
  }
  Mover();
}

QSize MarcoDeImagen::Sitio() const {
  return ajustada_ ? marco_->size() : QSize();
}

void MarcoDeImagen::PonerAjustada(bool fitted) {
  ajustada_ = fitted;
  Colocar();
}

void MarcoDeImagen::PonerBoton(QWidget* button) {
  static_cast<QGridLayout*>(layout())->addWidget(button, 1, 1);
}

void MarcoDeImagen::Colocar() {
  vista_->Ajustar(Sitio());
  vista_->update();
  AjustarBarras();
  Mover();
  if (recorte_) recorte_->resize(vista_->size());
}

void MarcoDeImagen::Recortar() {
  if (vista_->isHidden()) return;
  DejarRecorte();
  recorte_ = new RecorteConRaton(vista_->Natural(), vista_);
  barra_ = new BarraDeRecorte(recorte_, vista_->Natural());
  connect(recorte_, &RecorteConRaton::Dejada, this, &MarcoDeImagen::DejarRecorte);
  connect(recorte_, &RecorteConRaton::Aceptada, this, [this] {
    const Zona zone = recorte_->Marcada();
    const bool whole = QSize(zone.ancho, zone.alto) == vista_->Natural();
    DejarRecorte();
    if (!whole) emit RecorteElegido(zone);
  });
  static_cast<QGridLayout*>(layout())->addWidget(barra_, 2, 0, 1, 2);
  barra_->show();
  Recolocar();
}

void MarcoDeImagen::Recolocar() {
  layout()->activate();
  Colocar();
}

void MarcoDeImagen::DejarRecorte() {
  if (!recorte_) return;
  recorte_->deleteLater();
  barra_->deleteLater();
  recorte_->hide();
  barra_->hide();
  layout()->removeWidget(barra_);
  recorte_ = nullptr;
  barra_ = nullptr;
  Recolocar();
}

void MarcoDeImagen::mousePressEvent(QMouseEvent* event) {
  pulsado_ = event->pos();
}

void MarcoDeImagen::mouseMoveEvent(QMouseEvent* event) {
  const bool moved = (event->pos() - pulsado_).manhattanLength() >= QApplication::startDragDistance();
  if (event->buttons().testFlag(Qt::LeftButton) && moved && !recorte_ && !vista_->isHidden())
    emit ArrastrePedido();
}

void MarcoDeImagen::mouseDoubleClickEvent(QMouseEvent* event) {
  if (vista_->isHidden()) return;
  const QPointF at = event->position() - marco_->pos() - vista_->pos();
  const double across = at.x() / vista_->width(), down = at.y() / vista_->height();
  emit AjustePedido();
  if (ajustada_) return;
  // What was clicked on comes to the middle.
  horizontal_->setValue(RoundHalfEven(across * vista_->width() - marco_->width() / 2.0));
  vertical_->setValue(RoundHalfEven(down * vista_->height() - marco_->height() / 2.0));
}

int MarcoDeImagen::Desplazamiento(int hidden, int value, int maximum, int step) {
  if (hidden <= 0 || maximum <= 0) return 0;
  return -step * (RoundHalfEven(static_cast<double>(hidden) * value / maximum) / step);
}

void MarcoDeImagen::AjustarBarras() {
  const auto adjust = [](QScrollBar* bar, int whole, int visible, int step) {
    bar->setRange(0, std::max(0, whole - visible));
    bar->setPageStep(std::max(step, visible));
    bar->setSingleStep(step);
    bar->setEnabled(whole > visible);
  };
  const bool shown = !vista_->isHidden() && !ajustada_;
  adjust(horizontal_, shown ? vista_->width() : 0, marco_->width(), kStepAcross);
  adjust(vertical_, shown ? vista_->height() : 0, marco_->height(), kStepDown);
}

void MarcoDeImagen::Mover() {
  if (ajustada_) {
    const QSize spare = marco_->size() - vista_->size();
    vista_->move(spare.width() / 2, spare.height() / 2);
    return;
  }
  vista_->move(Desplazamiento(vista_->width() - marco_->width(), horizontal_->value(), horizontal_->maximum(),
                              kStepAcross),
               Desplazamiento(vista_->height() - marco_->height(), vertical_->value(), vertical_->maximum(),
                              kStepDown));
}

void MarcoDeImagen::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  Recolocar();
}

bool MarcoDeImagen::eventFilter(QObject* watched, QEvent* event) {
  if (watched == marco_ && event->type() == QEvent::Resize) Colocar();
  return QWidget::eventFilter(watched, event);
}

void MarcoDeImagen::wheelEvent(QWheelEvent* event) {
  const bool sideways = event->modifiers().testFlag(Qt::ShiftModifier) || event->angleDelta().y() == 0;
  QScrollBar* bar = sideways ? horizontal_ : vertical_;
  // A touchpad sends many small turns: they add up.
  giro_ += event->angleDelta().y() != 0 ? event->angleDelta().y() : event->angleDelta().x();
  const int steps = giro_ * kPasosPorVuelta / kVuelta;
  giro_ -= steps * kVuelta / kPasosPorVuelta;
  bar->setValue(bar->value() - steps * bar->singleStep());
  event->accept();
}

}  // namespace pixmosa
