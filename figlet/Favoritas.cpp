#include "figlet/Favoritas.h"

namespace pixmosa {
namespace {

constexpr char kClave[] = "Software\\Pixmosa", kNombre[] = "FuentesFavoritas";
constexpr char kFin = '/';  // behind each; no file has it in its name

}  // namespace

Favoritas LeerFavoritas(Registry& registry) {
  Favoritas names;
  const auto value = registry.Query(kClave, kNombre);
  if (!value || value->type != RegistryType::Binary) return names;
  std::string_view rest = value->data;
  while (rest.find(kFin) != std::string_view::npos) {
    const std::size_t end = rest.find(kFin);
    names.emplace(rest.substr(0, end));
    rest.remove_prefix(end + 1);
  }
  return names;
}

void GuardarFavoritas(Registry& registry, const Favoritas& names) {
  RegistryValue value{RegistryType::Binary, {}};
  for (const std::string& name : names) value.data += name + kFin;
  registry.Set(kClave, kNombre, value);
}

}  // namespace pixmosa
