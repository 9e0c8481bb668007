// Counts over a text of the 8-bit code page.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace pixmosa {

// How often each code 0..255 occurs.
std::array<std::uint64_t, 256> CountCodes(std::string_view text);

struct FilaDeEstadistica {
  std::string key;    // ASCII
  std::string label;  // 8-bit code page
  std::string value;  // decimal; empty for the columns of an empty text
};

// The rows of the statistics: characters, lines, columns of the first line, then each code 1..255 that
// occurs.
std::vector<FilaDeEstadistica> ShowStatistics(std::string_view text);

}  // namespace pixmosa
