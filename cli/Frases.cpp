#include "cli/Frases.h"

#include "platform/CodePage.h"

namespace pixmosa::cli {
namespace {

constexpr char32_t kMal = 0xFFFD;  // what a malformed sequence is read as
constexpr std::string_view kMalEscrito = "\xEF\xBF\xBD";

bool SeVe(char32_t c) {
  const bool control = c < 0x20 || (c >= 0x7F && c < 0xA0);
  const bool direction =
      c == 0x200E || c == 0x200F || (c >= 0x2028 && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069);
  return !control && !direction;
}

void Escapar(std::string& to, std::string_view bytes) {
  static constexpr char kDigits[] = "0123456789ABCDEF";
  for (const unsigned char b : bytes) {
    const std::size_t at = std::string_view("\n\r\t").find(static_cast<char>(b));
    to += '\\';
    if (at != std::string_view::npos) {
      to += "nrt"[at];
    } else {
      to += {'x', kDigits[b / 16], kDigits[b % 16]};
    }
  }
}

}  // namespace

std::string Visible(std::string_view text) {
  std::string line;
  while (!text.empty()) {
    std::string_view rest = text;
    const char32_t c = NextUtf8(rest);
    const std::string_view bytes = text.substr(0, text.size() - rest.size());
    text = rest;
    if (SeVe(c) && (c != kMal || bytes == kMalEscrito)) {
      line += bytes;
    } else {
      Escapar(line, bytes);
    }
  }
  return line;
}

}  // namespace pixmosa::cli
