// Small FIGlet fonts made by the test.
#pragma once

#include <string>

namespace pixmosa::test {

// A font in the reader's own form: two rows a character, the character itself and its row number. "$" as hard
// blank.
inline std::string OwnFont(const std::string& end = "\r\n") {
  std::string font = "flf2a$ 2 1 5 -1 1" + end + "Comentario" + end;
  for (int c = 32; c < 256; ++c) {
    const char letter = c == ' ' ? '$' : static_cast<char>(c);
    font += std::string(1, letter) + "1@" + end + std::string(1, letter) + "2@@" + end;
  }
  return font;
}

}  // namespace pixmosa::test
