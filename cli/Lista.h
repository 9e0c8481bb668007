// Lists of words.
#pragma once

#include <string>
#include <vector>

namespace pixmosa::cli {

// "a, b o c".
template <typename Palabra>
std::string Unidas(const std::vector<Palabra>& words) {
  std::string s;
  for (std::size_t i = 0; i < words.size(); ++i)
    s += (i == 0 ? "" : i + 1 == words.size() ? " o " : ", ") + std::string(words[i]);
  return s;
}

}  // namespace pixmosa::cli
