// A program with no memory left.
#pragma once

#include <cstdlib>
#include <fstream>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

namespace pixmosa::test {

// While it lives, nothing of twice kTrozo bytes or more can be had; some megabytes of smaller things can.
class SinMemoria {
 public:
  static constexpr std::size_t kTrozo = 100 << 10;

  SinMemoria() {
    ::getrlimit(RLIMIT_AS, &before_);
    held_.reserve(1 << 16);
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const rlimit now{pages * static_cast<rlim_t>(::getpagesize()) + (8U << 20), before_.rlim_max};
    ::setrlimit(RLIMIT_AS, &now);
    for (void* piece = nullptr; held_.size() < held_.capacity() && (piece = std::malloc(kTrozo));)
      held_.push_back(piece);
    // Holes between pieces that stay; the last one stays too, so that nothing goes back to the system.
    for (std::size_t i = 0; i + 1 < held_.size(); i += 2) {
      const std::size_t hole = held_.size() % 2 == 0 ? i : i + 1;
      std::free(held_[hole]);
      held_[hole] = nullptr;
    }
  }
  ~SinMemoria() {
    ::setrlimit(RLIMIT_AS, &before_);
    for (void* piece : held_) std::free(piece);
  }
  SinMemoria(const SinMemoria&) = delete;
  SinMemoria& operator=(const SinMemoria&) = delete;

 private:
  rlimit before_{};
  std::vector<void*> held_;
};

}  // namespace pixmosa::test
