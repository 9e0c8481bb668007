#include "programa/Recetas.h"

#include <algorithm>
#include <optional>

#include "platform/AtomicFile.h"
#include "platform/Lines.h"
#include "programa/Pelicula.h"

namespace pixmosa {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMasPasos = 1000;
constexpr char kTerminacion[] = ".txt";
constexpr std::string_view kMarcaDeOrden = "\xEF\xBB\xBF", kBlancos = " \t\r";

std::string_view SinBlancos(std::string_view s) {
  const std::size_t first = s.find_first_not_of(kBlancos);
  return first == std::string_view::npos ? "" : s.substr(first, s.find_last_not_of(kBlancos) - first + 1);
}

Paso PasoDeLinea(const std::string& word, const std::string& where) {
  try {
    if (const std::optional<Paso> step = PasoDe(word)) return *step;
    throw ErrorDePaso("no existe el paso \"" + word + "\"");
  } catch (const ErrorDePaso& e) {
    throw ErrorDePaso(where + e.what());
  }
}

// One step's part of the bar of them all.
class Parte final : public Progress {
 public:
  Parte(Progress& whole, int k, int parts) : todo_(whole), k_(k), partes_(parts) {}
  void Show() override {}
  void Hide() override {}
  void SetValue(int percent) override { todo_.SetValue((100 * k_ + percent) / partes_); }
  void Yield() override { todo_.Yield(); }

 private:
  Progress& todo_;
  int k_, partes_;
};

class Visible {
 public:
  explicit Visible(Progress& progress) : progreso_(progress) { progreso_.Show(); }
  ~Visible() { progreso_.Hide(); }
  Visible(const Visible&) = delete;
  Visible& operator=(const Visible&) = delete;

 private:
  Progress& progreso_;
};

}  // namespace

std::vector<Paso> PasosDeReceta(std::string_view text, const std::string& name) {
  if (text.starts_with(kMarcaDeOrden)) text.remove_prefix(kMarcaDeOrden.size());
  std::vector<Paso> steps;
  for (int number = 1; !text.empty(); ++number) {
    const std::string_view line = TakeLine(text);
    const std::string_view step = SinBlancos(line.substr(0, line.find('#')));
    if (step.empty()) continue;
    if (steps.size() == kMasPasos) throw ErrorDelPrograma("La receta tiene más de 1000 pasos.");
    steps.push_back(PasoDeLinea(std::string(step),
                                "en la receta \"" + name + "\", línea " + std::to_string(number) + ": "));
  }
  if (steps.empty()) throw ErrorDelPrograma("La receta no tiene ningún paso.");
  return steps;
}

std::vector<Paso> LeerReceta(const std::filesystem::path& file) {
  return PasosDeReceta(LeerArchivo(file), file.string());
}

std::filesystem::path ArchivoDeReceta(const std::filesystem::path& folder, const std::string& name) {
  std::error_code none;
  if (fs::exists(name, none) && !fs::is_directory(name, none)) return name;
  const bool plain = !name.empty() && name.find('/') == std::string::npos;
  if (plain && !folder.empty())
    if (fs::path file = folder / (name + kTerminacion); fs::exists(file, none)) return file;
  throw ErrorDelPrograma("No hay ninguna receta ni ningún archivo \"" + name + "\".");
}

std::filesystem::path SitioDeReceta(const std::filesystem::path& folder, const std::string& name) {
  constexpr std::size_t kMasBytesDeNombre = 200;
  if (folder.empty())
    throw ErrorDelPrograma("No hay ninguna carpeta para las recetas: falta la del usuario.");
  const bool control = std::any_of(name.begin(), name.end(), [](unsigned char c) { return c < ' '; });
  if (name.empty() || name[0] == '.' || name.size() > kMasBytesDeNombre || control ||
      name.find('/') != std::string::npos)
    throw ErrorDelPrograma("Una receta no se puede llamar \"" + name +
                           "\": hace falta un nombre corto, sin \"/\" y que no empiece por un punto.");
  return folder / (name + kTerminacion);
}

std::vector<std::string> RecetasGuardadas(const std::filesystem::path& folder) {
  std::vector<std::string> names;
  std::error_code none;
  for (fs::directory_iterator at(folder, none), end; at != end; at.increment(none))
    if (at->path().extension() == kTerminacion && at->is_regular_file(none))
      names.push_back(at->path().stem().string());
  std::sort(names.begin(), names.end(), OrdenNatural);
  return names;
}

const std::vector<std::string>& PasosDados(const Programa& p) {
  static const std::vector<std::string> kNinguno;
  return p.historial.pasos.empty() ? kNinguno : p.historial.pasos[p.historial.actual].ordenes;
}

void GuardarReceta(const std::filesystem::path& folder, const std::string& name,
                   const std::vector<std::string>& words) {
  const fs::path file = SitioDeReceta(folder, name);
  std::error_code none;
  fs::create_directories(folder, none);  // where that fails, writing says why
  std::string text = "# " + name + "\n";
  for (const std::string& word : words) text += word + "\n";
  EscribirArchivo(file, text);
}

void DarPasos(Programa& p, const std::vector<Paso>& steps, Progress& progress) {
  const Visible shown(progress);
  ImagenDeTrabajo work = p.imagen;
  for (std::size_t k = 0; k < steps.size(); ++k) {
    Parte part(progress, static_cast<int>(k), static_cast<int>(steps.size()));
    part.SetValue(0);
    part.Yield();
    DarPaso(p.mFiltros, work, steps[k], part);
  }
  p.imagen.SaveUndo();
  p.imagen.picMain = work.picMain;
}

}  // namespace pixmosa
