#include "platform/Hilos.h"

#include <condition_variable>
#include <deque>
#include <exception>
#include <memory>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace pixmosa {
namespace {

struct Turno {
  Encargo encargo;
  bool hecho = false;
  std::exception_ptr fallo;
};

bool HacerUnoAUno(const std::function<std::optional<Encargo>()>& next) {
  while (const std::optional<Encargo> piece = next()) {
    piece->hacer(0);
    if (!piece->despues()) return false;
  }
  return true;
}

class Reparto {
 public:
  explicit Reparto(const std::function<std::optional<Encargo>()>& next) : siguiente_(next) {}

  bool Hacer(unsigned threads) {
    std::vector<std::jthread> all;
    enMarcha_ = threads;
    masEnFila_ = std::size_t{2} * threads;
    try {
      for (unsigned n = 0; n < threads; ++n)
        all.emplace_back([this, n] {
          while (const auto turn = Tomar()) Cumplir(*turn, n);
          const std::lock_guard lock(llave_);
          --enMarcha_;
          aviso_.notify_all();
        });
    } catch (const std::system_error&) {  // the system gives no more of them
      const std::lock_guard lock(llave_);
      enMarcha_ -= threads - static_cast<unsigned>(all.size());
    }
    return all.empty() ? HacerUnoAUno(siguiente_) : Recoger();
  }

 private:
  std::shared_ptr<Turno> Tomar() {
    const std::lock_guard taking(mano_);
    {
      std::unique_lock lock(llave_);
      aviso_.wait(lock, [this] { return acabado_ || fila_.size() < masEnFila_; });
      if (acabado_) return nullptr;
    }
    auto turn = std::make_shared<Turno>();
    try {
      std::optional<Encargo> next = siguiente_();
      if (!next) return nullptr;
      turn->encargo = std::move(*next);
    } catch (...) {
      turn->fallo = std::current_exception();
      turn->hecho = true;
    }
    const std::lock_guard lock(llave_);
    acabado_ = acabado_ || turn->hecho;
    fila_.push_back(turn);
    aviso_.notify_all();
    return turn;
  }

  void Cumplir(Turno& turn, unsigned thread) {
    if (turn.hecho) return;
    try {
      turn.encargo.hacer(thread);
    } catch (...) {
      turn.fallo = std::current_exception();
    }
    const std::lock_guard lock(llave_);
    turn.hecho = true;
    aviso_.notify_all();
  }

  // The caller's part: each piece in its turn. The threads end with this object's owner.
  bool Recoger() {
    std::unique_lock lock(llave_);
    for (;;) {
      aviso_.wait(lock, [this] { return fila_.empty() ? enMarcha_ == 0 : fila_.front()->hecho; });
      if (fila_.empty()) return true;
      const std::shared_ptr<Turno> turn = fila_.front();
      fila_.pop_front();
      aviso_.notify_all();
      lock.unlock();
      bool more = false;
      try {
        if (turn->fallo) std::rethrow_exception(turn->fallo);
        more = turn->encargo.despues();
      } catch (...) {
        Parar();
        throw;
      }
      if (!more) {
        Parar();
        return false;
      }
      lock.lock();
    }
  }

  void Parar() {
    const std::lock_guard lock(llave_);
    acabado_ = true;
    aviso_.notify_all();
  }

  const std::function<std::optional<Encargo>()>& siguiente_;
  std::mutex mano_, llave_;  // of who takes a piece; of what follows
  std::condition_variable aviso_;
  std::deque<std::shared_ptr<Turno>> fila_;  // taken, in order
  unsigned enMarcha_ = 0;
  std::size_t masEnFila_ = 0;
  bool acabado_ = false;
};

}  // namespace

bool Repartir(unsigned threads, const std::function<std::optional<Encargo>()>& siguiente) {
  return threads > 1 ? Reparto(siguiente).Hacer(threads) : HacerUnoAUno(siguiente);
}

}  // namespace pixmosa
