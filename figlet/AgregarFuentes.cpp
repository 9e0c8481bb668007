#include "figlet/AgregarFuentes.h"

#include <algorithm>
#include <optional>
#include <stdexcept>

#include "figlet/Catalogo.h"
#include "figlet/Reescribir.h"
#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/FolderLock.h"

namespace pixmosa {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kLargestFile = 64 << 20;
constexpr std::size_t kMostSentences = 20;

using Carpetas = std::vector<fs::path>;

// A file's name without folders and without the ending of a font or a zip.
std::string NameOf(std::string file, std::string_view separators) {
  file.erase(0, file.find_last_of(separators) + 1);
  const bool ends = PareceFuente(file) || LowerCase(file).ends_with(".zip");
  return ends ? file.substr(0, file.size() - 4) : file;
}

// The fonts of a folder, in alphabetical order.
Carpetas FontsIn(const fs::path& folder) {
  Carpetas files;
  std::error_code ec;
  for (fs::directory_iterator at(folder, ec), end; !ec && at != end; at.increment(ec))
    if (PareceFuente(at->path().filename().string())) files.push_back(at->path());
  std::sort(files.begin(), files.end());
  return files;
}

bool Holds(const fs::path& file, const std::string& bytes) {
  std::error_code ec;
  try {
    return fs::file_size(file, ec) == bytes.size() && !ec && LeerArchivo(file, kLargestFile) == bytes;
  } catch (const FileError&) {
    return false;
  }
}

// The name under which a font can stand in the folders: its own, or with the first number that is free.
// `there`: a font of that name has this content already.
struct Sitio {
  std::string nombre;
  bool there;
};

Sitio Find(const Carpetas& folders, const std::string& name, const std::string& bytes) {
  for (int n = 1;; ++n) {
    const std::string other = n == 1 ? name : name + " " + std::to_string(n);
    bool taken = false;
    for (const fs::path& folder : folders) {
      std::error_code ec;
      const fs::path file = folder / (other + ".flf");
      if (!fs::exists(fs::symlink_status(file, ec))) continue;
      taken = true;
      if (Holds(file, bytes)) return {other, true};
    }
    if (!taken) return {other, false};
  }
}

// Writes the font and its line of the catalogue, both or neither. The folder is locked.
void Save(const fs::path& folder, const std::string& name, const std::string& bytes) {
  const fs::path catalogue = folder / "categoriestree.txt";
  std::error_code ec;
  const std::string before = fs::exists(catalogue, ec) ? LeerArchivo(catalogue, kLargestCatalogue) : "";
  const std::string after = ConFuente(before, name);
  if (after.size() > kLargestCatalogue) throw FileError("No cabe más en \"" + catalogue.string() + "\".");
  const fs::path file = folder / (name + ".flf");
  EscribirArchivo(file, bytes);
  try {
    EscribirArchivo(catalogue, after);
  } catch (const FileError&) {
    fs::remove(file, ec);
    throw;
  }
}

// Puts a font into the first folder that can be written.
Sitio Store(const Carpetas& folders, const std::string& name, const std::string& bytes) {
  if (Sitio found = Find(folders, name, bytes); found.there) return found;
  std::string why = "No hay ninguna carpeta de fuentes.";
  for (const fs::path& folder : folders) {
    try {
      const FolderLock lock(folder);
      Sitio place = Find(folders, name, bytes);
      if (!place.there) Save(folder, place.nombre, bytes);
      return place;
    } catch (const FileError& e) {
      why = e.what();
    }
  }
  throw FileError(why);
}

std::string Quoted(const std::string& text) {
  return "\"" + text + "\"";
}

std::string Counted(std::size_t n, const char* one, const char* many) {
  return n == 0 ? "" : n == 1 ? std::string(" ") + one : " " + std::to_string(n) + many;
}

FuenteAgregada Refused(const std::string& file, const std::string& sentence) {
  return {FuenteAgregada::kRechazada, file, "", 0, sentence, true};
}

FuenteAgregada Add(const Carpetas& folders, const std::string& file, const std::string& name,
                   std::string_view font) try {
  if (!CabeEnElCatalogo(name))
    return Refused(file,
                   "No se ha añadido " + Quoted(file) + ": el catálogo no admite el nombre " + Quoted(name) +
                       " (no puede empezar por #, ni llevar [ ] | ; / ni caracteres fuera de Windows-1252).");
  const FuenteReescrita own = ReescribirFuente(font, file);
  const Sitio place = Store(folders, name, own.bytes);
  if (place.there)
    return {FuenteAgregada::kYaEstaba,
            file,
            place.nombre,
            0,
            Quoted(file) + " ya está entre las fuentes como " + Quoted(place.nombre) + ".",
            true};
  const bool renamed = place.nombre != name;
  std::string sentence = "Se ha añadido " + Quoted(file) + " como " + Quoted(place.nombre);
  sentence += renamed ? ": ya hay otra fuente " + Quoted(name) + "." : ".";
  sentence += Counted(own.reemplazados, "Un carácter de su dibujo se ha reemplazado por otro parecido.",
                      " caracteres de su dibujo se han reemplazado por otros parecidos.");
  sentence += Counted(own.lineasDeMas, "La última línea no es de ningún carácter y se ha pasado por alto.",
                      " líneas del final no son de ningún carácter y se han pasado por alto.");
  return {FuenteAgregada::kAgregada, file,     place.nombre,
          own.reemplazados,          sentence, renamed || own.reemplazados + own.lineasDeMas > 0};
} catch (const FuenteRechazada& e) {
  return Refused(file, e.what());
} catch (const FileError& e) {
  return Refused(file, "No se ha añadido " + Quoted(file) + ". " + e.what());
}

// Every font of a zip; its other files are passed over.
void AddZip(const Carpetas& folders, const std::string& file, std::string_view zip,
            const Desempaquetar& unpack, std::vector<FuenteAgregada>& fonts) {
  const std::string refused = "No se ha añadido " + Quoted(file) + ": ";
  std::size_t found = 0;
  try {
    for (const ArchivoComprimido& inner : unpack(zip)) {
      const bool named = PareceFuente(inner.nombre);
      if (!named && !EmpiezaComoFuente(inner.bytes)) continue;
      ++found;
      const std::string where = file + ": " + inner.nombre;
      if (!inner.fallo.empty()) {
        fonts.push_back(Refused(where, refused + Quoted(inner.nombre) + " " + inner.fallo + "."));
        continue;
      }
      const std::string name = named ? NameOf(inner.nombre, "/\\") : NameOf(file, "/");
      fonts.push_back(Add(folders, where, name, inner.bytes));
    }
    if (found == 0)
      fonts.push_back(Refused(file, refused + "el archivo zip no contiene ninguna fuente FIGlet."));
  } catch (const ErrorDelPrograma& e) {
    fonts.push_back(Refused(file, refused + e.what() + "."));
  }
}

void AddFile(const Carpetas& folders, const std::string& file, const Desempaquetar& unpack,
             std::vector<FuenteAgregada>& fonts) try {
  const std::string bytes = LeerArchivo(file, kLargestFile);
  if (EsZip(bytes)) {
    AddZip(folders, file, bytes, unpack, fonts);
  } else {
    fonts.push_back(Add(folders, file, NameOf(file, "/"), bytes));
  }
} catch (const FileError& e) {
  fonts.push_back(Refused(file, e.what()));
}

}  // namespace

