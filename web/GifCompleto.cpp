#include <cstdint>

#include "web/basGIF.h"

namespace pixmosa {
namespace {

constexpr std::uint8_t kExtension = 0x21, kImage = 0x2C, kTrailer = 0x3B, kNothing = 0;
constexpr std::uint8_t kHasTable = 0x80, kTableSize = 0x07;
constexpr std::size_t kSignature = 6;

// Goes through a GIF by its lengths. Where the bytes end, Falta() is set and every byte is 0.
class Recorrido {
 public:
  explicit Recorrido(OrigenGif& gif) : gif_(gif) {}

  bool Falta() const { return falta_; }

  std::uint8_t Byte() {
    const std::string_view piece = gif_.Leer(at_);
    falta_ = falta_ || piece.empty();
    if (falta_) return 0;
    ++at_;
    return static_cast<std::uint8_t>(piece[0]);
  }

  bool Firma() {
    std::string signature;
    while (signature.size() < kSignature) signature += static_cast<char>(Byte());
    return signature == "GIF87a" || signature == "GIF89a";
  }

  // Bytes, the flags that say whether a colour table follows, more bytes, and that table.
  void Tabla(std::size_t before, std::size_t behind) {
    at_ += before;
    const std::uint8_t flags = Byte();
    at_ += behind;
    if (flags & kHasTable) at_ += std::size_t{3} << ((flags & kTableSize) + 1);
  }

  // Pieces of data, each with its length in front, up to an empty one.
  void Datos() {
    while (const std::uint8_t length = Byte()) at_ += length;
  }

  void Saltar(std::size_t bytes) { at_ += bytes; }

 private:
  OrigenGif& gif_;
  std::size_t at_ = 0;
  bool falta_ = false;
};

}  // namespace

bool GifCompleto(OrigenGif& gif) {
  Recorrido r(gif);
  if (!r.Firma()) return false;
  r.Tabla(4, 2);  // size, flags, background and aspect
  for (;;) {
    const std::uint8_t block = r.Byte();
    if (r.Falta()) return false;
    switch (block) {
      case kTrailer:
        return true;
      case kNothing:  // some writers leave one between two blocks
        break;
      case kExtension:
        r.Saltar(1);  // its label
        r.Datos();
        break;
      case kImage:
        r.Tabla(8, 0);  // place, size and flags
        r.Saltar(1);    // the codes' first length
        r.Datos();
        break;
      default:
        return false;
    }
  }
}

}  // namespace pixmosa
