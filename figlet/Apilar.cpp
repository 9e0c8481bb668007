#include "figlet/Apilar.h"

#include <algorithm>

#include "figlet/Fundir.h"

namespace pixmosa {
namespace {

using Filas = std::vector<std::u32string>;

char32_t En(const Filas& rows, std::size_t row, std::size_t column) {
  return column < rows[row].size() ? rows[row][column] : U' ';
}

// What two characters make that are to stand in one place; 0 where they cannot. `first`: nothing of their
// column shares a place yet.
char32_t Juntos(char32_t upper, char32_t lower, Apilado how, std::int32_t rules, bool first) {
  if (upper == U' ' || lower == U' ') return upper == U' ' ? lower : upper;
  if (how != Apilado::Fundir) return 0;
  if ((rules & kLineaVertical) && upper == U'|' && lower == U'|') return U'|';
  return first ? FundirVertical(upper, lower, rules) : 0;
}

// Whether the last `shared` rows above and the first ones of the line can be the same ones.
bool Caben(const Filas& above, const Filas& line, std::size_t shared, Apilado how, std::int32_t rules) {
  const std::size_t top = above.size() - shared;
  for (std::size_t row = 0; row < shared; ++row) {
    for (std::size_t x = 0; x < line[row].size(); ++x) {
      const char32_t upper = En(above, top + row, x), lower = line[row][x];
      if (upper == U' ' || lower == U' ') continue;
      // The column's lowest character above and its highest of the line touched one row earlier.
      bool first = true;
      for (std::size_t y = top + row + 1; first && y < above.size(); ++y) first = En(above, y, x) == U' ';
      for (std::size_t y = 0; first && y < row; ++y) first = En(line, y, x) == U' ';
      if (Juntos(upper, lower, how, rules, first) == 0) return false;
    }
  }
  return true;
}

bool Vacia(const Filas& rows) {
  return std::ranges::all_of(
      rows, [](const std::u32string& row) { return row.find_first_not_of(U' ') == std::u32string::npos; });
}

}  // namespace

void Apilar(Filas& above, Filas line, Apilado how, std::int32_t rules) {
  std::size_t shared = 0;
  const std::size_t most = std::min(above.size(), line.size());
  const Filas last(above.end() - static_cast<std::ptrdiff_t>(most), above.end());
  if (how != Apilado::Completo && !Vacia(line) && !Vacia(last))
    while (shared < most && Caben(above, line, shared + 1, how, rules)) ++shared;
  const std::size_t top = above.size() - shared;
  for (std::size_t row = 0; row < shared; ++row) {
    std::u32string& target = above[top + row];
    target.resize(std::max(target.size(), line[row].size()), U' ');
    for (std::size_t x = 0; x < line[row].size(); ++x)
      target[x] = Juntos(target[x], line[row][x], how, rules, true);
  }
  for (std::size_t row = shared; row < line.size(); ++row) above.push_back(std::move(line[row]));
}

}  // namespace pixmosa
