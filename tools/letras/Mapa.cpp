#include "tools/letras/Mapa.h"

#include <algorithm>
#include <cstdlib>

namespace pixmosa::letras {

Mapa::Mapa(int width, int height)
    : width_(width),
      height_(height),
      ink_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {}

bool Mapa::At(int x, int y) const {
  if (x < 0 || y < 0 || x >= width_ || y >= height_) return false;
  return ink_[static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)];
}

void Mapa::Set(int x, int y, bool ink) {
  ink_.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(width_) + static_cast<std::size_t>(x)) = ink;
}

namespace {

// A map of that size with the colour that `ink` gives each place.
template <typename Ink>
Mapa Fill(int width, int height, Ink ink) {
  Mapa m(width, height);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) m.Set(x, y, ink(x, y));
  return m;
}

}  // namespace

Mapa DeTinta(const std::vector<std::string>& rows) {
  return Fill(static_cast<int>(rows.at(0).size()), static_cast<int>(rows.size()), [&](int x, int y) {
    return rows[static_cast<std::size_t>(y)][static_cast<std::size_t>(x)] != ' ';
  });
}

Mapa Ampliar(const Mapa& m, int x, int y) {
  return Fill(m.Width() * x, m.Height() * y, [&](int i, int j) { return m.At(i / x, j / y); });
}

Mapa Suavizar(const Mapa& m) {
  return Fill(m.Width() * 2, m.Height() * 2, [&](int i, int j) {
    const int x = i / 2, y = j / 2, dx = i % 2 ? 1 : -1, dy = j % 2 ? 1 : -1;
    const bool side = m.At(x + dx, y), level = m.At(x, y + dy);
    const bool cut = side == level && side != m.At(x - dx, y) && level != m.At(x, y - dy);
    return cut ? side : m.At(x, y);
  });
}

Mapa Engrosar(const Mapa& m) {
  return Fill(m.Width() + 1, m.Height() + 1, [&](int x, int y) {
    return m.At(x, y) || m.At(x - 1, y) || m.At(x, y - 1) || m.At(x - 1, y - 1);
  });
}

Mapa Inclinar(const Mapa& m, int rows) {
  const int step = std::abs(rows), most = (m.Height() - 1) / step;
  return Fill(m.Width() + most, m.Height(), [&](int x, int y) {
    const int push = rows > 0 ? (m.Height() - 1 - y) / step : y / step;
    return m.At(x - push, y);
  });
}

Mapa Orlar(const Mapa& m, int left, int top, int right, int bottom) {
  return Fill(m.Width() + left + right, m.Height() + top + bottom,
              [&](int x, int y) { return m.At(x - left, y - top); });
}

Mapa Halo(const Mapa& m) {
  return Fill(m.Width(), m.Height(), [&](int x, int y) {
    for (int j = -1; j <= 1; ++j)
      for (int i = -1; i <= 1; ++i)
        if (m.At(x + i, y + j)) return !m.At(x, y);
    return false;
  });
}

}  // namespace pixmosa::letras
