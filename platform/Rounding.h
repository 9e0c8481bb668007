// The two ways in which the program turns fractions into whole numbers. Nothing else converts a floating
// value.
#pragma once

#include <cmath>
#include <cstdint>

namespace pixmosa {

// Nearest whole number, ties to even (the default rounding mode). |v| below 2^31.
inline std::int32_t RoundHalfEven(double v) {
  return static_cast<std::int32_t>(std::lrint(v));
}

// v without its fraction, toward zero.
inline std::int32_t Truncate(double v) {
  return static_cast<std::int32_t>(v);
}

// Whether holds(v) for every v = from..to: proof, when compiled, of a short cut that must agree with its
// formula.
template <typename Predicado>
constexpr bool ParaTodos(int from, int to, Predicado holds) {
  for (int v = from; v <= to; ++v)
    if (!holds(v)) return false;
  return true;
}

}  // namespace pixmosa
