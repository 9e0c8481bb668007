#include "tools/muestra/Rasgos.h"

#include <algorithm>
#include <random>
#include <vector>

#include "tools/muestra/Gato.h"

namespace pixmosa::muestra {
namespace {

// The same on every system, unlike the distributions of the library.
class Azar {
 public:
  float Entre(float from, float to) {
    return from + (to - from) * static_cast<float>(bits_() >> 8) / 16777216.0F;
  }

 private:
  std::mt19937 bits_{7};
};

// The colour of an eye at (x, y) from its middle, the outer corner at positive x; cover 0 outside the lids.
struct Pincelada {
  Vector color;
  float cubre = 0;
};

Pincelada Ojo(float x, float y) {
  const float lx = x * 0.97F - y * 0.2F, ly = y * 0.97F + x * 0.2F;  // the outer corner higher
  const float upper = std::hypot(lx, ly - 19) - 51, lower = std::hypot(lx, ly + 23) - 52;
  const float lid = std::max(upper, lower), r = std::hypot(lx, ly * 1.04F);
  const float angle = std::atan2(ly, lx),
              fibre = 0.5F + 0.5F * std::sin(angle * 37 + std::sin(angle * 11) * 3);
  Vector c = Mezcla({0.86F, 0.82F, 0.22F}, {0.34F, 0.60F, 0.16F}, Paso(10, 34, r));
  c = c * (0.78F + 0.3F * fibre * Paso(8, 26, r));
  c = Mezcla(c, {0.02F, 0.05F, 0.02F}, Paso(31, 37, r));
  c = c * (0.55F + 0.55F * Paso(-26, 6, ly)) + Vector{0.10F, 0.12F, 0.03F} * Paso(4, 24, ly);
  c = Mezcla(c, {0.004F, 0.004F, 0.006F}, Paso(1.08F, 0.92F, Elipse(x, y, 0, 0, 16, 27)));
  c = Mezcla(c, {0.012F, 0.008F, 0.006F}, Paso(-5, -1, lid));
  return {c, Paso(7.5F, 4, lid)};
}

}  // namespace

void PintarPelo(Lienzo& canvas) {
  Azar chance;
  struct Raiz {
    float x, y, order;
  };
  std::vector<Raiz> roots;
  for (int i = 0; i < 150000; ++i) {
    const float x = chance.Entre(0, kAncho), y = chance.Entre(40, kAlto + 30), jitter = chance.Entre(0, 40);
    const float body = y > 530 ? y - kAlto - 1000 : 0.0F;
    roots.push_back({x, y, body - std::hypot(x - kCentro, y - 415) + jitter});
  }
  // Each hair over the tips of those before it: the body, then from the rim of the head to the nose.
  std::sort(roots.begin(), roots.end(), [](const Raiz& a, const Raiz& b) { return a.order < b.order; });
  for (const Raiz& root : roots) {
    const float turn = chance.Entre(-0.3F, 0.3F), grow = chance.Entre(0.6F, 1.25F),
                tone = chance.Entre(0.66F, 1.36F), bend = chance.Entre(-0.25F, 0.25F),
                thick = chance.Entre(0.45F, 1.0F);
    const Lugar place = Mirar(root.x, root.y);
    if (!place.gato) continue;
    const Pelo hair = PeloEn(root.x, root.y);
    const Vector to = Unidad(hair.hacia + Vector{-hair.hacia.y, hair.hacia.x, 0} * turn),
                 a{root.x, root.y, 0};
    const float length = hair.largo * grow;
    const Vector side = Vector{-to.y, to.x, 0} * (length * bend);
    canvas.Trazo(a, a + to * (length * 0.5F) + side, a + to * length, thick, place.color * tone, 0.5F);
  }
}

void PintarCara(Lienzo& canvas) {
  for (int j = 0; j < canvas.Alto(); ++j)
    for (int i = 0; i < canvas.Ancho(); ++i) {
      const float x = Lienzo::X(i) - kCentro, y = Lienzo::Y(j);
      if (std::abs(x) > 170 || y < 300 || y > 530) continue;
      Vector& c = canvas.En(i, j);
      const Pincelada eye = Ojo(std::abs(x) - kOjoX, y - kOjoY);
      c = Mezcla(c, eye.color, eye.cubre);
      // The dark line from the inner corner along the nose.
      const float tear = std::hypot((std::abs(x) - 38 + (y - 372) * 0.35F) / 4.5F, (y - 380) / 20);
      c = Mezcla(c, {0.03F, 0.015F, 0.01F}, Paso(1.2F, 0.3F, tear) * 0.8F);
      const float dy = y - kNarizY, wide = 27 - std::max(0.0F, dy + 4) * 0.98F;
      const float nose = std::max(std::abs(x) - wide - 4 * std::max(0.0F, 1 - std::abs(dy + 8) / 8),
                                  -14 - dy - std::abs(x) * 0.12F);
      Vector pink = Mezcla({0.66F, 0.31F, 0.25F}, {0.34F, 0.12F, 0.10F}, Paso(-8, 20, dy + x * 0.25F));
      pink = pink + Vector{0.35F, 0.33F, 0.3F} * Paso(1, 0, Elipse(x, dy, -7, -7, 11, 5));
      pink = Mezcla(pink, {0.03F, 0.01F, 0.01F},
                    Paso(1.2F, 0.7F, Elipse(std::abs(x), dy, 13, 4.5F, 7.5F, 4.2F)));
      c = Mezcla(c, pink, Paso(2, -2, nose));
      c = Mezcla(c, {0.05F, 0.02F, 0.02F}, Paso(4, 0, std::abs(nose - 1)) * 0.45F);
      const Vector light{1.0F, 0.99F, 0.96F};
      for (const float eyeX : {-kOjoX, kOjoX}) {
        c = Mezcla(c, light, Paso(1.1F, 0.8F, Elipse(x, y, eyeX - 11, kOjoY - 13, 7.5F, 6.5F)));
        c = Mezcla(c, light, Paso(1.2F, 0.5F, Elipse(x, y, eyeX + 13, kOjoY + 13, 4, 3)) * 0.5F);
      }
    }
  const Vector line{0.045F, 0.018F, 0.014F};
  for (int pass = 0; pass < 3; ++pass) {
    canvas.Trazo({kCentro, kNarizY + 22, 0}, {kCentro, kNarizY + 30, 0}, {kCentro, kNarizY + 46, 0}, 2.0F,
                 line, 0.3F);
    for (const float out : {-1.0F, 1.0F})
      canvas.Trazo({kCentro, kNarizY + 43, 0}, {kCentro + out * 24, kNarizY + 66, 0},
                   {kCentro + out * 58, kNarizY + 44, 0}, 2.6F, line, 0.28F);
  }
}

void PintarBigotes(Lienzo& canvas) {
  Azar chance;
  for (const float out : {-1.0F, 1.0F})
    for (int i = 0; i < 7; ++i) {
      const float row = static_cast<float>(i % 4), x = kCentro + out * (36 + 9 * static_cast<float>(i % 3)),
                  y = 448 + row * 9;
      canvas.Mancha(x, y, 2.1F, {0.10F, 0.05F, 0.035F}, 0.75F);
      const float reach = chance.Entre(190, 265),
                  drop = -58 + static_cast<float>(i) * 24 + chance.Entre(-8, 8);
      const Vector a{x, y, 0}, b{x + out * reach * 0.5F, y + drop * 0.25F - 26, 0},
          c{x + out * reach, y + drop + 10, 0};
      canvas.Trazo(a + Vector{0, 2.5F, 0}, b + Vector{0, 2.5F, 0}, c + Vector{0, 2.5F, 0}, 1.0F,
                   {0.08F, 0.05F, 0.04F}, 0.22F);
      canvas.Trazo(a, b, c, 1.15F, {0.98F, 0.96F, 0.92F}, 0.6F);
    }
}

}  // namespace pixmosa::muestra
