#include "platform/Dibujo.h"

#include <algorithm>

#include "platform/CodePage.h"

namespace pixmosa {
namespace {

// `next(rest)` takes one character off the front of what is left.
template <typename Next>
Dibujo Leer(std::string_view text, Next next) {
  Dibujo drawing;
  if (!text.empty()) drawing.filas.emplace_back();
  while (!text.empty()) {
    const char32_t c = next(text);
    if (c != U'\r' && c != U'\n') {
      drawing.filas.back().push_back({c});
      continue;
    }
    if (c == U'\r' && text.starts_with('\n')) text.remove_prefix(1);
    drawing.filas.emplace_back();
  }
  return drawing;
}

}  // namespace

std::size_t Dibujo::Columnas() const {
  std::size_t most = 0;
  for (const Fila& row : filas) most = std::max(most, row.size());
  return most;
}

Dibujo DibujoDeTexto(std::string_view bytes) {
  return Leer(bytes, [](std::string_view& rest) {
    const char32_t c = UnicodeOfByte(static_cast<unsigned char>(rest[0]));
    rest.remove_prefix(1);
    return c;
  });
}

Dibujo DibujoDeUtf8(std::string_view utf8) {
  return Leer(utf8, NextUtf8);
}

}  // namespace pixmosa
