// A table of how near each method's text comes to pictures that are drawn here, at 80 columns, on white and
// on black.
#include <cmath>
#include <cstdio>
#include <functional>

#include "platform/Pixel.h"
#include "platform/Random.h"
#include "platform/qt/QtTextSurface.h"
#include "programa/Ajustes.h"
#include "programa/Comparacion.h"
#include "programa/Generar.h"
#include "tests/support/FakePictureCodec.h"
#include "tests/support/GuiApplication.h"

using namespace pixmosa;

namespace {

constexpr int kAncho = 960, kAlto = 720;

// Lightness 0..1 at (x, y), both 0..1.
struct Cuadro {
  const char* nombre;
  std::function<double(double x, double y)> luz;
};

// 1 inside a disc, 0 outside, with a soft rim.
double Disco(double x, double y, double cx, double cy, double r, double rim = 0.01) {
  return std::clamp((r - std::hypot(x - cx, (y - cy) * 0.75)) / rim + 0.5, 0.0, 1.0);
}

double Retrato(double x, double y) {
  double v = 0.25 + 0.2 * y;
  const double face = Disco(x, y, 0.5, 0.45, 0.24, 0.03);
  v += face * (0.75 - 0.5 * std::hypot(x - 0.42, y - 0.35) - v);
  for (const double eye : {0.41, 0.59}) {
    v -= 0.35 * (Disco(x, y, eye, 0.40, 0.062) - Disco(x, y, eye, 0.40, 0.05));  // glasses
    v -= 0.5 * Disco(x, y, eye, 0.40, 0.018);
  }
  v -= 0.3 * Disco(x, y, 0.5, 0.62, 0.06) * (y > 0.62);
  return v - 0.3 * face * (y < 0.22);
}

double Logo(double x, double y) {
  const double ring = Disco(x, y, 0.5, 0.5, 0.33) - Disco(x, y, 0.5, 0.5, 0.27);
  const bool bar = std::fabs(x - 0.5) < 0.05 && std::fabs(y - 0.5) < 0.3;
  return bar || ring > 0.5 ? 0.05 : 0.95;
}

double Noche(double x, double y) {
  double v = 0.04 + 0.05 * (1 - y);
  for (int i = 0; i < 7; ++i) {
    const double d = std::hypot(x - 0.1 - i * 0.13, (y - 0.35 - 0.05 * (i % 3)) * 0.75);
    v += 0.7 * std::exp(-d * d * 900) + 0.15 * std::exp(-d * 14);
  }
  return v;
}

double Colinas(double x, double y) {
  double v = 0.9 - 0.25 * y;
  for (int i = 0; i < 4; ++i)
    if (y > 0.35 + 0.15 * i + 0.06 * std::sin(x * (7 + 3 * i) + i))
      v = 0.65 - 0.15 * i + 0.05 * std::sin(90 * x);
  return v;
}

double Tejido(double x, double y) {
  return 0.5 + 0.3 * std::sin(x * 60) * std::sin(y * 45) + 0.2 * std::sin(x * 5);
}

Picture Dibujar(const Cuadro& drawn) {
  Picture p(kAncho, kAlto);
  Random random(5);
  std::uint32_t* to = p.Writable();
  for (int y = 0; y < kAlto; ++y)
    for (int x = 0; x < kAncho; ++x) {
      const double grain = (random.Bits() % 9 - 4.0) / 255;
      const double v = drawn.luz(static_cast<double>(x) / kAncho, static_cast<double>(y) / kAlto) + grain;
      *to++ = Opaco(UnirGris(ClampByte(RoundHalfEven(255 * v))));
    }
  return p;
}

}  // namespace

int main() {
  const Cuadro pictures[] = {
      {"retrato", Retrato}, {"logo", Logo}, {"noche", Noche}, {"colinas", Colinas}, {"tejido", Tejido}};
  const std::pair<const char*, int> methods[] = {
      {"grises", kGrayscale}, {"tono", kTono}, {"formas", kFormas}};
  test::NeedGuiApplication();
  QtTextSurface surface;
  test::FakePictureCodec codec;
  std::printf("imagen\tpapel\tmetodo\tpuntos\ttono\tlejos\tcerca\tfino\n");
  for (const Cuadro& drawn : pictures)
    for (const bool negative : {false, true}) {
      Programa p{surface, codec, {}};
      p.ajustes.palette = 1;
      p.basAscii.CountedColour = negative ? kBlack : kWhite;
      Medir(p);
      p.basAscii.AsciiColumns = 80;
      p.imagen.Asignar(Dibujar(drawn));
      for (const auto& [name, method] : methods) {
        Generar(p, method);
        const Semejanza s = Puntuar(p, TextoEnUtf8(p.basAscii));
        std::printf("%s\t%s\t%s\t%.1f\t%.1f\t%.1f\t%.1f\t%.1f\n", drawn.nombre, negative ? "negro" : "blanco",
                    name, s.Puntos(), 100 * s.tono, 100 * s.lejos, 100 * s.cerca, 100 * s.fino);
      }
    }
}
