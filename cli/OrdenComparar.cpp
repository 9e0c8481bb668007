#include <algorithm>
#include <charconv>

#include "cli/OpcionesDeTexto.h"
#include "cli/Ordenes.h"
#include "programa/Comparacion.h"

namespace pixmosa::cli {
namespace {

std::string Numero(double v) {
  char digits[32];
  return {digits, std::to_chars(digits, digits + sizeof digits, v, std::chars_format::fixed, 1).ptr};
}

std::string Linea(const Resultado& r) {
  const Semejanza& s = r.semejanza;
  std::string line = r.nombre + "\t" + Numero(s.Puntos());
  for (const double part : {s.tono, s.lejos, s.cerca, s.fino}) line += "\t" + Numero(100 * part);
  return line + "\n";
}

int Hacer(Consola& consola, const Argumentos& arguments) {
  arguments.ExigirOperandos(1, 1, "la imagen");
  Programa p = PrepararPrograma(consola, arguments);
  p.imagen.Asignar(consola.LeerImagen(arguments.Operandos()[0]));
  std::vector<Resultado> results;
  for (const int method : {kGrayscale, kTono, kFormas}) {
    if (method == kGrayscale && !p.ajustes.caracteres.empty() && !TodosEnLaPagina(p.ajustes.caracteres))
      continue;
    Generar(p, method);
    results.push_back({kMetodos[method], Puntuar(p, TextoEnUtf8(p.basAscii))});
  }
  if (const auto file = arguments.Texto("--texto"))
    results.push_back({*file, Puntuar(p, consola.LeerBytes(*file))});
  std::stable_sort(results.begin(), results.end(), [](const Resultado& a, const Resultado& b) {
    return a.semejanza.Puntos() > b.semejanza.Puntos();
  });
  std::string lines;
  for (const Resultado& r : results) lines += Linea(r);
  consola.Escribir(lines);
  return 0;
}

}  // namespace

Orden OrdenComparar() {
  return {
      "comparar",
      "IMAGEN",
      "Mide cuánto se parece a la imagen el texto de cada método: puntos, tono, de lejos, de cerca y fino.",
      "pixmosa-cli comparar foto.jpg --columnas 80",
      Juntar({{"--texto", Tipo::Texto, "TEXTO.txt", "mide también un texto ya hecho, en UTF-8"}},
             OpcionesDeTexto()),
      Hacer};
}

}  // namespace pixmosa::cli
