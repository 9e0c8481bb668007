// Lists of words.
#pragma once

#include <string>
#include <vector>

namespace pixmosa::cli {

// "a,b" as its parts; an empty text has one empty part.
inline std::vector<std::string> Separar(const std::string& text) {
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

// "a, b o c".
template <typename Palabra>
std::string Unidas(const std::vector<Palabra>& words) {
  std::string s;
  for (std::size_t i = 0; i < words.size(); ++i)
    s += (i == 0 ? "" : i + 1 == words.size() ? " o " : ", ") + std::string(words[i]);
  return s;
}

}  // namespace pixmosa::cli
