#include "platform/qt/QtProgress.h"

#include <QCoreApplication>

namespace pixmosa {
namespace {

constexpr int kMilliseconds = 12;

}  // namespace

void QtProgress::Show() {
  since_.start();
  if (!bar_) return;
  bar_->setRange(0, 100);
  bar_->setValue(0);
  bar_->show();
}

void QtProgress::Hide() {
  if (bar_) bar_->hide();
}

void QtProgress::SetValue(int percent) {
  if (bar_ && bar_->value() != percent) bar_->setValue(percent);
}

void QtProgress::Yield() {
  if (since_.isValid() && since_.elapsed() < kMilliseconds) return;
  QCoreApplication::processEvents();
  since_.restart();
}

void QtProgress::Repintar() {
  if (bar_) bar_->window()->repaint();
}

}  // namespace pixmosa
