#include "figlet/basFigLet.h"

#include <algorithm>
#include <charconv>
#include <optional>

#include "platform/AtomicFile.h"

namespace pixmosa {
namespace {

constexpr std::uintmax_t kLargestFile = 64 << 20;
constexpr std::size_t kFieldsBegin = 7;  // behind the signature, the hard blank and a blank
constexpr std::int32_t kCodes = 256;
constexpr std::int32_t kMostRows =
    4096;  // no font is that high; a header that says so asks for too large a table

// The whole number that a text begins with, as a conversion of a text would take it; nothing where it begins
// with none or the number is out of range.
std::optional<std::int32_t> NumberOf(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) return std::nullopt;
  text.remove_prefix(first);
  if (text[0] == '+') text.remove_prefix(1);
  std::int32_t n = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), n);
  if (error != std::errc()) return std::nullopt;
  const std::string_view rest(end, static_cast<std::size_t>(text.data() + text.size() - end));
  return rest.find_first_not_of(" \t") == std::string_view::npos ? std::optional(n) : std::nullopt;
}

// The height as a number of rows; nothing for what is no such number.
std::optional<std::int32_t> HeightOf(const BasFigLet& font) {
  const auto rows = NumberOf(font.Height);
  return rows && *rows >= 1 && *rows <= kMostRows ? rows : std::nullopt;
}

// Takes the field up to the next blank off the front; nothing where no blank follows.
std::optional<std::string> TakeField(std::string_view& rest) {
  const std::size_t blank = rest.find(' ');
  if (blank == std::string_view::npos) return std::nullopt;
  std::string field(rest.substr(0, blank));
  rest.remove_prefix(blank + 1);
  return field;
}

// The header's five fields by position. False where a step fails; what was set before stays.
bool ParseFields(BasFigLet& font, std::string_view line) {
  if (line.size() < kFieldsBegin) return false;
  std::string_view rest = line.substr(kFieldsBegin);
  const auto height = TakeField(rest);
  if (!height) return false;
  font.Height = *height;
  const auto rows = HeightOf(font);
  if (!rows) return false;
  for (auto& glyph : font.Glyphs) glyph.clear();
  font.TableRows = *rows;
  for (std::string* field : {&font.Baseline, &font.MaxLength, &font.OldLayout}) {
    const auto value = TakeField(rest);
    if (!value) return false;
    *field = *value;
  }
  font.CommentLines = rest.substr(0, rest.find(' '));
  return true;
}

void ParseHeader(BasFigLet& font, std::string_view line, const HeaderFailure& fail) {
  font.Cabecera = line;
  if (!ParseFields(font, line)) fail("Error abriendo la fuente.");
}

// Puts a line without its last `cut` characters into the table, where it has that many and the table that
// row.
void PutRow(BasFigLet& font, std::string_view line, std::size_t cut) {
  if (line.size() < cut || font.NextRow > font.TableRows) return;
  auto& rows = font.Glyphs[static_cast<std::size_t>(font.NextCode)];
  const auto row = static_cast<std::size_t>(font.NextRow);
  if (rows.size() < row) rows.resize(row);
  rows[row - 1] = line.substr(0, line.size() - cut);
}

// One line of character data. What fails is left out and the next step runs: a line too short to be cut is
// not stored, but its row is counted. Without a usable height nothing is.
void ReadRow(BasFigLet& font, std::string_view line) {
  if (font.EndMark.empty() && !line.empty()) font.EndMark = line.back();
  const auto height = HeightOf(font);
  if (font.NextCode >= kCodes || !height) return;
  if (font.NextRow != *height) {
    PutRow(font, line, 1);
    ++font.NextRow;
  } else {
    PutRow(font, line, 2);
    ++font.NextCode;
    font.NextRow = 1;
  }
}

