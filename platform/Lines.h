// Taking lines off a text.
#pragma once

#include <string_view>

namespace pixmosa {

// Takes the first line off the front of `text` without its end (CR LF, CR or LF). An empty text gives an
// empty line.
inline std::string_view TakeLine(std::string_view& text) {
  const std::size_t end = text.find_first_of("\r\n");
  const std::string_view line = text.substr(0, end);
  if (end == std::string_view::npos) {
    text = {};
  } else {
    text.remove_prefix(end + (text.substr(end, 2) == "\r\n" ? 2 : 1));
  }
  return line;
}

}  // namespace pixmosa
