#include "app/basINI.h"

#include <array>

#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/Lines.h"

namespace pixmosa {
namespace {

constexpr std::string_view kBlanks = " \t";

std::string_view Trimmed(std::string_view s) {
  const std::size_t first = s.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return s.substr(first, s.find_last_not_of(kBlanks) - first + 1);
}

bool SameName(std::string_view a, std::string_view b) {
  return LowerCase(Trimmed(a)) == LowerCase(Trimmed(b));
}

// The name between the brackets of a section line; nothing else begins with a bracket.
bool IsSectionLine(std::string_view line) {
  return Trimmed(line).starts_with('[');
}

bool IsSection(std::string_view line, std::string_view name) {
  const std::string_view s = Trimmed(line);
  return s.starts_with('[') && SameName(s.substr(1, s.find(']') - 1), name);
}

bool IsKey(std::string_view line, std::string_view key) {
  const std::size_t equals = line.find('=');
  return equals != std::string_view::npos && !Trimmed(line).starts_with(';') &&
         SameName(line.substr(0, equals), key);
}

// Where things stand in a content; npos for what is missing.
struct Place {
  std::size_t valueBegin = std::string_view::npos, valueEnd = std::string_view::npos;
  std::size_t sectionEnd = std::string_view::npos;  // behind the section's last line that is not blank
};

Place Find(std::string_view content, const IniValue& value) {
  Place place;
  bool inside = false;
  for (std::string_view rest = content; !rest.empty();) {
    const std::size_t begin = content.size() - rest.size();
    const std::string_view line = TakeLine(rest);
    if (IsSectionLine(line)) {
      if (inside) break;
      inside = IsSection(line, value.section);
    } else if (inside && IsKey(line, value.key)) {
      place.valueBegin = begin + line.find('=') + 1;
      place.valueEnd = begin + line.size();
      return place;
    }
    if (inside && !Trimmed(line).empty()) place.sectionEnd = content.size() - rest.size();
  }
  return place;
}

}  // namespace

std::filesystem::path IniPath(const std::filesystem::path& programFolder) {
  return programFolder / "KTV.ini";
}

std::string WithIniValue(std::string_view content, const IniValue& value) {
  std::string result(content);
  const Place place = Find(content, value);
  if (place.valueBegin != std::string_view::npos)
    return result.replace(place.valueBegin, place.valueEnd - place.valueBegin, value.value);
  const std::string line = value.key + "=" + value.value + "\r\n";
  const auto insertAt = [&](std::size_t at, const std::string& text) {
    const bool open =
        at > 0 && result[at - 1] != '\n' && result[at - 1] != '\r';  // a last line without its end
    return result.insert(at, (open ? "\r\n" : "") + text);
  };
  if (place.sectionEnd != std::string_view::npos) return insertAt(place.sectionEnd, line);
  return insertAt(result.size(), "[" + value.section + "]\r\n" + line);
}

bool WriteIniValue(const std::filesystem::path& file, const IniValue& value) {
  try {
    std::error_code ec;
    const bool there = std::filesystem::exists(file, ec);
    const std::string content = there ? LeerArchivo(file) : std::string();
    EscribirArchivo(file, WithIniValue(content, value));
    return true;
  } catch (const FileError&) {
    return false;
  }
}

void SaveSettings(const std::filesystem::path& file, const IniSettings& s) {
  const auto number = [](int n) { return std::to_string(n); };
  const std::array<IniValue, 10> values = {{
      {"Main", "ColorFondoAscii", number(s.colorFondoAscii)},
      {"Main", "ColorTextoAscii", number(s.colorTextoAscii)},
      {"Main", BytesOfUtf8("TamañoAscii"), number(s.tamañoAscii)},
      {"Main", "PaletaAscii", number(s.paletaAscii)},
      {"Main", "LuminosidadAscii", number(s.luminosidadAscii)},
      {"Main", "AsciiNegativado", number(s.asciiNegativado)},
      {"main", "PaletaWeb", number(s.paletaWeb)},
      {"main", "PreviewAscii", number(s.previewAscii)},
      {"Fuente", "Nombre", BytesOfUtf8(s.fuente.name)},
      {"Fuente", BytesOfUtf8("Tamaño"), number(s.fuente.points)},
  }};
  for (const IniValue& value : values) WriteIniValue(file, value);
}

}  // namespace pixmosa
