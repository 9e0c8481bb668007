#include "platform/Temporales.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstring>
#include <unistd.h>

namespace pixmosa {
namespace {

constexpr std::size_t kAtOnce = 32, kLongestPath = 4096;

enum Estado { kLibre, kOcupado, kVivo };

struct Lugar {
  std::atomic<int> estado = kLibre;
  char path[kLongestPath] = {};
};

// A signal's handler reaches nothing but what is global, and may neither allocate nor wait.
std::array<Lugar, kAtOnce> lugares;
static_assert(std::atomic<int>::is_always_lock_free);

extern "C" void QuitarYTerminar(int signal) {
  for (const Lugar& place : lugares)
    if (place.estado.load(std::memory_order_acquire) == kVivo) ::unlink(place.path);
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
