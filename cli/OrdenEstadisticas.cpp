#include "cli/Ordenes.h"
#include "platform/CodePage.h"
#include "stats/Estadisticas.h"

namespace pixmosa::cli {
namespace {

int Hacer(Consola& consola, const Argumentos& arguments) {
  arguments.ExigirOperandos(1, 1, "el texto");
  std::string s;
  for (const FilaDeEstadistica& row : ShowStatistics(consola.LeerBytes(arguments.Operandos()[0])))
    s += Utf8OfBytes(row.label) + "\t" + row.value + "\n";
  consola.Escribir(s);
  return 0;
}

}  // namespace

Orden OrdenEstadisticas() {
  return {"estadisticas",
          "TEXTO",
          "Cuenta los caracteres, las líneas y las columnas de un texto.",
          "pixmosa-cli estadisticas dibujo.txt",
          {},
          Hacer};
}

}  // namespace pixmosa::cli
