// Words and numbers of a text that people write.
#pragma once

#include <charconv>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace pixmosa {

// "a,b" as its parts; an empty text has one empty part.
inline std::vector<std::string> Separar(std::string_view text) {
  std::vector<std::string> parts(1);
  for (const char c : text) {
    if (c == ',') {
      parts.emplace_back();
    } else {
      parts.back() += c;
    }
  }
  return parts;
}

// The whole of `text` as a decimal integer within minimo..maximo, or nothing.
inline std::optional<int> EnteroDeTexto(std::string_view text, int minimo, int maximo) {
  int v = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), v);
  if (error != std::errc() || end != text.data() + text.size() || v < minimo || v > maximo)
    return std::nullopt;
  return v;
}

}  // namespace pixmosa
