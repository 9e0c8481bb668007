#include "exportar/Base64.h"

#include <cstdint>

namespace pixmosa {

std::string Base64(std::string_view bytes) {
  constexpr char kLetras[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
  std::string text;
  text.reserve((bytes.size() + 2) / 3 * 4);
  for (; !bytes.empty(); bytes.remove_prefix(bytes.size() < 3 ? bytes.size() : 3)) {
    std::uint32_t three = 0;
    for (std::size_t i = 0; i < 3; ++i)
      three = three << 8 | (i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0U);
    for (std::size_t i = 0; i < 4; ++i) text += i <= bytes.size() ? kLetras[three >> (18 - 6 * i) & 63] : '=';
  }
  return text;
}

}  // namespace pixmosa
