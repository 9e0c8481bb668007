#include <charconv>

#include "cli/OpcionesDeTexto.h"
#include "cli/Ordenes.h"

namespace pixmosa::cli {
namespace {

// The shortest decimal text that reads back to the same single-precision value.
std::string Exacto(float v) {
  char digits[32];
  return {digits, std::to_chars(digits, digits + sizeof digits, v).ptr};
}

int Hacer(Consola& consola, const Argumentos& arguments) {
  arguments.ExigirOperandos(0, 0, "");
  const BasAscii ascii = PrepararPrograma(consola, arguments).basAscii;
  std::string s =
      "celda\t" + std::to_string(ascii.CellWidth) + "\t" + std::to_string(ascii.CellHeight) + "\n";
  s += "minimo\t" + Exacto(ascii.BrightnessMin) + "\n";
  s += "maximo\t" + Exacto(ascii.BrightnessMax) + "\n";
  for (std::size_t code = 0; code < 256; ++code)
    s += "brillo\t" + std::to_string(code) + "\t" + Exacto(ascii.CharBrightness[code]) + "\n";
  for (std::size_t level = 0; level < 256; ++level)
    s += "gris\t" + std::to_string(level) + "\t" + std::to_string(ascii.GrayToChar[level]) + "\n";
  consola.Escribir(s);
  return 0;
}

}  // namespace

Orden OrdenTabla() {
  return {"tabla",
          "",
          "Muestra el brillo medido de cada carácter y el carácter de cada nivel de gris.",
          "pixmosa-cli tabla --paleta 1",
          OpcionesDeTabla(),
          Hacer};
}

}  // namespace pixmosa::cli
