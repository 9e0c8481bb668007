#include "tools/letras/Hoja.h"

#include <algorithm>
#include <sstream>
#include <stdexcept>

#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/Lines.h"
#include "tools/letras/Componer.h"

namespace pixmosa::letras {
namespace {

struct Cabecera {
  std::size_t blank = 3, scale = 1;
  bool leans = false;
  std::string rest;
};

std::size_t CodeOf(char32_t c) {
  std::size_t code = 1;
  for (std::string_view apart = kAparte; !apart.empty(); ++code)
    if (NextUtf8(apart) == c) return code;
  const auto byte = ByteOfUnicode(c);
  if (!byte) throw std::runtime_error("a shape of no code");
  return *byte;
}

std::vector<std::size_t> Codes(std::string_view line) {
  std::vector<std::size_t> codes;
  while (!line.empty()) codes.push_back(CodeOf(NextUtf8(line)));
  return codes;
}

Cabecera ReadCounts(const std::string& line, Hoja& sheet) {
  Cabecera c;
  std::istringstream in(line);
  for (std::string word; in >> word;) {
    if (word == "filas") in >> sheet.filas;
    if (word == "linea") in >> sheet.linea;
    if (word == "hueco") in >> sheet.hueco;
    if (word == "blanco") in >> c.blank;
    if (word == "inclina") c.leans = true;
    if (word == "resto") in >> c.rest >> c.scale;
  }
  return c;
}

// A block: the line with the characters, then the rows; the last rows of a sheet may be missing.
void ReadBlock(const std::vector<std::string>& lines, std::size_t at, Hoja& sheet) {
  const std::vector<std::size_t> heads = Codes(lines[at]);
  for (std::size_t x = 0; x < heads.size(); ++x) {
    if (heads[x] == ' ') continue;
    std::size_t next = x + 1;
    while (next < heads.size() && heads[next] == ' ') ++next;
    const std::size_t wide = next == heads.size() ? std::string::npos : next - x;
    Filas& shape = sheet[heads[x]];
    if (!shape.empty()) throw std::runtime_error("drawn twice: " + lines[at]);
    for (std::size_t y = 1; y <= static_cast<std::size_t>(sheet.filas); ++y) {
      const std::string row = at + y < lines.size() ? BytesOfUtf8(lines[at + y]) : "";
      shape.push_back(x < row.size() ? row.substr(x, wide) : "");
    }
    shape = Recortadas(shape);
  }
}

// Signs that hang from the top of the capitals; the others stand on the base line.
constexpr std::string_view kRaised = "\"'*^\x88\x91\x92\x93\x94\x98\x99\xA8\xAA\xAF\xB0\xB2\xB3\xB9\xBA";

int Top(const Hoja& sheet) {
  const Filas& capital = sheet['T'];
  return static_cast<int>(std::find_if_not(capital.begin(), capital.end(), EsBlanca) - capital.begin());
}

// The shape of a code in a sheet with other rows, each column `scale` times.
Filas Adapted(const Hoja& from, std::size_t code, const Hoja& to, std::size_t scale) {
  const Filas& shape = from[code];
  const bool raised = kRaised.find(static_cast<char>(code)) != std::string_view::npos;
  const int push = raised ? Top(to) - Top(from) : to.linea - from.linea;
  Filas rows(static_cast<std::size_t>(to.filas), std::string(shape.at(0).size() * scale, ' '));
  for (int y = 0; y < from.filas; ++y) {
    const std::string& row = shape[static_cast<std::size_t>(y)];
    const int at = y + push;
    if (EsBlanca(row)) continue;
    if (at < 0 || at >= to.filas) throw std::runtime_error("no room for a row: " + row);
    for (std::size_t x = 0; x < row.size() * scale; ++x)
      rows[static_cast<std::size_t>(at)][x] = row[x / scale];
  }
  return rows;
}

// One column further for each row up.
Filas Leaning(Filas rows) {
  for (std::size_t y = 0; y < rows.size(); ++y) {
    std::replace(rows[y].begin(), rows[y].end(), '|', '/');
    rows[y].insert(0, rows.size() - 1 - y, ' ');
  }
  return Recortadas(rows);
}

void TakeFrom(const Hoja& rest, std::size_t scale, std::size_t first, Hoja& sheet) {
  for (std::size_t code = first; code < 256; ++code)
    if (sheet[code].empty() && !rest[code].empty()) sheet[code] = Adapted(rest, code, sheet, scale);
}

}  // namespace

bool EsBlanca(std::string_view row) {
  return row.find_first_not_of(' ') == std::string_view::npos;
}

Filas Recortadas(const Filas& rows) {
  std::size_t first = std::string::npos, last = 0;
  for (const std::string& row : rows)
    if (!EsBlanca(row)) {
      first = std::min(first, row.find_first_not_of(' '));
      last = std::max(last, row.find_last_not_of(' '));
    }
  if (first == std::string::npos) return Filas(rows.size(), " ");
  Filas cut;
  for (std::string row : rows) {
    row.resize(std::max(row.size(), last + 1), ' ');
    cut.push_back(row.substr(first, last + 1 - first));
  }
  return cut;
}

Hoja LeerHoja(const std::filesystem::path& folder, const std::string& name) {
  const std::string text = LeerArchivo(folder / (name + ".txt"));
  std::vector<std::string> lines;
  for (std::string_view rest = text; !rest.empty();) lines.emplace_back(TakeLine(rest));
  Hoja sheet;
  const Cabecera counts = ReadCounts(lines.at(0), sheet);
  for (std::size_t at = 1; at < lines.size(); at += static_cast<std::size_t>(sheet.filas) + 1)
    ReadBlock(lines, at, sheet);
  sheet[0x20] = sheet[0xA0] = Filas(static_cast<std::size_t>(sheet.filas), std::string(counts.blank, ' '));
  Hoja rest;
  if (!counts.rest.empty()) rest = LeerHoja(folder, counts.rest);
  if (counts.leans)
    for (Filas& shape : rest.formas)
      if (!shape.empty()) shape = Leaning(shape);
  Hoja marks = rest;
  for (std::size_t code = 0; code < 256; ++code)
    if (!EsMarca(code)) marks[code].clear();
  TakeFrom(marks, counts.scale, 1, sheet);
  Componer(sheet);
  TakeFrom(rest, counts.scale, 32, sheet);
  return sheet;
}

}  // namespace pixmosa::letras
