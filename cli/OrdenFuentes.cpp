#include <filesystem>
#include <map>
#include <optional>

#include "cli/Ordenes.h"
#include "figlet/AgregarFuentes.h"
#include "figlet/Catalogo.h"
#include "figlet/Letrero.h"
#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/ProgramFolder.h"
#include "platform/zip/Descomprimir.h"

namespace pixmosa::cli {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kMayorArchivo = 64 << 20;

std::string Fijas(Consola& consola) {
  std::string s;
  for (const std::string& name : consola.Superficie().ListFixedFonts()) s += name + "\n";
  return s;
}

// A font of the folders as the specified reader takes it; what cannot be read is said, and is no font.
std::optional<BasFigLet> Cargar(Consola& consola, const std::vector<fs::path>& folders,
                                const std::string& name) {
  const std::string file = ArchivoDeFuente(folders, name).string();
  bool failed = false;
  BasFigLet font;
  try {
    LoadFontBytes(font, LeerArchivo(file, kMayorArchivo), [&](const std::string&) { failed = true; });
    if (!failed) return font;
    consola.Avisar("Error abriendo la fuente \"" + file + "\".");
  } catch (const FileError& e) {
    consola.Avisar(e.what());
  }
  return std::nullopt;
}

// Which fonts are shown: every one, or those with every Spanish letter and sign.
class Criba {
 public:
  Criba(Consola& consola, bool spanish) : consola_(consola), spanish_(spanish) {}

  // `name` with its ending.
  bool Pasa(const std::string& name) {
    if (!spanish_) return true;
    const auto [at, fresh] = known_.try_emplace(name, false);
    if (fresh) {
      const auto font = Cargar(consola_, folders_, name);
      at->second = font && CompletaParaEspanol(FuenteLeida(*font));
    }
    return at->second;
  }

 private:
  Consola& consola_;
  bool spanish_;
  std::vector<fs::path> folders_ = FontFolders();
  std::map<std::string, bool> known_;
};

// The fonts of the tree with their categories, then those that no category names.
std::string Lista(Criba& sieve) {
  const std::vector<fs::path> folders = FontFolders();
  const std::vector<NodoDeFuentes> nodes = ArbolDeFuentes(folders);
  std::vector<std::string> rest = FillFontList(folders);
  std::string s;
  for (const NodoDeFuentes& node : nodes) {
    const std::string name = Utf8OfBytes(node.text) + ".flf";
    if (node.nivel != NodoDeFuentes::kFuente || !sieve.Pasa(name)) continue;
    std::string categories = Utf8OfBytes(node.parent);
    categories.replace(categories.find(';'), 1, "\t");
    s += categories + "\t" + Utf8OfBytes(node.text) + "\n";
    std::erase(rest, name);
  }
  for (const std::string& name : rest)
    if (sieve.Pasa(name)) s += "\t\t" + fs::path(name).stem().string() + "\n";
  return s;
}

// The text in every font: its name, the banner, an empty line. 1 where one cannot be read.
int Mostrar(Consola& consola, Criba& sieve, const std::string& text) {
  const std::vector<fs::path> folders = FontFolders();
  const std::string bytes = TextoConCrLf(BytesOfUtf8(text == "-" ? consola.LeerBytes("-") : text));
  int status = 0;
  for (const std::string& name : FillFontList(folders)) {
    if (!sieve.Pasa(name)) continue;
    if (const auto font = Cargar(consola, folders, name)) {
      consola.EscribirLineas(fs::path(name).stem().string() + "\r\n" +
                             Utf8OfBytes(RenderBanner(*font, bytes)) + "\r\n");
    } else {
      status = 1;
    }
  }
  return status;
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
  const bool add = arguments.Tiene("--agregar"), fixed = arguments.Tiene("--fijas");
  for (const char* other : {"--agregar", "--muestra", "--espanol"})
    if (fixed && arguments.Tiene(other))
      throw ErrorDeUso(std::string("las opciones --fijas y ") + other + " no van juntas");
  for (const char* other : {"--muestra", "--espanol"})
    if (add && arguments.Tiene(other))
      throw ErrorDeUso(std::string("las opciones --agregar y ") + other + " no van juntas");
  arguments.ExigirOperandos(add ? 1 : 0, add ? SIZE_MAX : 0, "el archivo de la fuente");
  if (add) return Agregar(consola, arguments.Operandos());
  if (fixed) {
    consola.Escribir(Fijas(consola));
    return 0;
  }
  Criba sieve(consola, arguments.Tiene("--espanol"));
  if (const auto text = arguments.Texto("--muestra")) return Mostrar(consola, sieve, *text);
  consola.Escribir(Lista(sieve));
  return 0;
}

}  // namespace

Orden OrdenFuentes() {
  return {"fuentes",
          "[ARCHIVO...]",
          "Lista las fuentes FIGlet con sus categorías, las enseña, o añade otras.",
          "pixmosa-cli fuentes --agregar grande.flf",
          {{"--fijas", Tipo::Interruptor, "", "las fuentes de ancho fijo del sistema, una por línea"},
           {"--muestra", Tipo::Texto, "TEXTO", "el texto en cada fuente, con su nombre encima"},
           {"--espanol", Tipo::Interruptor, "",
            "solo las fuentes con todas las letras y signos del español dibujados"},
           {"--agregar", Tipo::Interruptor, "",
            "añade los archivos de fuentes FIGlet, también en zip o en carpetas"}},
          Hacer};
}

}  // namespace pixmosa::cli
