#include "platform/qt/QtProgress.h"

#include <utility>

#include <QCoreApplication>

#include "platform/Errores.h"

namespace pixmosa {
namespace {

constexpr int kMilliseconds = 12;
constexpr int kUnMomento = 400;  // milliseconds

}  // namespace

void QtProgress::PonerBoton(QPushButton* cancel) {
  boton_ = cancel;
  QObject::connect(cancel, &QPushButton::clicked, cancel, [this] { Cancelar(); });
}

void QtProgress::Show() {
  cancelado_ = false;
  since_.start();
  desdeElPrincipio_.start();
  if (!bar_) return;
  bar_->setRange(0, 100);
  bar_->setValue(0);
  bar_->show();
}

void QtProgress::SinFin() {
  if (bar_) bar_->setRange(0, 0);
}

void QtProgress::Hide() {
  if (bar_) bar_->hide();
  if (boton_) boton_->hide();
}

void QtProgress::SetValue(int percent) {
  if (bar_ && bar_->value() != percent) bar_->setValue(percent);
}

void QtProgress::Yield() {
  if (since_.isValid() && since_.elapsed() < kMilliseconds) return;
  if (boton_ && bar_->isVisible() && desdeElPrincipio_.elapsed() > kUnMomento) boton_->show();
  QCoreApplication::processEvents();
  since_.restart();
  if (std::exchange(cancelado_, false)) throw TrabajoCancelado();
}

void QtProgress::Repintar() {
  if (bar_) bar_->window()->repaint();
}

}  // namespace pixmosa
