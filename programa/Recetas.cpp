#include "programa/Recetas.h"

#include "platform/Lines.h"

namespace pixmosa {
namespace {

constexpr std::size_t kMasPasos = 1000;
constexpr std::string_view kMarcaDeOrden = "\xEF\xBB\xBF", kBlancos = " \t\r";

std::string_view SinBlancos(std::string_view s) {
  const std::size_t first = s.find_first_not_of(kBlancos);
  return first == std::string_view::npos ? "" : s.substr(first, s.find_last_not_of(kBlancos) - first + 1);
}

}  // namespace

std::vector<LineaDeReceta> PasosDeReceta(std::string_view text) {
  if (text.starts_with(kMarcaDeOrden)) text.remove_prefix(kMarcaDeOrden.size());
  std::vector<LineaDeReceta> steps;
  for (int number = 1; !text.empty(); ++number) {
    const std::string_view line = TakeLine(text);
    const std::string_view step = SinBlancos(line.substr(0, line.find('#')));
    if (step.empty()) continue;
    if (steps.size() == kMasPasos) throw ErrorDelPrograma("La receta tiene más de 1000 pasos.");
    steps.push_back({number, std::string(step)});
  }
  if (steps.empty()) throw ErrorDelPrograma("La receta no tiene ningún paso.");
  return steps;
}

std::filesystem::path ArchivoDeReceta(const std::filesystem::path& folder, const std::string& name) {
  namespace fs = std::filesystem;
  std::error_code none;
  if (fs::exists(name, none) && !fs::is_directory(name, none)) return name;
  const bool plain = !name.empty() && name.find('/') == std::string::npos;
  if (plain && !folder.empty())
    if (fs::path file = folder / (name + ".txt"); fs::exists(file, none)) return file;
  throw ErrorDelPrograma("No hay ninguna receta ni ningún archivo \"" + name + "\".");
}

}  // namespace pixmosa
