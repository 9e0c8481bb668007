// Small black and white maps of letter shapes, and what turns one into another.
#pragma once

#include <string>
#include <vector>

namespace pixmosa::letras {

// Ink or paper; every place outside the map is paper. Writing outside is a fault of the caller.
class Mapa {
 public:
  Mapa() = default;
  Mapa(int width, int height);
  int Width() const { return width_; }
  int Height() const { return height_; }
  bool At(int x, int y) const;
  void Set(int x, int y, bool ink = true);

 private:
  int width_ = 0, height_ = 0;
  std::vector<char> ink_;
};

// What is not blank in rows of one length is ink.
Mapa DeTinta(const std::vector<std::string>& rows);

// Each pixel as `x` by `y` pixels.
Mapa Ampliar(const Mapa& m, int x, int y);

// Twice as large with the corners cut: a corner takes the colour of the two neighbours beside it where they
// agree and the two across from them do not.
Mapa Suavizar(const Mapa& m);

// Every stroke a pixel thicker to the right and down.
Mapa Engrosar(const Mapa& m);

// Rows pushed sideways, one pixel for every `rows` rows; to the right at the top for a positive number.
Mapa Inclinar(const Mapa& m, int rows);

// With blank columns and rows around.
Mapa Orlar(const Mapa& m, int left, int top, int right, int bottom);

// Paper that touches ink, the corners too; the map must have a blank border for it.
Mapa Halo(const Mapa& m);

}  // namespace pixmosa::letras
