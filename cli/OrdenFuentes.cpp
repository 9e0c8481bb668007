#include <filesystem>

#include "cli/Ordenes.h"
#include "figlet/AgregarFuentes.h"
#include "figlet/Catalogo.h"
#include "platform/CodePage.h"
#include "platform/ProgramFolder.h"
#include "platform/zip/Descomprimir.h"

namespace pixmosa::cli {
namespace {

namespace fs = std::filesystem;

std::string Fijas(Consola& consola) {
  std::string s;
  for (const std::string& name : consola.Superficie().ListFixedFonts()) s += name + "\n";
  return s;
}

// The fonts of the tree with their categories, then those that no category names.
std::string Lista() {
  const std::vector<fs::path> folders = FontFolders();
  const std::vector<NodoDeFuentes> nodes = ArbolDeFuentes(folders);
  std::vector<std::string> rest = FillFontList(folders);
  std::string s;
  for (const NodoDeFuentes& node : nodes) {
    if (node.nivel != NodoDeFuentes::kFuente) continue;
    std::string categories = Utf8OfBytes(node.parent);
    categories.replace(categories.find(';'), 1, "\t");
    s += categories + "\t" + Utf8OfBytes(node.text) + "\n";
    std::erase(rest, Utf8OfBytes(node.text) + ".flf");
  }
  for (const std::string& name : rest) s += "\t\t" + fs::path(name).stem().string() + "\n";
  return s;
}

int Agregar(Consola& consola, const std::vector<std::string>& operands) {
  const auto advance = [&](std::size_t done, std::size_t of) { consola.Progreso("Fuente", done, of); };
  int status = 0;
  for (const FuenteAgregada& f :
       AgregarFuentes(FontFolders(), {operands.begin(), operands.end()}, DescomprimirZip, advance)) {
    if (f.hayQueDecirlo) consola.Avisar(f.frase);
    if (f.suceso == FuenteAgregada::kRechazada) status = 1;
  }
  return status;
}

int Hacer(Consola& consola, const Argumentos& arguments) {
  const bool add = arguments.Tiene("--agregar");
  if (add && arguments.Tiene("--fijas")) throw ErrorDeUso("las opciones --fijas y --agregar no van juntas");
  arguments.ExigirOperandos(add ? 1 : 0, add ? SIZE_MAX : 0, "el archivo de la fuente");
  if (add) return Agregar(consola, arguments.Operandos());
  consola.Escribir(arguments.Tiene("--fijas") ? Fijas(consola) : Lista());
  return 0;
}

}  // namespace

Orden OrdenFuentes() {
  return {"fuentes",
          "[ARCHIVO...]",
          "Lista las fuentes FIGlet con sus categorías, o añade otras.",
          "pixmosa-cli fuentes --agregar grande.flf",
          {{"--fijas", Tipo::Interruptor, "", "las fuentes de ancho fijo del sistema, una por línea"},
           {"--agregar", Tipo::Interruptor, "",
            "añade los archivos de fuentes FIGlet, también en zip o en carpetas"}},
          Hacer};
}

}  // namespace pixmosa::cli
