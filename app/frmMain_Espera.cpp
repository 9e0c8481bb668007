// Work that takes long and cannot show how far it is: it runs beside the window, which shows that it goes on
// and can give it up.
#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>

#include <QCoreApplication>

#include "app/frmMain.h"

namespace pixmosa {

struct frmMain::Espera {
  std::mutex cierre;
  std::condition_variable aviso;
  bool hecha = false;
  std::exception_ptr fallo;

  bool Hecha(int milliseconds) {
    std::unique_lock lock(cierre);
    return aviso.wait_for(lock, std::chrono::milliseconds(milliseconds), [this] { return hecha; });
  }
};

void frmMain::EsperarA(const std::function<void()>& work) {
  constexpr int kUnMomento = 300, kEntreEventos = 15;  // milliseconds
  if (ocupada_) {
    work();
    return;
  }
  auto wait = std::make_shared<Espera>();
  try {
    std::thread([wait, work] {
      try {
        work();
      } catch (...) {
        wait->fallo = std::current_exception();
      }
      const std::lock_guard lock(wait->cierre);
      wait->hecha = true;
      wait->aviso.notify_all();
    }).detach();
  } catch (const std::system_error&) {  // no room for a thread
    work();
    return;
  }
  if (!wait->Hecha(kUnMomento)) EsperarMirando(wait, kEntreEventos);
  if (wait->fallo) std::rethrow_exception(wait->fallo);
}

void frmMain::EsperarMirando(const std::shared_ptr<Espera>& wait, int milliseconds) {
  Ocupar(true);
  progreso_.SinFin();
  while (!cancelada_ && !cerrarDespues_ && !wait->Hecha(milliseconds)) QCoreApplication::processEvents();
  const bool leave = cerrarDespues_, given_up = cancelada_ || leave;
  Ocupar(false);
  if (given_up) {
    abandonadas_.push_back(wait);
    if (leave) QMetaObject::invokeMethod(this, &QWidget::close, Qt::QueuedConnection);
    throw TrabajoCancelado();
  }
}

void frmMain::EsperarAbandonadas() {
  for (const auto& wait : abandonadas_)
    while (!wait->Hecha(1000)) continue;
}

}  // namespace pixmosa