std::vector<FuenteAgregada> AgregarFuentes(const Carpetas& folders, const Carpetas& chosen,
                                           const Desempaquetar& unpack, const AvanceDeFuentes& advance) {
  std::vector<FuenteAgregada> fonts;
  Carpetas files;
  for (const fs::path& path : chosen) {
    std::error_code ec;
    const Carpetas found = fs::is_directory(path, ec) ? FontsIn(path) : Carpetas{path};
    files.insert(files.end(), found.begin(), found.end());
    if (found.empty())
      fonts.push_back(
          Refused(path.string(), "En " + Quoted(path.string()) + " no hay ninguna fuente FIGlet."));
  }
  for (std::size_t i = 0; i < files.size(); ++i) {
    if (advance) advance(i, files.size());
    AddFile(folders, files[i].string(), unpack, fonts);
  }
  if (advance) advance(files.size(), files.size());
  return fonts;
}

std::string ResumenDeFuentes(const std::vector<FuenteAgregada>& fonts) {
  std::string text;
  std::size_t said = 0;
  for (const FuenteAgregada& f : fonts)
    if (f.hayQueDecirlo && ++said <= kMostSentences) text += (said > 1 ? "\r\n" : "") + f.frase;
  if (said > kMostSentences) text += "\r\nY " + std::to_string(said - kMostSentences) + " más.";
  return text;
}

}  // namespace pixmosa
