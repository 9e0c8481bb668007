#include "editor/Espejo.h"

#include <string_view>
#include <utility>

#include "editor/PartesDeMarco.h"

namespace pixmosa {
namespace {

// Pairs, one after another.
constexpr std::u32string_view kHorizontal =
    U"/\\()<>[]{}bdpqJL«»‹›“”‘’`´←→⇐⇒↖↗↙↘◀▶◁▷◄►◢◣◤◥▌▐▖▗▘▝▙▟▛▜▚▞╱╲⌈⌉⌊⌋☚☛";
constexpr std::u32string_view kVertical = U"/\\^vbpdqMWnuAV'.`,_¯!¡?¿↑↓⇑⇓↖↙↗↘▲▼△▽◢◥◣◤▀▄▘▖▝▗▛▙▜▟▚▞▔▁╱╲⌈⌊⌉⌋";

constexpr char32_t kBraille = 0x2800, kUltimoBraille = 0x28FF;

// The dots of a braille pattern by their bits, as pairs that change places.
constexpr int kPuntosH[][2] = {{0, 3}, {1, 4}, {2, 5}, {6, 7}};
constexpr int kPuntosV[][2] = {{0, 6}, {1, 2}, {3, 7}, {4, 5}};

char32_t Braille(char32_t c, Eje axis) {
  const char32_t dots = c - kBraille;
  char32_t turned = 0;
  for (const auto& [a, b] : axis == Eje::Horizontal ? kPuntosH : kPuntosV)
    turned |= (dots >> a & 1) << b | (dots >> b & 1) << a;
  return kBraille + turned;
}

}  // namespace

char32_t Reflejado(char32_t c, Eje axis) {
  if (c >= kBraille && c <= kUltimoBraille) return Braille(c, axis);
  Brazos arms = BrazosDe(c);
  if (arms != Brazos{}) {
    if (axis == Eje::Horizontal) {
      std::swap(arms[kIzquierda], arms[kDerecha]);
    } else {
      std::swap(arms[kArriba], arms[kAbajo]);
    }
    if (arms == BrazosDe(c)) return c;
    // Round corners stay round.
    constexpr std::u32string_view kArcosH = U"╭╮╰╯", kArcosV = U"╭╰╮╯";
    const std::u32string_view arcs = axis == Eje::Horizontal ? kArcosH : kArcosV;
    if (const auto i = arcs.find(c); i != std::u32string_view::npos) return arcs[i ^ 1];
    return CaracterDe(arms);
  }
  const std::u32string_view pairs = axis == Eje::Horizontal ? kHorizontal : kVertical;
  const auto i = pairs.find(c);
  return i == std::u32string_view::npos ? c : pairs[i ^ 1];
}

}  // namespace pixmosa
