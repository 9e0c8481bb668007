// Work that follows a dragged slider: however many values arrive before it can run, it runs once, with the
// last.
#pragma once

#include <functional>
#include <utility>

#include <QTimer>

namespace pixmosa {

class UltimoValor {
 public:
  explicit UltimoValor(std::function<void()> work) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, std::move(work));
  }

  // The work runs as soon as the events that wait now have been handled.
  void Pedir() { timer_.start(0); }

 private:
  QTimer timer_;
};

}  // namespace pixmosa
