// What is painted on: an area of colours in linear light, finer than the picture that it ends in.
#pragma once

#include <vector>

#include "platform/Picture.h"
#include "tools/muestra/Vector.h"

namespace pixmosa::muestra {

class Lienzo {
 public:
  Lienzo(int width, int height)
      : width_(width * kFino),
        height_(height * kFino),
        colours_(static_cast<std::size_t>(width_ * height_)) {}

  static constexpr int kFino = 2;
  static constexpr float kAumento = 1.2F, kIzquierda = 75, kArriba = 58;  // how near the solid is seen
  int Ancho() const { return width_; }
  int Alto() const { return height_; }
  // The place on the solid of a column, and of a row.
  static float X(int i) { return kIzquierda + (static_cast<float>(i) + 0.5F) / (kFino * kAumento); }
  static float Y(int j) { return kArriba + (static_cast<float>(j) + 0.5F) / (kFino * kAumento); }
  Vector& En(int x, int y) { return colours_[static_cast<std::size_t>(y * width_ + x)]; }

  // A round spot with a soft edge; places and sizes in units of the picture.
  void Mancha(float x, float y, float radius, Vector colour, float cover);

  // A hair from a to c bent toward b, thick at its root and thin at its tip.
  void Trazo(Vector a, Vector b, Vector c, float thick, Vector colour, float cover);

  Picture Imagen() const;

 private:
  int width_, height_;
  std::vector<Vector> colours_;
};

}  // namespace pixmosa::muestra
