// Temporary files that must not outlive a program which is asked to end.
#pragma once

#include <filesystem>
#include <string_view>

namespace pixmosa {

// While it lives, its file is removed when the program is ended by a signal. A file whose path is longer than
// the system allows, or one of very many at a time, is let go.
class Temporal {
 public:
  explicit Temporal(const std::filesystem::path& file);
  ~Temporal();
  Temporal(const Temporal&) = delete;
  Temporal& operator=(const Temporal&) = delete;

 private:
  int place_ = -1;
};

// While it lives, these bytes go to a descriptor when the program is ended by a signal: what gives a terminal
// back as it was. They stay where they are as long; one at a time.
class Despedida {
 public:
  Despedida(int descriptor, std::string_view bytes);
  ~Despedida();
  Despedida(const Despedida&) = delete;
  Despedida& operator=(const Despedida&) = delete;
};

// For the start of a program, once: SIGINT, SIGTERM and SIGHUP remove every file that a Temporal stands for
// before they end the program as always; one that the program was started to ignore stays ignored. A file
// that grows beyond the limit set for the program makes writing fail (EFBIG) instead of ending it.
void QuitarTemporalesAlTerminar();

}  // namespace pixmosa
