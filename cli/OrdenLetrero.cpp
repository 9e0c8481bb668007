#include <filesystem>

#include "cli/AjustesDeLetrero.h"
#include "cli/OpcionesDeDibujo.h"
#include "cli/OpcionesDeTexto.h"
#include "cli/Ordenes.h"
#include "conversion/TextoGuardado.h"
#include "figlet/Catalogo.h"
#include "figlet/Letrero.h"
#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/ProgramFolder.h"
#include "platform/zip/Descomprimir.h"

namespace pixmosa::cli {
namespace {

namespace fs = std::filesystem;

// The file of --figlet: a path, or the name of a font of the font folders; without it the first font of the
// list.
fs::path FuenteDe(const Argumentos& arguments) {
  const std::vector<fs::path> folders = FontFolders();
  const std::optional<std::string> asked = arguments.Texto("--figlet");
  if (!asked) {
    const std::vector<std::string> names = FillFontList(folders);
    if (names.empty())
      throw ErrorDeTrabajo("No hay ninguna fuente FIGlet en \"" + folders.front().string() + "\".");
    return ArchivoDeFuente(folders, names.front());
  }
  std::error_code ec;
  if (fs::exists(*asked, ec)) return *asked;
  fs::path named = ArchivoDeFuente(folders, asked->ends_with(".flf") ? *asked : *asked + ".flf");
  if (!fs::exists(named, ec)) throw ErrorDeTrabajo("No hay ninguna fuente FIGlet \"" + *asked + "\".");
  return named;
}

// A banner with its rows as they are printed, as they are saved and as cells.
struct Hecho {
  std::string utf8, bytes;
  Dibujo dibujo;
};

Hecho HechoDe(Dibujo drawing) {
  return {Utf8De(drawing), BytesDe(drawing), std::move(drawing)};
}

Hecho Escribir(std::string_view bytes, const fs::path& file, const std::string& text,
               const OpcionesDeLetrero& options) {
  BasFigLet font;
  bool failed = false;
  LoadFontBytes(font, bytes, [&](const std::string&) { failed = true; });
  if (failed) throw ErrorDeTrabajo("Error abriendo la fuente \"" + file.string() + "\".");
  if (!EsElDeSiempre(options)) return HechoDe(FuenteEnUso(font).Dibujar(text, options));
  const std::string banner = RenderBanner(font, TextoConCrLf(BytesOfUtf8(text)));
  return {Utf8OfBytes(banner), banner, DibujoDeTexto(banner)};
}

int Hacer(Consola& consola, const Argumentos& arguments) {
  arguments.ExigirOperandos(1, 1, "el texto");
  Exportacion output(arguments);
  const OpcionesDeLetrero options = LetreroPedido(arguments);
  if (options.acabado.degradado) output.opciones.color = true;
  const std::string& operand = arguments.Operandos()[0];
  const std::string text = operand == "-" ? consola.LeerBytes("-") : operand;
  const fs::path file = FuenteDe(arguments);
  const std::string font = consola.LeerBytes(file.string());
  const bool direct = arguments.Tiene("--directo") || LowerCase(file.extension().string()) == ".tlf";
  const Hecho banner =
      direct ? HechoDe(FuenteEnUso(AbrirFuente(font, file.string(), DescomprimirZip)).Dibujar(text, options))
             : Escribir(font, file, text, options);
  // What the window would save: its header names the program's own font.
  const Font own;
  const auto target = arguments.Texto("-o");
  if (output.EsTexto()) {
    if (target) {
      EscribirArchivo(*target, TextoGuardado(own, banner.bytes));
    } else {
      consola.EscribirLineas(banner.utf8);
    }
    return 0;
  }
  std::string bytes = output.Bytes(consola, own, banner.dibujo, Utf8OfBytes(TextoConCrLf(BytesOfUtf8(text))));
  if (target) {
    EscribirArchivo(*target, bytes);
  } else {
    consola.EscribirArchivoEntero(std::move(bytes));
  }
  return 0;
}

}  // namespace

Orden OrdenLetrero() {
  return {
      "letrero",
      "TEXTO",
      "Escribe un texto con letras grandes de una fuente FIGlet.",
      "pixmosa-cli letrero \"¡Hola!\"",
      Juntar({{"--figlet", Tipo::Texto, "FUENTE", "un archivo .flf o el nombre de una fuente de la carpeta"},
              {"--directo", Tipo::Interruptor, "",
               "lee cualquier fuente FIGlet tal como es, también en zip; con un .tlf siempre"},
              {"-o", Tipo::Texto, "ARCHIVO", "archivo donde se guarda; si falta, la salida estándar"}},
             Juntar(AjustesDeLetrero(), OpcionesDeDibujo())),
      Hacer};
}

}  // namespace pixmosa::cli
