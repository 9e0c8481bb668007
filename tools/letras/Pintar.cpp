#include "tools/letras/Pintar.h"

#include <algorithm>

namespace pixmosa::letras {
namespace {

Filas Blank(int width, int height) {
  return Filas(static_cast<std::size_t>(height), std::string(static_cast<std::size_t>(width), ' '));
}

char& Place(Filas& rows, int x, int y) {
  return rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
}

// Rows with the character that `pick` gives each place.
template <typename Pick>
Filas Paint(int width, int height, Pick pick) {
  Filas rows = Blank(width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) Place(rows, x, y) = pick(x, y);
  return rows;
}

}  // namespace

Filas Sellar(const Mapa& m, std::string_view ink, std::string_view paper) {
  const int wide = static_cast<int>(ink.size());
  return Paint(m.Width() * wide, m.Height(), [&](int x, int y) {
    return (m.At(x / wide, y) ? ink : paper)[static_cast<std::size_t>(x % wide)];
  });
}

Filas Tramar(const Mapa& m, const std::function<char(int x, int y)>& ink) {
  return Paint(m.Width(), m.Height(), [&](int x, int y) { return m.At(x, y) ? ink(x, y) : ' '; });
}

Filas Apilar(const Mapa& m, const std::vector<Capa>& layers) {
  int left = 0, right = 0, up = 0, down = 0;
  for (const Capa& layer : layers) {
    left = std::max(left, -layer.x), right = std::max(right, layer.x);
    up = std::max(up, -layer.y), down = std::max(down, layer.y);
  }
  return Paint(m.Width() + left + right, m.Height() + up + down, [&](int x, int y) {
    char c = ' ';
    for (const Capa& layer : layers)
      if (m.At(x - left - layer.x, y - up - layer.y)) c = layer.ink;
    return c;
  });
}

Filas Perfilar(const Mapa& m, int inside) {
  const int pitch = inside + 1;
  const auto floor = [&](int x, int y) { return m.At(x, y) != m.At(x, y + 1); };
  return Paint(m.Width() * pitch + 1, m.Height() + 1, [&](int i, int row) {
    const int x = i / pitch, y = row - 1;
    if (i % pitch != 0) return floor(x, y) ? '_' : ' ';
    if (m.At(x - 1, y) != m.At(x, y)) return '|';
    return floor(x - 1, y) && floor(x, y) ? '_' : ' ';
  });
}

Filas Sombrear(const Mapa& m, int inside) {
  const int pitch = inside + 1;
  const Filas outline = Perfilar(Orlar(m, 0, 0, 1, 1), inside);
  return Paint(static_cast<int>(outline[0].size()), static_cast<int>(outline.size()), [&](int x, int y) {
    const char c = outline[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)];
    const bool shade = !m.At(x / pitch, y - 1) && x >= 2 && m.At((x - 2) / pitch, y - 2);
    return c == ' ' && shade ? ':' : c;
  });
}

Filas Doblar(const Mapa& m, std::string_view chars) {
  return Paint(m.Width(), m.Height() / 2, [&](int x, int y) {
    return chars[static_cast<std::size_t>(m.At(x, 2 * y) * 2 + m.At(x, 2 * y + 1))];
  });
}

Filas Cuartear(const Mapa& m, std::string_view chars) {
  return Paint((m.Width() + 1) / 2, m.Height() / 2, [&](int i, int j) {
    const int x = 2 * i, y = 2 * j;
    return chars[static_cast<std::size_t>(m.At(x, y) * 8 + m.At(x + 1, y) * 4 + m.At(x, y + 1) * 2 +
                                          m.At(x + 1, y + 1))];
  });
}

}  // namespace pixmosa::letras
