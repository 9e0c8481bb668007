// A progress bar of a window, and the event loop behind the yield.
#pragma once

#include <QElapsedTimer>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>

#include "platform/Progress.h"

namespace pixmosa {

// The yield lets the event loop run at most every few milliseconds, so that work of thousands of rows does
// not pay for as many repaints.
class QtProgress final : public Progress {
 public:
  explicit QtProgress(QProgressBar* bar) : bar_(bar) {}

  // Appears beside the bar where the work takes longer than a moment, and cancels it.
  void PonerBoton(QPushButton* cancel);
  void Show() override;
  void Hide() override;
  void SetValue(int percent) override;
  void Yield() override;

  // The bar only shows that the work goes on.
  void SinFin();

  // The next yield of the work that runs throws TrabajoCancelado.
  void Cancelar() { cancelado_ = true; }

  // Shows the bar as it is now, before work that does not yield.
  void Repintar();

 private:
  QPointer<QProgressBar> bar_;
  QPointer<QPushButton> boton_;
  QElapsedTimer since_, desdeElPrincipio_;
  bool cancelado_ = false;
};

}  // namespace pixmosa
