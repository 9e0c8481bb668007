#include <algorithm>
#include <filesystem>

#include "cli/Destino.h"
#include "cli/OpcionesDeDibujo.h"
#include "cli/OpcionesDeTexto.h"
#include "cli/Ordenes.h"
#include "conversion/TextoGuardado.h"
#include "platform/AtomicFile.h"
#include "programa/Dibujar.h"
#include "programa/Generar.h"

namespace pixmosa::cli {
namespace {

// The art of an operand's picture; the text alone is left in the program.
Dibujo Convertir(Programa& p, const std::string& operand, const OrigenDeImagen& source, int method,
                 const Exportacion& output) try {
  if (!output.EsTexto()) return GenerarDibujo(p, source, method, output.ConColor());
  GenerarDe(p, source.reducida, method);
  return {};
} catch (const TextoExcesivo& e) {
  throw TextoExcesivo(e.columnas, e.filas, operand);
} catch (const DibujoExcesivo& e) {
  throw ErrorDeTrabajo("\"" + operand + "\": " + e.what());
}

// The saved text; where it is not as ever, that is said.
std::string Guardado(const Programa& p, const std::string& operand, const Aviso& say) {
  const BasAscii& ascii = p.basAscii;
  if (ascii.ProducedUtf8.empty()) return TextoGuardado(p.ajustes.font, ascii.ProducedText);
  say("El texto de \"" + operand +
      "\" se guarda en UTF-8, porque tiene caracteres que faltan en la página de códigos.");
  return TextoGuardadoUtf8(p.ajustes.font, ascii.ProducedUtf8);
}

// The file's bytes.
std::string Convertido(Consola& consola, Programa& p, const std::string& operand, int method,
                       const Exportacion& output, const OrigenDeImagen& source, const Aviso& say) try {
  const std::string name = operand == "-" ? "Pixmosa" : std::filesystem::path(operand).stem().string();
  const Dibujo drawing = Convertir(p, operand, source, method, output);
  if (output.EsTexto()) return Guardado(p, operand, say);
  return output.Bytes(consola, p.ajustes.font, drawing, name);
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
  const OrigenDeImagen first = consola.Origen(pictures[0]);
  if (EsDeFormas(method) && !folder && arguments.Tiene("--columnas"))
    first.adelantar(PixelesDeFormas(arguments.Entero("--columnas", 0)));
  Programa p = PrepararPrograma(consola, arguments);
  ExigirCaracteres(p);
  if (method == kAntiAlias) CargarPaleta3x2(p);
  if (EsDeFormas(method)) PrepararRepertorio(p.basAscii, p.ajustes, p.superficie);
  if (folder) {
    std::vector<Programa> own(HilosPara(arguments, pictures.size()), p);
    return ConvertirACarpeta(
        consola, arguments, pictures, output.Terminacion(),
        [&](const std::string& operand, const std::string& to, unsigned thread, const Aviso& say) {
          EscribirArchivo(to, Convertido(consola, own[thread], operand, method, output,
                                         consola.Origen(operand, say), say));
        });
  }
  const Aviso say = [&](std::string_view sentence) { consola.Avisar(sentence); };
  if (file) {
    EscribirArchivo(*file, Convertido(consola, p, pictures[0], method, output, first, say));
  } else if (output.EsTexto()) {
    Convertir(p, pictures[0], first, method, output);
    consola.EscribirLineas(TextoEnUtf8(p.basAscii));
  } else {
    consola.EscribirArchivoEntero(Convertido(consola, p, pictures[0], method, output, first, say));
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
                     OpcionDeHilos(),
                     OpcionDeSobrescribir()},
                    Juntar(OpcionesDeMetodo(), OpcionesDeTexto())),
             Juntar({OpcionDeColor()}, OpcionesDeDibujo())),
      Hacer};
}

}  // namespace pixmosa::cli
