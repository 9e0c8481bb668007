#include <string>
#include <vector>

#include "cli/Orden.h"
#include "platform/Temporales.h"

int main(int argc, char** argv) {
  pixmosa::QuitarTemporalesAlTerminar();
  const std::vector<std::string> words(argv + 1, argv + argc);
  pixmosa::cli::Consola consola;
  return pixmosa::cli::Ejecutar(consola, words);
}
