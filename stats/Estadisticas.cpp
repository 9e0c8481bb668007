#include "stats/Estadisticas.h"

#include <cstring>

namespace pixmosa {
namespace {

// The number of CR LF pairs.
std::uint64_t CountLineEnds(std::string_view text) {
  std::uint64_t n = 0;
  for (std::size_t at = text.find('\n'); at != std::string_view::npos; at = text.find('\n', at + 1))
    n += at > 0 && text[at - 1] == '\r';
  return n;
}

}  // namespace

std::array<std::uint64_t, 256> CountCodes(std::string_view text) {
  // Eight tables side by side: a run of one character would otherwise wait for its own count at every step.
  constexpr std::size_t kTables = 8;
  std::array<std::array<std::uint64_t, 256>, kTables> tables{};
  const char* p = text.data();
  const char* const end = p + text.size();
  for (; end - p >= 8; p += 8) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, p, 8);
    for (std::size_t i = 0; i < kTables; ++i) ++tables[i][eight >> (8 * i) & 0xFF];
  }
  for (; p < end; ++p) ++tables[0][static_cast<unsigned char>(*p)];
  std::array<std::uint64_t, 256> counts{};
  for (const auto& table : tables)
    for (std::size_t c = 0; c < 256; ++c) counts[c] += table[c];
  return counts;
}

std::vector<FilaDeEstadistica> ShowStatistics(std::string_view text) {
  const bool empty = text.empty();
  std::vector<FilaDeEstadistica> rows = {
      {"Caracteres", "Caracteres", std::to_string(text.size())},
      {"Lineas", "Lineas", std::to_string(empty ? 0 : CountLineEnds(text) + 1)},
      {"Columnas", "Columnas", empty ? "" : std::to_string(text.substr(0, text.find("\r\n")).size())},
  };
  const auto counts = CountCodes(text);
  for (std::size_t c = 1; c < 256; ++c) {
    if (counts[c] == 0) continue;
    const std::string code = std::to_string(c);
    rows.push_back({"asc" + code, std::string(1, static_cast<char>(c)) + " (Cod. " + code + ")",
                    std::to_string(counts[c])});
  }
  return rows;
}

}  // namespace pixmosa
