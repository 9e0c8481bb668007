#include "effects/Giros.h"

#include <algorithm>
#include <array>
#include <utility>

#include "platform/Rounding.h"

namespace pixmosa {
namespace {

constexpr std::array<Giro, 8> kGiros = {{
    {"mnuHFlip", "Horizontalmente", "girar-horizontal", FlipHorizontal},
    {"mnuVFLip", "Verticalmente", "girar-vertical", FlipVertical},
    {"mnuGirar90", "90 grados a la derecha", "girar-90", TurnRight},
    {"mnuGirar270", "90 grados a la izquierda", "girar-270", TurnLeft},
    {"mnuEspejoDenI", "Reflejar parte derecha en la izquierda", "espejo-derecha-izquierda",
     MirrorRightToLeft},
    {"mnuEspejoIenD", "Reflejar parte izquierda en la derecha", "espejo-izquierda-derecha",
     MirrorLeftToRight},
    {"mnuEspejoBenA", "Reflejar parte inferior en la superior", "espejo-abajo-arriba", MirrorBottomToTop},
    {"mnuEspejoAenB", "Reflejar parte superior en la inferior", "espejo-arriba-abajo", MirrorTopToBottom},
}};

// Positions 1..last have a mirror place within 0..size-1; position 0 has not.
int Ultima(int size) {
  return RoundHalfEven(size / 2.0 - 1);
}

std::ptrdiff_t En(const Picture& p, std::ptrdiff_t x, std::ptrdiff_t y) {
  return y * p.Width() + x;
}

// copy(near, far) for each pair of rows or columns that mirror each other.
template <typename Copy>
void PorParejas(int size, Copy copy) {
  for (int i = 1; i <= Ultima(size); ++i) copy(i, size - i);
}

// The picture whose pixel at (x, y) is the one that `place(picture, x, y)` says, its sides changed. It goes
// over squares, so that what is read and what is written lies near in memory.
template <typename Place>
Picture Traspuesta(const Picture& from, Place place) {
  constexpr int kLado = 32;
  Picture turned(from.Height(), from.Width());
  std::uint32_t* to = turned.Writable();
  const std::uint32_t* pixels = from.Pixels();
  for (int top = 0; top < turned.Height(); top += kLado)
    for (int left = 0; left < turned.Width(); left += kLado)
      for (int y = top; y < std::min(top + kLado, turned.Height()); ++y)
        for (int x = left; x < std::min(left + kLado, turned.Width()); ++x)
          to[En(turned, x, y)] = pixels[place(from, x, y)];
  return turned;
}

void CopiarFila(Picture& p, int from, int to) {
  std::uint32_t* pixels = p.Writable();
  std::copy_n(pixels + En(p, 0, from), p.Width(), pixels + En(p, 0, to));
}

}  // namespace

void FlipHorizontal(Picture& picture) {
  Picture flipped(picture.Width(), picture.Height());
  std::uint32_t* to = flipped.Writable();
  for (int y = 0; y < picture.Height(); ++y, to += picture.Width()) {
    const auto row = picture.Row(y);
    std::reverse_copy(row.begin(), row.end(), to);
  }
  picture = std::move(flipped);
}

void FlipVertical(Picture& picture) {
  Picture flipped(picture.Width(), picture.Height());
  std::uint32_t* to = flipped.Writable();
  for (int y = picture.Height() - 1; y >= 0; --y, to += picture.Width())
    std::copy_n(picture.Row(y).begin(), picture.Width(), to);
  picture = std::move(flipped);
}

void TurnRight(Picture& picture) {
  picture = Traspuesta(picture,
                       [](const Picture& from, int x, int y) { return En(from, y, from.Height() - 1 - x); });
}

void TurnLeft(Picture& picture) {
  picture = Traspuesta(picture,
                       [](const Picture& from, int x, int y) { return En(from, from.Width() - 1 - y, x); });
}

void MirrorTopToBottom(Picture& picture) {
  PorParejas(picture.Height(), [&](int top, int bottom) { CopiarFila(picture, top, bottom); });
}

void MirrorBottomToTop(Picture& picture) {
  PorParejas(picture.Height(), [&](int top, int bottom) { CopiarFila(picture, bottom, top); });
}

void MirrorRightToLeft(Picture& picture) {
  std::uint32_t* pixels = picture.Writable();
  for (int y = 0; y < picture.Height(); ++y)
    PorParejas(picture.Width(),
               [&](int left, int right) { pixels[En(picture, left, y)] = pixels[En(picture, right, y)]; });
}

void MirrorLeftToRight(Picture& picture) {
  std::uint32_t* pixels = picture.Writable();
  for (int y = 0; y < picture.Height(); ++y)
    PorParejas(picture.Width(),
               [&](int left, int right) { pixels[En(picture, right, y)] = pixels[En(picture, left, y)]; });
}

std::span<const Giro> Giros() {
  return kGiros;
}

void Girar(ImagenDeTrabajo& image, const Giro& giro) {
  if (image.picMain.IsEmpty()) return;
  Picture turned = image.picMain;
  giro.hacer(turned);
  image.SaveUndo();
  image.picMain = std::move(turned);
}

}  // namespace pixmosa
