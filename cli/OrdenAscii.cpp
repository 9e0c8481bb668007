#include <algorithm>
#include <filesystem>

#include "cli/Destino.h"
#include "cli/OpcionesDeDibujo.h"
#include "cli/OpcionesDeTexto.h"
#include "cli/Ordenes.h"
#include "conversion/TextoGuardado.h"
#include "platform/AtomicFile.h"
#include "platform/Stretch.h"
#include "programa/Dibujar.h"
#include "programa/Generar.h"

namespace pixmosa::cli {
namespace {

// `read` gives the picture of the operand, stretched or reduced.
void Convertir(Programa& p, const std::string& operand, int method, const LeerReducida& read) try {
  GenerarDe(p, read, method);
} catch (const TextoExcesivo& e) {
  throw TextoExcesivo(e.columnas, e.filas, operand);
}

void Convertir(Consola& consola, Programa& p, const std::string& operand, int method) {
  Convertir(p, operand, method,
            [&](Lectura how, const auto& size) { return consola.LeerImagenReducida(operand, how, size); });
}

// The text and the colours: of a photograph from two quick readings side by side, else from one.
Dibujo ConvertirEnColor(Consola& consola, Programa& p, const std::string& operand, int method) {
  const Extent wanted = PixelesDeFormas(p.basAscii.AsciiColumns);
  const bool twice = !EsDeFormas(method) && consola.AdelantarLectura(operand, wanted);
  Picture source, resized;
  Convertir(p, operand, method, [&](Lectura how, const auto& size) {
    if (how == Lectura::Reducida) return source = consola.LeerImagenReducida(operand, how, size);
    if (twice) return resized = consola.LeerImagenReducida(operand, how, size);
    source = consola.LeerImagen(operand);
    return resized = Stretch(source, size(source.Size()));
  });
  if (source.IsEmpty())
    source = consola.LeerImagenReducida(operand, Lectura::Reducida, [&](Extent) { return wanted; });
  return DibujoEnColor(p, source, resized, method);
}

// The saved text; where it is not as ever, that is said.
std::string Guardado(Consola& consola, const Programa& p, const std::string& operand) {
  const BasAscii& ascii = p.basAscii;
  if (ascii.ProducedUtf8.empty()) return TextoGuardado(p.ajustes.font, ascii.ProducedText);
  consola.Avisar("El texto de \"" + operand +
                 "\" se guarda en UTF-8, porque tiene caracteres que faltan en la página de códigos.");
  return TextoGuardadoUtf8(p.ajustes.font, ascii.ProducedUtf8);
}

// The file's bytes.
std::string Convertido(Consola& consola, Programa& p, const std::string& operand, int method,
                       const Exportacion& output) try {
  const std::string name = operand == "-" ? "Pixmosa" : std::filesystem::path(operand).stem().string();
  if (output.ConColor())
    return output.Bytes(consola, p.ajustes.font, ConvertirEnColor(consola, p, operand, method), name);
  Convertir(consola, p, operand, method);
  if (output.EsTexto()) return Guardado(consola, p, operand);
  return output.Bytes(consola, p.ajustes.font, DibujoDe(p), name);
} catch (const DibujoExcesivo& e) {
  throw ErrorDeTrabajo("\"" + operand + "\": " + e.what());
}

int Hacer(Consola& consola, const Argumentos& arguments) {
  arguments.ExigirOperandos(1, SIZE_MAX, "la imagen");
  const std::optional<std::string> file = arguments.Texto("-o"), folder = arguments.Texto("--carpeta");
  const std::vector<std::string>& pictures = arguments.Operandos();
  if (file && folder) throw ErrorDeUso("las opciones -o y --carpeta no van juntas");
  if (pictures.size() > 1 && !folder) throw ErrorDeUso("varias imágenes necesitan la opción --carpeta");

  const Exportacion output(arguments);
  const int method = MetodoDe(arguments);
  // A photograph is decoded while the fonts are loaded and measured.
  if (EsDeFormas(method) && pictures.size() == 1 && arguments.Tiene("--columnas"))
    consola.AdelantarLectura(pictures[0], PixelesDeFormas(arguments.Entero("--columnas", 0)));
  Programa p = PrepararPrograma(consola, arguments);
  ExigirCaracteres(p);
  if (method == kAntiAlias) CargarPaleta3x2(p);
  if (folder)
    return ConvertirACarpeta(consola, arguments, pictures, output.Terminacion(),
                             [&](const std::string& operand, const std::string& to) {
                               EscribirArchivo(to, Convertido(consola, p, operand, method, output));
                             });
  if (file) {
    EscribirArchivo(*file, Convertido(consola, p, pictures[0], method, output));
  } else if (output.EsTexto()) {
    Convertir(consola, p, pictures[0], method);
    consola.EscribirLineas(TextoEnUtf8(p.basAscii));
  } else {
    consola.EscribirArchivoEntero(Convertido(consola, p, pictures[0], method, output));
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
      Juntar(Juntar({{"-o", Tipo::Texto, "ARCHIVO", "archivo donde se guarda; si falta, la salida estándar"},
                     {"--carpeta", Tipo::Texto, "DIR", "carpeta donde se guarda un archivo de cada imagen"},
                     OpcionDeSobrescribir(),
                     {"--metodo",
                      Tipo::Eleccion,
                      "",
                      "el método; si falta, grises",
                      0,
                      0,
                      {std::begin(kMetodos), std::end(kMetodos)}},
                     {"--relleno", Tipo::Interruptor, "",
                      "con bordes: rellena de \":\" el interior de las formas"}},
                    OpcionesDeTexto()),
             Juntar({OpcionDeColor()}, OpcionesDeDibujo())),
      Hacer};
}

}  // namespace pixmosa::cli
