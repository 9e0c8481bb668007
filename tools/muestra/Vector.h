// Points, directions and colours (in linear light) of the painted sample.
#pragma once

#include <algorithm>
#include <cmath>

namespace pixmosa::muestra {

struct Vector {
  float x = 0, y = 0, z = 0;
  Vector operator+(Vector o) const { return {x + o.x, y + o.y, z + o.z}; }
  Vector operator-(Vector o) const { return {x - o.x, y - o.y, z - o.z}; }
  Vector operator*(Vector o) const { return {x * o.x, y * o.y, z * o.z}; }
  Vector operator/(Vector o) const { return {x / o.x, y / o.y, z / o.z}; }
  Vector operator*(float k) const { return {x * k, y * k, z * k}; }
};

inline float Punto(Vector a, Vector b) {
  return a.x * b.x + a.y * b.y + a.z * b.z;
}
inline float Largo(Vector a) {
  return std::sqrt(Punto(a, a));
}
inline Vector Unidad(Vector a) {
  return a * (1 / std::max(Largo(a), 1e-6F));
}
inline Vector Mezcla(Vector a, Vector b, float k) {
  return a + (b - a) * k;
}

// 0 up to `from`, 1 from `to` on, smooth between; falls where `to` is less.
inline float Paso(float from, float to, float v) {
  const float t = std::clamp((v - from) / (to - from), 0.0F, 1.0F);
  return t * t * (3 - 2 * t);
}

// How far (x, y) lies from the centre of an ellipse, 1 on its edge.
inline float Elipse(float x, float y, float cx, float cy, float rx, float ry) {
  return std::hypot((x - cx) / rx, (y - cy) / ry);
}

}  // namespace pixmosa::muestra
