#include "platform/Temporales.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstring>
#include <ctime>
#include <unistd.h>

namespace pixmosa {
namespace {

constexpr long kMomento = 5'000'000;  // nanoseconds
constexpr std::size_t kAtOnce = 32, kLongestPath = 4096;

enum Estado { kLibre, kOcupado, kVivo };

struct Lugar {
  std::atomic<int> estado = kLibre;
  char path[kLongestPath] = {};
};

// A signal's handler reaches nothing but what is global, and may neither allocate nor wait.
std::array<Lugar, kAtOnce> lugares;
static_assert(std::atomic<int>::is_always_lock_free);

struct Adios {
  std::atomic<const char*> bytes = nullptr;
  std::size_t cuantos = 0;
  int descriptor = -1;
};
Adios adios;

std::atomic<bool> terminando = false;
static_assert(std::atomic<const char*>::is_always_lock_free && std::atomic<bool>::is_always_lock_free);

void QuitarTodos() {
  for (const Lugar& place : lugares)
    if (place.estado.load(std::memory_order_acquire) == kVivo) ::unlink(place.path);
}

extern "C" void QuitarYTerminar(int signal) {
  terminando.store(true);
  QuitarTodos();
  if (const char* bytes = adios.bytes.load(std::memory_order_acquire))
    if (::write(adios.descriptor, bytes, adios.cuantos) < 0)
      terminando.store(true);  // nobody is left to tell
  // Another thread may have been about to make its file.
  timespec moment{0, kMomento};
  ::nanosleep(&moment, nullptr);
  QuitarTodos();
  ::raise(signal);  // the handler is gone: the signal does what it always does
}

}  // namespace

Temporal::Temporal(const std::filesystem::path& file) {
  const std::string& path = file.native();
  if (path.size() >= kLongestPath) return;
  for (std::size_t i = 0; i < kAtOnce && place_ < 0; ++i) {
    int free = kLibre;
    if (!lugares[i].estado.compare_exchange_strong(free, kOcupado)) continue;
    std::memcpy(lugares[i].path, path.c_str(), path.size() + 1);
    lugares[i].estado.store(kVivo, std::memory_order_release);
    place_ = static_cast<int>(i);
  }
  while (terminando.load()) ::pause();  // the program is over: no new file
}

Despedida::Despedida(int descriptor, std::string_view bytes) {
  adios.descriptor = descriptor;
  adios.cuantos = bytes.size();
  adios.bytes.store(bytes.data(), std::memory_order_release);
}

Despedida::~Despedida() {
  adios.bytes.store(nullptr);
}

Temporal::~Temporal() {
  if (place_ >= 0) lugares[static_cast<std::size_t>(place_)].estado.store(kLibre, std::memory_order_release);
}

void QuitarTemporalesAlTerminar() {
  for (const int signal : {SIGINT, SIGTERM, SIGHUP}) {
    struct sigaction now {};
    if (::sigaction(signal, nullptr, &now) != 0 || now.sa_handler == SIG_IGN) continue;
    struct sigaction then {};
    then.sa_handler = QuitarYTerminar;
    then.sa_flags = static_cast<int>(SA_RESETHAND);
    ::sigemptyset(&then.sa_mask);
    ::sigaction(signal, &then, nullptr);
  }
  ::signal(SIGXFSZ, SIG_IGN);
}

}  // namespace pixmosa
