#include "conversion/Palette3x2.h"

#include <set>
#include <string>

#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/Lines.h"

namespace pixmosa {
namespace {

constexpr std::uintmax_t kLargestFile = 1 << 20;

// The pattern's number, or nothing for a key that no block can have.
std::optional<std::size_t> PatternOf(std::string_view key) {
  if (key.size() != 6 || key.find_first_not_of("@.") != std::string_view::npos) return std::nullopt;
  std::size_t n = 0;
  for (const char c : key) n = n << 1 | (c == '@' ? 1 : 0);
  return n;
}

}  // namespace

Palette3x2Error::Palette3x2Error()
    : ErrorDelPrograma(
          "No se ha encontrado el archivo con la paleta 3x2. Restaurelo, o instale nuevamente la "
          "aplicación") {}

Palette3x2 ParsePalette3x2(std::string_view file) {
  Palette3x2 palette;
  std::set<std::string> seen;
  const auto line = [&] {
    if (file.empty()) throw Palette3x2Error();
    return TakeLine(file);
  };
  while (!file.empty()) {
    std::string key;
    for (int row = 0; row < 3; ++row) key += line().substr(0, 2);
    const std::string_view item = line().substr(0, 1);
    if (!seen.insert(LowerCase(key)).second) throw Palette3x2Error();
    if (const auto pattern = PatternOf(key); pattern && !item.empty()) palette.Characters[*pattern] = item[0];
    if (!file.empty()) TakeLine(file);
  }
  return palette;
}

Palette3x2 LoadPalette3x2(const std::filesystem::path& programFolder) {
  try {
    return ParsePalette3x2(LeerArchivo(programFolder / "Paleta 3x2.txt", kLargestFile));
  } catch (const FileError&) {
    throw Palette3x2Error();
  }
}

}  // namespace pixmosa
