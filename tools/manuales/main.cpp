// Writes the manual pages and the completions into a folder. Run by the build:
//   manuales VERSION HELP FOLDER      HELP is a file with what "pixmosa --help" prints
#include <array>
#include <filesystem>
#include <iostream>
#include <span>

#include "platform/AtomicFile.h"
#include "tools/manuales/Manuales.h"

int main(int argc, char** argv) try {
  using namespace pixmosa;
  const std::span<char*> words(argv, static_cast<std::size_t>(argc));
  if (words.size() != 4) {
    std::cerr << "manuales VERSIÓN AYUDA CARPETA\n";
    return 2;
  }
  const std::filesystem::path folder = words[3];
  struct Archivo {
    const char* nombre;
    std::string texto;
  };
  const std::array<Archivo, 5> files{
      Archivo{"pixmosa.1", manuales::PaginaDeVentana(words[1], LeerArchivo(words[2]))},
      {"pixmosa-cli.1", manuales::PaginaDeOrdenes(words[1])},
      {"pixmosa-cli", manuales::CompletarBash()},
      {"_pixmosa-cli", manuales::CompletarZsh()},
      {"pixmosa-cli.fish", manuales::CompletarFish()}};
  std::filesystem::create_directories(folder);
  for (const Archivo& file : files) EscribirArchivo(folder / file.nombre, file.texto);
  return 0;
} catch (const std::exception& e) {
  std::cerr << e.what() << "\n";
  return 1;
}
