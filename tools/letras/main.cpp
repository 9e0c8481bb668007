// Makes the shipped banner fonts and their catalogue, or shows them. Run by hand from the sources' folder:
//   letras                      writes data/Fonts
//   letras TEXT [STYLE...]      shows the text in the styles, in all of them when none is named
#include <algorithm>
#include <iostream>

#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "tools/letras/Fuente.h"

int main(int argc, char** argv) {
  using namespace pixmosa;
  using namespace pixmosa::letras;
  const std::filesystem::path folder = "data/Fonts", sheets = "tools/letras/hojas";
  for (const Estilo& style : kEstilos) {
    if (argc > 2 && std::find(argv + 2, argv + argc, style.nombre) == argv + argc) continue;
    const Letras letters = Pintadas(LeerHoja(sheets, std::string(style.hoja)), style);
    if (argc > 1)
      std::cout << style.nombre << '\n' << Utf8OfBytes(Letrero(letters, BytesOfUtf8(argv[1]))) << '\n';
    else
      EscribirArchivo(folder / (std::string(style.nombre) + ".flf"), ArchivoFlf(letters, style));
  }
  if (argc == 1) EscribirArchivo(folder / "categoriestree.txt", Catalogo());
  return 0;
}
