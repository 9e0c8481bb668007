// A program with no memory left.
#pragma once

#include <fstream>
#include <sys/resource.h>
#include <unistd.h>
#include <vector>

namespace pixmosa::test {

// While it lives, nothing of kTrozo bytes or more can be had; smaller things may.
class SinMemoria {
 public:
  static constexpr std::size_t kTrozo = 200 << 10;

  SinMemoria() {
    ::getrlimit(RLIMIT_AS, &before_);
    held_.reserve(1 << 16);
    rlim_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages;
    const rlimit now{pages * static_cast<rlim_t>(::getpagesize()), before_.rlim_max};
    ::setrlimit(RLIMIT_AS, &now);
    // What is free inside the program already.
    for (void* piece = nullptr; held_.size() < held_.capacity() && (piece = ::malloc(kTrozo));)
      held_.push_back(piece);
  }
  ~SinMemoria() {
    ::setrlimit(RLIMIT_AS, &before_);
    for (void* piece : held_) ::free(piece);
  }
  SinMemoria(const SinMemoria&) = delete;
  SinMemoria& operator=(const SinMemoria&) = delete;

 private:
  rlimit before_{};
  std::vector<void*> held_;
};

}  // namespace pixmosa::test
