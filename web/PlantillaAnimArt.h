// The fixed lines of the animation page: its script and its controls.
#pragma once

#include <array>
#include <string_view>

namespace pixmosa {

inline constexpr std::size_t kLineasDePlantilla = 77;

// In order, without line ends; some lines end in a blank.
extern const std::array<std::string_view, kLineasDePlantilla> kPlantillaAnimArt;

}  // namespace pixmosa
