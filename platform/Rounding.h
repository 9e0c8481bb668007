// The four ways in which the program turns fractions into whole numbers. Nothing else converts a floating
// value.
#pragma once

#include <cmath>
#include <cstdint>

namespace pixmosa {

// Nearest whole number, ties to even (the default rounding mode). |v| below 2^31.
inline std::int32_t RoundHalfEven(double v) {
  return static_cast<std::int32_t>(std::lrint(v));
}

// Largest whole number not above v ("Int").
inline std::int32_t Floor(double v) {
  return static_cast<std::int32_t>(std::floor(v));
}

// v without its fraction, toward zero.
inline std::int32_t Truncate(double v) {
  return static_cast<std::int32_t>(v);
}

// Limits v to the range of a byte.
constexpr std::int32_t ClampByte(std::int32_t v) {
  return v < 0 ? 0 : v > 255 ? 255 : v;
}

}  // namespace pixmosa
