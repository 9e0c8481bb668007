#include <csignal>
#include <cstdio>
#include <fcntl.h>
#include <string>
#include <unistd.h>
#include <vector>

#include "cli/Orden.h"
#include "platform/Temporales.h"
#include "platform/qt/UltimaFrase.h"

namespace {

constexpr char kFallo[] = "pixmosa-cli: El trabajo no se ha podido terminar por un fallo del programa.\n";
constexpr char kSinQt[] =
    "pixmosa-cli: No se ha podido poner en marcha Qt, que dibuja las letras y lee las imágenes: su "
    "instalación "
    "está incompleta o falta memoria.\n";

// A standard stream that comes closed is opened the wrong way round: to use it is an error, and no file that
// the program opens later takes its number.
void OcuparFlujosCerrados() {
  constexpr int kContrario[] = {O_WRONLY, O_RDONLY, O_WRONLY};
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (::fcntl(stream, F_GETFD) < 0)
      ::open("/dev/null", kContrario[stream]);  // the lowest number that is free
}

// What the libraries have to say (of the fonts' settings, in English) goes nowhere: they write to the stream,
// this program to the descriptor.
void CallarBibliotecas() {
  if (std::FILE* nowhere = std::fopen("/dev/null", "we")) stderr = nowhere;
}

}  // namespace

int main(int argc, char** argv) {
  OcuparFlujosCerrados();
  CallarBibliotecas();
  pixmosa::PonerUltimaFrase<kFallo, kSinQt>();
  std::signal(SIGPIPE, SIG_IGN);  // writing fails with its reason instead
  pixmosa::QuitarTemporalesAlTerminar();
  const std::vector<std::string> words(argv + 1, argv + argc);
  pixmosa::cli::Consola consola;
  return pixmosa::cli::Ejecutar(consola, words);
}
