#include "tools/muestra/Gato.h"

#include <array>

namespace pixmosa::muestra {
namespace {

struct Bola {
  Vector centro, radio;
  float union_;  // how softly it runs into the rest
};

// Only the left half: the solid is the same on both sides. Places are relative to the middle line.
constexpr std::array kBolas = {
    Bola{{0, 335, 0}, {178, 150, 145}, 1},        // skull
    Bola{{-95, 410, 15}, {112, 88, 95}, 40},      // cheek
    Bola{{-34, 462, 112}, {52, 40, 52}, 26},      // muzzle
    Bola{{0, 385, 95}, {38, 95, 62}, 40},         // bridge of the nose
    Bola{{0, 503, 88}, {44, 30, 44}, 22},         // chin
    Bola{{-70, 292, 88}, {70, 36, 50}, 40},       // brow
    Bola{{0, 660, -60}, {205, 245, 130}, 40},     // neck
    Bola{{-150, 790, -40}, {170, 190, 150}, 60},  // shoulder
    Bola{{0, 690, 25}, {140, 170, 105}, 60},      // chest
};
constexpr Vector kEar[3] = {{-184, 312, 0}, {-56, 212, 0}, {-170, 100, 0}};

float DeElipsoide(Vector p, Vector radio) {
  const float near = Largo(p / radio), steep = Largo(p / (radio * radio));
  return steep > 0 ? near * (near - 1) / steep : -radio.x;
}

float Unir(float a, float b, float k) {
  const float h = std::max(k - std::abs(a - b), 0.0F) / k;
  return std::min(a, b) - h * h * k * 0.25F;
}

float DeTriangulo(float x, float y) {
  float best = 1e9F, side = 1;
  for (int i = 0; i < 3; ++i) {
    const Vector a = kEar[i], e = kEar[(i + 1) % 3] - a, w = {x - a.x, y - a.y, 0};
    best = std::min(best, Largo(w - e * std::clamp(Punto(w, e) / Punto(e, e), 0.0F, 1.0F)));
    if (e.x * w.y - e.y * w.x > 0) side = -1;
  }
  return best * -side;
}

float DeOreja(Vector p) {
  const float flat = DeTriangulo(p.x, p.y), deep = std::abs(p.z + 25 + (p.y - 208) * -0.12F) - 14;
  const float slab =
      std::hypot(std::max(flat, 0.0F), std::max(deep, 0.0F)) + std::min(std::max(flat, deep), 0.0F) - 17;
  const float hollow = DeElipsoide(p - Vector{-140, 212, 24}, {46, 90, 46});
  return -Unir(-slab, hollow, 16);
}

float Ruido(float x, float y) {
  const auto grain = [](int i, int j) {
    auto h = static_cast<unsigned>(i) * 374761393U + static_cast<unsigned>(j) * 668265263U;
    h = (h ^ (h >> 13)) * 1274126177U;
    return static_cast<float>((h ^ (h >> 16)) & 0xFFFF) / 65535.0F;
  };
  const float fx = std::floor(x), fy = std::floor(y), u = Paso(0, 1, x - fx), v = Paso(0, 1, y - fy);
  const int i = static_cast<int>(fx), j = static_cast<int>(fy);
  return std::lerp(std::lerp(grain(i, j), grain(i + 1, j), u),
                   std::lerp(grain(i, j + 1), grain(i + 1, j + 1), u), v) -
         0.5F;
}

// How dark the tabby's stripes are at a place, x from the middle line.
float Rayas(float x, float y) {
  const float wave = Ruido(x / 45, y / 45) * 22, side = std::abs(x) + wave * 0.4F;
  float dark = 0;
  // The lines of the brow, bent outward as they rise.
  const float up = std::max(0.0F, 300 - y);
  for (const float at : {0.0F, 30.0F, 64.0F, 104.0F}) {
    const float line = std::abs(side - at * (1 + up * up * 2.2E-5F)) / (at == 0 ? 7.0F : 9.5F);
    dark = std::max(dark, Paso(1.3F, 0.5F, line) * Paso(314 - at * 0.22F, 278 - at * 0.22F, y));
  }
  // From the outer corner of the eye over the cheek.
  for (const float at : {392.0F, 428.0F, 462.0F}) {
    const float line = std::abs(y - at - (side - 130) * 0.22F - (side - 130) * (side - 130) * -0.0016F) / 9;
    dark = std::max(dark, Paso(1.3F, 0.4F, line) * Paso(at * 0.35F - 22, at * 0.35F + 14, side));
  }
  // Rings on neck and shoulders.
  const float ring = std::sin((y + side * 0.55F + wave * 1.3F) / 11.5F);
  return std::max(dark, Paso(0.1F, 0.8F, ring) * Paso(525, 575, y) * Paso(70, 120, side) * 0.85F);
}

Vector Manto(float x, float y) {
  const float side = std::abs(x);
  const Vector ginger{0.48F, 0.200F, 0.058F}, dark{0.075F, 0.024F, 0.008F}, cream{0.92F, 0.76F, 0.56F},
      white{0.93F, 0.89F, 0.84F};
  Vector c = Mezcla(ginger, dark, Rayas(x, y));
  const float shade = Ruido(x / 90 + 9, y / 90) * 0.25F;
  c = c * (1 + shade);
  c = Mezcla(c, cream, Paso(1.0F, 0.6F, Elipse(side, y, kOjoX + 2, kOjoY + 2, 70, 54)) * 0.9F);
  c = Mezcla(c, dark, Paso(1.15F, 0.9F, Elipse(side, y, kOjoX, kOjoY, 50, 37)) * 0.45F);
  const float muzzle = std::min(Elipse(side, y, 32, 466, 62, 46), Elipse(side, y, 0, 500, 62, 38));
  c = Mezcla(c, white, Paso(1.12F, 0.82F, muzzle + Ruido(x / 14, y / 14) * 0.12F));
  c = Mezcla(c, cream, Paso(1.0F, 0.2F, Elipse(side, y, 0, 385, 24, 95)) * 0.6F);
  const float bib = Elipse(side, y, 0, 660, 118, 150) + Ruido(x / 25, y / 25) * 0.25F;
  c = Mezcla(c, white, Paso(1.1F, 0.75F, bib));
  const float ear = DeTriangulo(-side, y);
  if (y < 300 && ear < 0) {
    const float inner = Paso(-14, -34, ear + Ruido(x / 10, y / 10) * 8) *
                        Paso(1.15F, 0.8F, Elipse(side, y, 142, 205, 52, 108));
    c = Mezcla(c, {0.40F, 0.17F, 0.13F}, inner);
    c = Mezcla(c, dark, Paso(120, 92, y) * 0.55F);
  }
  return c;
}

Vector Normal(Vector p) {
  constexpr float e = 0.8F;
  return Unidad({Distancia(p + Vector{e, 0, 0}) - Distancia(p - Vector{e, 0, 0}),
                 Distancia(p + Vector{0, e, 0}) - Distancia(p - Vector{0, e, 0}),
                 Distancia(p + Vector{0, 0, e}) - Distancia(p - Vector{0, 0, e})});
}

// How much of the lamp reaches the place, softly.
float Luz(Vector p, Vector lamp) {
  float light = 1;
  for (float t = 8; t < 220; t += 12) light = std::min(light, 0.5F + 6 * Distancia(p + lamp * t) / t);
  return Paso(0, 1, light);
}

}  // namespace

float Distancia(Vector p) {
  p.x = -std::abs(p.x - kCentro);
  float d = 1e9F;
  for (const Bola& b : kBolas) d = Unir(d, DeElipsoide(p - b.centro, b.radio), b.union_);
  d = Unir(d, DeOreja(p), 22);
  const float socket = DeElipsoide(p - Vector{-kOjoX + 2, kOjoY + 2, 162}, {54, 40, 46});
  return -Unir(-d, socket, 26);
}

Vector Fondo(float x, float y) {
  const float warm = Paso(1.3F, 0.0F, Elipse(x, y, 190, 120, 760, 640));
  Vector c = Mezcla({0.88F, 0.92F, 0.95F}, {0.99F, 0.985F, 0.965F}, warm);
  return c * (1 - 0.05F * Paso(430, 700, y));
}

Lugar Mirar(float x, float y) {
  float z = 230;
  for (int i = 0; i < 90; ++i) {
    const float d = Distancia({x, y, z});
    if (d < 0.3F) break;
    z -= d * 0.8F;
    if (z < -160) return {false, z, Fondo(x, y)};
  }
  const Vector p{x, y, z}, n = Normal(p), lamp = Unidad({-0.62F, -0.55F, 0.62F});
  float open = 0;
  for (const float t : {10.0F, 24.0F, 48.0F}) open += std::clamp(Distancia(p + n * t) / t, 0.0F, 1.0F) / 3;
  const float lit = std::max(0.0F, (Punto(n, lamp) + 0.22F) / 1.22F) * (0.25F + 0.75F * Luz(p + n * 3, lamp));
  const float sky = (0.5F - 0.5F * n.y) * open;
  const float edge = std::pow(1 - std::max(0.0F, n.z), 3.0F) * std::max(0.0F, n.x * 0.8F - n.y * 0.4F);
  const Vector light = Vector{1.5F, 1.36F, 1.16F} * lit + Vector{0.21F, 0.25F, 0.31F} * sky +
                       Vector{0.07F, 0.055F, 0.05F} * open + Vector{0.5F, 0.6F, 0.7F} * (edge * 0.6F);
  return {true, z, Manto(x - kCentro, y) * light};
}

Pelo PeloEn(float x, float y) {
  const float side = x - kCentro, out = side < 0 ? -1.0F : 1.0F, far = std::abs(side);
  Vector to = Unidad({side, y - 408, 0});
  float length = 9 + 16 * Paso(60, 190, std::hypot(side, y - 400));
  const float cheek = Paso(110, 170, far) * Paso(350, 420, y);
  to = Unidad(to + Vector{out * 0.5F, 0.75F, 0} * cheek);
  length += cheek * 12;
  const float body = Paso(520, 560, y);
  to = Unidad(Mezcla(to, {side * 0.0022F, 1, 0}, body));
  length += body * 16;
  if (y < 290 && far > 60 && DeTriangulo(-far, y) < 0) {
    to = Unidad({out * 0.35F, -1, 0});
    length = 15;
  }
  const float face = std::min(Elipse(far, y, 0, 455, 95, 70), Elipse(far, y, kOjoX, kOjoY, 70, 52));
  return {to, length * (0.45F + 0.55F * Paso(0.8F, 1.3F, face))};
}

}  // namespace pixmosa::muestra
