#include <csignal>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

#include "cli/Orden.h"
#include "platform/Temporales.h"

namespace {

// A standard stream that comes closed is opened the wrong way round: to use it is an error, and no file that
// the program opens later takes its number.
void OcuparFlujosCerrados() {
  constexpr int kContrario[] = {O_WRONLY, O_RDONLY, O_WRONLY};
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (::fcntl(stream, F_GETFD) < 0)
      ::open("/dev/null", kContrario[stream]);  // the lowest number that is free
}

}  // namespace

int main(int argc, char** argv) {
  OcuparFlujosCerrados();
  std::signal(SIGPIPE, SIG_IGN);  // writing fails with its reason instead
  pixmosa::QuitarTemporalesAlTerminar();
  const std::vector<std::string> words(argv + 1, argv + argc);
  pixmosa::cli::Consola consola;
  return pixmosa::cli::Ejecutar(consola, words);
}
