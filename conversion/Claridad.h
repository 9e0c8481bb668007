// Perceived lightness of an amount of light, after CIE 1976 (L*), on a scale of 0..1.
#pragma once

namespace pixmosa {

// L(y) = 1.16 y^(1/3) - 0.16, below 0.00886 the straight line 9.033 y; y is linear light, 0..1.
double Claridad(double light);

// The inverse: 0..1 to 0..1.
double LuzDeClaridad(double lightness);

}  // namespace pixmosa
