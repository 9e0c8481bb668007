// A progress bar of a window, and the event loop behind the yield.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QProgressBar>

#include "platform/Progress.h"

namespace pixmosa {

// The yield lets the event loop run at most every few milliseconds, so that work of thousands of rows does
// not pay for as many repaints.
class QtProgress final : public Progress {
 public:
  explicit QtProgress(QProgressBar* bar) : bar_(bar) {}
  void Show() override;
  void Hide() override;
  void SetValue(int percent) override;
  void Yield() override;

  // Shows the bar as it is now, before work that does not yield.
  void Repintar();

 private:
  QPointer<QProgressBar> bar_;
  QElapsedTimer since_;
};

}  // namespace pixmosa
