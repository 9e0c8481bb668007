#include "platform/decodificador/Contenido.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "platform/jpeg/Segmentos.h"
#include "platform/png/Png.h"

namespace pixmosa {
namespace {

// Whole numbers at a place; 0 where the bytes end before.
std::uint32_t Little(std::string_view b, std::size_t at, std::size_t n) {
  if (at > b.size() || b.size() - at < n) return 0;
  std::uint32_t v = 0;
  for (std::size_t i = n; i-- > 0;) v = v << 8 | static_cast<unsigned char>(b[at + i]);
  return v;
}

// A side of a picture: at most 2^31 - 1, without its sign.
int Side(std::uint32_t v) {
  const std::int64_t side = std::abs(std::int64_t{static_cast<std::int32_t>(v)});
  return static_cast<int>(std::min<std::int64_t>(side, INT32_MAX));
}

// The picture at `at` of an icon: a PNG file, or a bitmap whose height counts its mask too.
Extent InnerSize(std::string_view bytes, std::size_t at) {
  if (at >= bytes.size()) return {};
  if (EsPng(bytes.substr(at))) return TamanoDePng(bytes.substr(at));
  return {Side(Little(bytes, at + 4, 4)), Side(Little(bytes, at + 8, 4)) / 2};
}

bool BmpCutShort(std::string_view bytes) {
  if (bytes.size() < 54) return false;
  const std::uint32_t packing = Little(bytes, 30, 4);
  const bool uncompressed = Little(bytes, 14, 4) >= 40 && (packing == 0 || packing == 3);
  const std::int64_t width = static_cast<std::int32_t>(Little(bytes, 18, 4));
  const std::int64_t height = Side(Little(bytes, 22, 4));
  const std::int64_t row = (width * Little(bytes, 28, 2) + 31) / 32 * 4;
  // At most 10^6 rows of fewer than 10^10 bytes: far inside 64 bits.
  return uncompressed && width > 0 && width <= 1'000'000 && height <= 1'000'000 &&
         Little(bytes, 10, 4) + row * height > static_cast<std::int64_t>(bytes.size());
}

// The bytes of a colour table that the packed byte at `at` announces.
std::size_t ColourTable(std::string_view bytes, std::size_t at) {
  const std::uint32_t packed = Little(bytes, at, 1);
  return packed & 0x80 ? std::size_t{3} << ((packed & 7) + 1) : 0;
}

}  // namespace

bool EsMetafile(std::string_view bytes) {
  if (bytes.starts_with("\xD7\xCD\xC6\x9A")) return true;
  const std::uint32_t type = Little(bytes, 0, 2), version = Little(bytes, 4, 2);
  return (type == 1 || type == 2) && Little(bytes, 2, 2) == 9 && (version == 0x100 || version == 0x300);
}

std::optional<Extent> TamanoDeIcono(std::string_view bytes) {
  if (Little(bytes, 0, 2) != 0 || (Little(bytes, 2, 2) != 1 && Little(bytes, 2, 2) != 2)) return std::nullopt;
  Extent largest;
  const auto area = [](Extent e) { return std::int64_t{e.width} * e.height; };
  // Without room for a count the count reads as 0.
  const std::size_t entries = std::min<std::size_t>(Little(bytes, 4, 2), (bytes.size() - 6) / 16);
  for (std::size_t i = 0; i < entries; ++i) {
    const std::size_t entry = 6 + 16 * i;
    const auto listed = [&](std::size_t at) {
      return static_cast<int>((Little(bytes, at, 1) + 255) % 256 + 1);
    };
    for (const Extent e :
         {Extent{listed(entry), listed(entry + 1)}, InnerSize(bytes, Little(bytes, entry + 12, 4))})
      if (area(e) > area(largest)) largest = e;
  }
  return entries > 0 ? std::optional(largest) : std::nullopt;
}

Extent TamanoDeGif(std::string_view bytes) {
  if (!bytes.starts_with("GIF8")) return {};
  const Extent size = {static_cast<int>(Little(bytes, 6, 2)), static_cast<int>(Little(bytes, 8, 2))};
  return size.width > 0 && size.height > 0 ? size : Extent{};
}

bool Cortada(std::string_view bytes) {
  if (EsJpeg(bytes)) return !JpegLlegaAlFinal(bytes);
  if (EsPng(bytes)) return !PngLlegaAlFinal(bytes);
  return bytes.starts_with("BM") && BmpCutShort(bytes);
}

namespace {

// Passes over a chain of pieces, each after its length, up to an empty one; the position of that.
std::size_t TrasCadena(std::string_view bytes, std::size_t at) {
  while (at < bytes.size() && bytes[at] != 0) at += 1 + Little(bytes, at, 1);
  return at;
}

// Where the first picture's block begins, behind the screen, its colours and the extensions (0x21); the end
// of the bytes where they stop before; nothing where there is no picture, or damage, which is for the decoder
// to say.
std::optional<std::size_t> PrimerBloque(std::string_view bytes) {
  if (!bytes.starts_with("GIF8")) return std::nullopt;
  std::size_t at = 13 + ColourTable(bytes, 10);
  while (at < bytes.size() && bytes[at] == '\x21') at = TrasCadena(bytes, at + 2) + 1;
  if (at >= bytes.size()) return bytes.size();
  return bytes[at] == '\x2C' ? std::optional(at) : std::nullopt;
}

}  // namespace

bool GifCortado(std::string_view bytes) {
  const std::optional<std::size_t> at = PrimerBloque(bytes);
  return at && TrasCadena(bytes, *at + 11 + ColourTable(bytes, *at + 9)) >= bytes.size();
}

Recuadro PrimeroDeGif(std::string_view bytes) {
  const std::optional<std::size_t> at = PrimerBloque(bytes);
  if (!at || *at + 9 > bytes.size()) return {};
  const auto word = [&](std::size_t from) { return static_cast<int>(Little(bytes, *at + from, 2)); };
  return {word(1), word(3), word(5), word(7)};
}

}  // namespace pixmosa
