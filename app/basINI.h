// The settings file KTV.ini, written on request and never read back.
#pragma once

#include <filesystem>
#include <span>
#include <string>
#include <string_view>

#include "platform/Colour.h"
#include "platform/Font.h"

namespace pixmosa {

// What "Grabar" records, as the controls show it.
struct IniSettings {
  Colour colorFondoAscii = kWhite, colorTextoAscii = kBlack;
  int tamañoAscii = 100;
  int paletaAscii = 0;
  int luminosidadAscii = 0;
  bool asciiNegativado = false;
  int paletaWeb = 0;
  bool previewAscii = false;
  Font fuente{};
};

// One value of an INI file; all texts in the 8-bit code page.
struct IniValue {
  std::string section, key, value;
};

// KTV.ini in the program's folder.
std::filesystem::path IniPath(const std::filesystem::path& programFolder);

// The content with the value set: an existing key (the first of its name in the first section of its name)
// gets the new value, a missing one goes to the end of its section, a missing section to the end of the
// content. Everything else stays byte for byte. Names compare without regard to case.
std::string WithIniValue(std::string_view content, const IniValue& value);

// One write into the file, whole or not at all; true where it succeeded.
bool WriteIniValue(const std::filesystem::path& file, const IniValue& value);

// The ten values in their order. A write that fails is not reported and does not keep the others from being
// tried.
void SaveSettings(const std::filesystem::path& file, const IniSettings& settings);

}  // namespace pixmosa
