// Lists separated by commas.
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

}  // namespace pixmosa::cli
