// Small pictures drawn as text in tests.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "platform/Picture.h"

namespace pixmosa::test {

// One string a row, one character a pixel; `ink` gives each character's colour.
inline Picture Drawn(const std::vector<std::string>& rows,
                     const std::map<char, Colour>& ink = {{'#', kBlack}, {'.', kWhite}}) {
  Picture p(static_cast<int>(rows.at(0).size()), static_cast<int>(rows.size()));
  std::uint32_t* to = p.Writable();
  for (const std::string& row : rows)
    for (const char c : row) *to++ = PixelOfColour(ink.at(c));
  return p;
}

// A gray picture from its levels, row by row.
inline Picture Grays(const std::vector<std::vector<int>>& rows) {
  Picture p(static_cast<int>(rows.at(0).size()), static_cast<int>(rows.size()));
  std::uint32_t* to = p.Writable();
  for (const auto& row : rows)
    for (const int g : row) *to++ = PixelOfColour(Rgb(g, g, g));
  return p;
}

// The red parts, row by row: the gray levels of a gray picture.
inline std::vector<std::vector<int>> Levels(const Picture& p) {
  std::vector<std::vector<int>> rows;
  for (int y = 0; y < p.Height(); ++y) {
    rows.emplace_back();
    for (int x = 0; x < p.Width(); ++x) rows.back().push_back(p.ColourAt(x, y) & 0xFF);
  }
  return rows;
}

}  // namespace pixmosa::test
