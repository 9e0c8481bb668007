#include "tools/muestra/Lienzo.h"

namespace pixmosa::muestra {
namespace {

int Grado(float light) {
  const float v = std::clamp(light, 0.0F, 1.0F);
  return static_cast<int>(
      std::lround(255 * (v <= 0.0031308F ? 12.92F * v : 1.055F * std::pow(v, 1 / 2.4F) - 0.055F)));
}

}  // namespace

void Lienzo::Mancha(float x, float y, float radius, Vector colour, float cover) {
  constexpr float scale = kFino * kAumento;
  const float cx = (x - kIzquierda) * scale, cy = (y - kArriba) * scale, r = std::max(radius * scale, 0.35F);
  for (int j = std::max(0, static_cast<int>(cy - r - 1));
       j <= std::min(height_ - 1, static_cast<int>(cy + r + 1)); ++j)
    for (int i = std::max(0, static_cast<int>(cx - r - 1));
         i <= std::min(width_ - 1, static_cast<int>(cx + r + 1)); ++i) {
      const float d = std::hypot(static_cast<float>(i) + 0.5F - cx, static_cast<float>(j) + 0.5F - cy);
      Vector& c = En(i, j);
      c = Mezcla(c, colour, cover * Paso(r + 0.5F, r - 0.5F, d));
    }
}

void Lienzo::Trazo(Vector a, Vector b, Vector c, float thick, Vector colour, float cover) {
  const int steps = std::max(2, static_cast<int>((Largo(b - a) + Largo(c - b)) * kFino * kAumento / 1.2F));
  for (int i = 0; i <= steps; ++i) {
    const float t = static_cast<float>(i) / static_cast<float>(steps);
    const Vector p = Mezcla(Mezcla(a, b, t), Mezcla(b, c, t), t);
    Mancha(p.x, p.y, thick * (1 - 0.8F * t), colour, cover * (1 - t * t * 0.7F));
  }
}

Picture Lienzo::Imagen() const {
  Picture picture(width_ / kFino, height_ / kFino);
  std::uint32_t* out = picture.Writable();
  for (int y = 0; y < picture.Height(); ++y)
    for (int x = 0; x < picture.Width(); ++x) {
      Vector sum;
      for (int j = 0; j < kFino; ++j)
        for (int i = 0; i < kFino; ++i)
          sum = sum + colours_[static_cast<std::size_t>((y * kFino + j) * width_ + x * kFino + i)];
      sum = sum * (1.0F / (kFino * kFino));
      *out++ = PixelOfColour(Rgb(Grado(sum.x), Grado(sum.y), Grado(sum.z)));
    }
  return picture;
}

}  // namespace pixmosa::muestra
