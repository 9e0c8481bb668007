#include <algorithm>

#include "cli/Destino.h"
#include "cli/OpcionesDeTexto.h"
#include "cli/Ordenes.h"
#include "conversion/TextoGuardado.h"
#include "platform/AtomicFile.h"
#include "programa/Generar.h"

namespace pixmosa::cli {
namespace {

void Convertir(Consola& consola, Programa& p, const std::string& operand, int method) try {
  GenerarDe(
      p,
      [&](Lectura how, const std::function<Extent(Extent)>& size) {
        return consola.LeerImagenReducida(operand, how, size);
      },
      method);
} catch (const TextoExcesivo& e) {
  throw TextoExcesivo(e.columnas, e.filas, operand);
}

std::string Guardado(const Programa& p) {
  const BasAscii& ascii = p.basAscii;
  return ascii.ProducedUtf8.empty() ? TextoGuardado(p.ajustes.font, ascii.ProducedText)
                                    : TextoGuardadoUtf8(p.ajustes.font, ascii.ProducedUtf8);
}

int Hacer(Consola& consola, const Argumentos& arguments) {
  arguments.ExigirOperandos(1, SIZE_MAX, "la imagen");
  const std::optional<std::string> file = arguments.Texto("-o"), folder = arguments.Texto("--carpeta");
  const std::vector<std::string>& pictures = arguments.Operandos();
  if (file && folder) throw ErrorDeUso("las opciones -o y --carpeta no van juntas");
  if (pictures.size() > 1 && !folder) throw ErrorDeUso("varias imágenes necesitan la opción --carpeta");

  const int method = MetodoDe(arguments);
  Programa p = PrepararPrograma(consola, arguments);
  ExigirCaracteres(p);
  if (method == kAntiAlias) CargarPaleta3x2(p);
  if (folder)
    return ConvertirACarpeta(consola, arguments, pictures, ".txt",
                             [&](const std::string& operand, const std::string& to) {
                               Convertir(consola, p, operand, method);
                               EscribirArchivo(to, Guardado(p));
                             });
  Convertir(consola, p, pictures[0], method);
  if (file) {
    EscribirArchivo(*file, Guardado(p));
  } else {
    consola.EscribirLineas(TextoEnUtf8(p.basAscii));
  }
  return 0;
}

}  // namespace

Orden OrdenAscii() {
  return {
      "ascii",
      "IMAGEN...",
      "Convierte imágenes en texto.",
      "pixmosa-cli ascii foto.jpg --columnas 100",
      Juntar({{"-o", Tipo::Texto, "TEXTO.txt", "archivo donde se guarda; si falta, la salida estándar"},
              {"--carpeta", Tipo::Texto, "DIR", "carpeta donde se guarda un NOMBRE.txt de cada imagen"},
              OpcionDeSobrescribir(),
              {"--metodo",
               Tipo::Eleccion,
               "",
               "el método; si falta, grises",
               0,
               0,
               {std::begin(kMetodos), std::end(kMetodos)}},
              {"--relleno", Tipo::Interruptor, "", "con bordes: rellena de \":\" el interior de las formas"}},
             OpcionesDeTexto()),
      Hacer};
}

}  // namespace pixmosa::cli
