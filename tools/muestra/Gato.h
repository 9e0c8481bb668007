// A cat's head and shoulders as a solid of blended ellipsoids, with the colours of its coat. The picture is
// 900 by 700 units, x to the right, y downward, z toward who looks.
#pragma once

#include "tools/muestra/Vector.h"

namespace pixmosa::muestra {

inline constexpr int kAncho = 900, kAlto = 700;
inline constexpr float kCentro = 450, kNarizY = 438, kOjoX = 83, kOjoY = 352;

// The distance from the solid, negative within.
float Distancia(Vector p);

// What lies under one place of the picture: the coat in its light, or the room behind.
struct Lugar {
  bool gato = false;
  float z = 0;
  Vector color;
};
Lugar Mirar(float x, float y);

// The room behind the cat.
Vector Fondo(float x, float y);

// Where the hair points to, and how long it is there.
struct Pelo {
  Vector hacia;
  float largo = 0;
};
Pelo PeloEn(float x, float y);

}  // namespace pixmosa::muestra
