#include "conversion/Claridad.h"

#include <cmath>

namespace pixmosa {
namespace {

constexpr double kRecta = 9.033, kHasta = 0.00886;

}  // namespace

double Claridad(double light) {
  return light < kHasta ? kRecta * light : 1.16 * std::cbrt(light) - 0.16;
}

double LuzDeClaridad(double lightness) {
  if (lightness < kRecta * kHasta) return lightness / kRecta;
  const double root = (lightness + 0.16) / 1.16;
  return root * root * root;
}

}  // namespace pixmosa