// Comment lines stand from `firstComment` to CommentLines + 1; the header before them, the characters behind.
void ReadLine(BasFigLet& font, std::string_view line, std::int32_t number, std::int32_t firstComment,
              const HeaderFailure& fail) {
  if (number == firstComment - 1) {
    ParseHeader(font, line, fail);
    return;
  }
  const auto comments = NumberOf(font.CommentLines);
  if (comments && number >= firstComment && number - 1 <= *comments) {
    font.Comment += "\r\n";
    font.Comment += line;
  } else {
    ReadRow(font, line);
  }
}

// The file as a sequence of items, each ended by a comma or a line end and begun behind its blanks.
std::string JoinItems(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size());
  bool begun = false;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const char c = bytes[i];
    if (c == ',' || c == '\r') {
      if (c == '\r' && bytes.substr(i, 2) == "\r\n") ++i;
      begun = false;
    } else if (begun || c != ' ') {
      text += c;
      begun = true;
    }
  }
  return text;
}

void LoadFontUnix(BasFigLet& font, std::string_view bytes, const HeaderFailure& fail) {
  ResetFontState(font);
  const std::string text = JoinItems(bytes);
  std::string_view rest = text;
  for (std::int32_t number = 0;; ++number) {
    const std::size_t end = rest.find('\n');
    ReadLine(font, rest.substr(0, end), number, 1, fail);
    if (end == std::string_view::npos) return;
    rest.remove_prefix(end + 1);
  }
}

// Takes a line that ends at CR LF or CR.
std::string_view TakeCrLine(std::string_view& rest) {
  const std::size_t end = rest.find('\r');
  const std::string_view line = rest.substr(0, end);
  if (end == std::string_view::npos) {
    rest = {};
  } else {
    rest.remove_prefix(end + (rest.substr(end, 2) == "\r\n" ? 2 : 1));
  }
  return line;
}

}  // namespace

void ResetFontState(BasFigLet& font) {
  font.LineNumber = 1;
  font.CommentLines = "2";
  font.NextCode = 32;
  font.NextRow = 1;
  font.Height = "1";
  font.EndMark.clear();
  font.Comment.clear();
  font.Cabecera.clear();
}

void LoadFont(BasFigLet& font, const std::filesystem::path& file, const HeaderFailure& fail) {
  try {
    LoadFontBytes(font, LeerArchivo(file, kLargestFile), fail);
  } catch (const FileError&) {
    ResetFontState(font);
  }
}

void LoadFontBytes(BasFigLet& font, std::string_view bytes, const HeaderFailure& fail) {
  ResetFontState(font);
  for (std::string_view rest = bytes; !rest.empty(); ++font.LineNumber) {
    const std::string_view line = TakeCrLine(rest);
    if (line.find('\n') != std::string_view::npos) {
      LoadFontUnix(font, bytes, fail);
      return;
    }
    ReadLine(font, line, font.LineNumber, 2, fail);
  }
}

std::size_t FilasDeLetrero(const BasFigLet& font) {
  return static_cast<std::size_t>(HeightOf(font).value_or(0));
}

std::string RenderBanner(const BasFigLet& font, std::string_view text) {
  std::string banner;
  const std::size_t height = FilasDeLetrero(font);
  while (!text.empty()) {
    const std::size_t end = text.find("\r\n");
    const std::string_view line = text.substr(0, end);
    for (std::size_t row = 0; row < height; ++row) {
      for (const char c : line) {
        const auto& glyph = font.Glyphs[static_cast<unsigned char>(c)];
        if (row < glyph.size()) banner += glyph[row];
      }
      banner += "\r\n";
    }
    if (end == std::string_view::npos) break;
    text.remove_prefix(end + 2);
    if (!text.empty()) continue;
    // A final CR LF leaves one more line, an empty one.
    for (std::size_t row = 0; row < height; ++row) banner += "\r\n";
  }
  std::replace(banner.begin(), banner.end(), '$', ' ');
  return banner;
}

}  // namespace pixmosa
