#include <filesystem>

#include "cli/OpcionesDeDibujo.h"
#include "cli/OpcionesDeTexto.h"
#include "cli/Ordenes.h"
#include "conversion/TextoGuardado.h"
#include "figlet/Catalogo.h"
#include "figlet/basFigLet.h"
#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/ProgramFolder.h"

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

// Line breaks of the operand as the renderer wants them.
std::string ConCrLf(const std::string& bytes) {
  std::string text;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (bytes[i] == '\n' && (i == 0 || bytes[i - 1] != '\r')) text += '\r';
    text += bytes[i];
  }
  return text;
}

int Hacer(Consola& consola, const Argumentos& arguments) {
  arguments.ExigirOperandos(1, 1, "el texto");
  const Exportacion output(arguments);
  const std::string& operand = arguments.Operandos()[0];
  const std::string text = ConCrLf(BytesOfUtf8(operand == "-" ? consola.LeerBytes("-") : operand));
  const fs::path file = FuenteDe(arguments);
  BasFigLet font;
  bool failed = false;
  LoadFontBytes(font, consola.LeerBytes(file.string()), [&](const std::string&) { failed = true; });
  if (failed) throw ErrorDeTrabajo("Error abriendo la fuente \"" + file.string() + "\".");
  const std::string banner = RenderBanner(font, text);
  // What the window would save: its header names the program's own font.
  const Font own;
  const auto target = arguments.Texto("-o");
  if (output.EsTexto()) {
    if (target) {
      EscribirArchivo(*target, TextoGuardado(own, banner));
    } else {
      consola.EscribirLineas(Utf8OfBytes(banner));
    }
    return 0;
  }
  std::string bytes = output.Bytes(consola, own, DibujoDeTexto(banner), Utf8OfBytes(text));
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
              {"-o", Tipo::Texto, "ARCHIVO", "archivo donde se guarda; si falta, la salida estándar"}},
             OpcionesDeDibujo()),
      Hacer};
}

}  // namespace pixmosa::cli
