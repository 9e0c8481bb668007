#include "cli/OrdenFuentes.h"

namespace pixmosa::cli {
namespace {

int Hacer(Consola& consola, const Argumentos& arguments) {
  arguments.ExigirOperandos(0, 0, "");
  if (!arguments.Tiene("--fijas")) throw ErrorDeUso("falta la opción --fijas");
  std::string s;
  for (const std::string& name : consola.Superficie().ListFixedFonts()) s += name + "\n";
  consola.Escribir(s);
  return 0;
}

}  // namespace

Orden OrdenFuentes() {
  return {"fuentes",
          "",
          "Lista las fuentes.",
          "pixmosa-cli fuentes --fijas",
          {{"--fijas", Tipo::Interruptor, "", "las fuentes de ancho fijo del sistema, una por línea"}},
          Hacer};
}

}  // namespace pixmosa::cli
