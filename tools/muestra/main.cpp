// Paints the sample picture, the same every time: a cat by a window. Run by hand:
//   muestra data/muestra.png
#include <iostream>

#include "platform/AtomicFile.h"
#include "platform/png/Png.h"
#include "tools/muestra/Gato.h"
#include "tools/muestra/Rasgos.h"

int main(int argc, char** argv) {
  using namespace pixmosa;
  using namespace pixmosa::muestra;
  if (argc != 2) {
    std::cerr << "muestra SALIDA.png\n";
    return 2;
  }
  Lienzo canvas(kAncho, kAlto);
  for (int y = 0; y < canvas.Alto(); ++y)
    for (int x = 0; x < canvas.Ancho(); ++x) canvas.En(x, y) = Mirar(Lienzo::X(x), Lienzo::Y(y)).color;
  PintarPelo(canvas);
  PintarCara(canvas);
  PintarBigotes(canvas);
  const std::string bytes = EscribirPng(canvas.Imagen(), Empaquetado::Pequeno);
  AtomicFile file(argv[1]);
  file.Write(bytes);
  file.Commit();
}
