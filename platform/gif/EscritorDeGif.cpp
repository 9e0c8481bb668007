#include "platform/gif/EscritorDeGif.h"

#include <algorithm>
#include <array>
#include <bit>
#include <gif_lib.h>
#include <libimagequant.h>
#include <new>
#include <string>
#include <vector>

#include "platform/Pixel.h"

namespace pixmosa {
namespace {

constexpr int kPrisa = 7;  // of libimagequant, 1 (slow) to 10

template <auto kSoltar>
struct Cierre {
  void operator()(auto* p) const { kSoltar(p); }
};

using Mapa = std::unique_ptr<ColorMapObject, Cierre<GifFreeMapObject>>;

// A table of colours has a power of two of them, 2 at least.
Mapa MapaDe(std::span<const GifColorType> colours) {
  const unsigned count = std::bit_ceil(std::max(2U, static_cast<unsigned>(colours.size())));
  std::vector<GifColorType> table(colours.begin(), colours.end());
  table.resize(count);
  Mapa map(GifMakeMapObject(static_cast<int>(count), table.data()));
  if (!map) throw std::bad_alloc();
  return map;
}

GifColorType ColorDeGif(Colour colour) {
  const ColourParts p = SplitColour(colour);
  return {static_cast<GifByteType>(p.red), static_cast<GifByteType>(p.green),
          static_cast<GifByteType>(p.blue)};
}

// What libimagequant makes of a picture.
struct Reducida {
  std::vector<std::uint8_t> numeros;
  std::vector<GifColorType> colores;
};

// Red, green, blue, opaque: the order in which libimagequant wants its bytes.
std::vector<std::uint32_t> EnOrden(const Picture& picture) {
  std::vector<std::uint32_t> pixels(picture.PixelCount());
  std::transform(picture.Pixels(), picture.Pixels() + pixels.size(), pixels.begin(),
                 [](std::uint32_t p) { return 0xFF000000U | static_cast<std::uint32_t>(ColourOfPixel(p)); });
  return pixels;
}

Reducida Reducir(const Picture& picture) {
  const std::unique_ptr<liq_attr, Cierre<liq_attr_destroy>> how(liq_attr_create());
  if (!how) throw std::bad_alloc();
  liq_set_speed(how.get(), kPrisa);
  const std::vector<std::uint32_t> pixels = EnOrden(picture);
  const std::unique_ptr<liq_image, Cierre<liq_image_destroy>> image(
      liq_image_create_rgba(how.get(), pixels.data(), picture.Width(), picture.Height(), 0));
  liq_result* made = nullptr;
  if (!image || liq_image_quantize(image.get(), how.get(), &made) != LIQ_OK) throw std::bad_alloc();
  const std::unique_ptr<liq_result, Cierre<liq_result_destroy>> result(made);
  liq_set_dithering_level(made, 0);  // letters keep their edges
  Reducida r;
  r.numeros.resize(pixels.size());
  if (liq_write_remapped_image(made, image.get(), r.numeros.data(), r.numeros.size()) != LIQ_OK)
    throw std::bad_alloc();
  const liq_palette* palette = liq_get_palette(made);
  for (unsigned i = 0; i < palette->count; ++i)
    r.colores.push_back({palette->entries[i].r, palette->entries[i].g, palette->entries[i].b});
  return r;
}

class Escritor final : public CodificadorDeAnimacion {
 public:
  Escritor(Extent screen, std::span<const Colour> colours, Salida out) : salida_(std::move(out)) {
    gif_.reset(EGifOpen(&bytes_, Recoger, nullptr));
    if (!gif_) throw std::bad_alloc();
    std::vector<GifColorType> own;
    std::ranges::transform(colours, std::back_inserter(own), ColorDeGif);
    EGifSetGifVersion(gif_.get(), true);
    Exigir(EGifPutScreenDesc(gif_.get(), screen.width, screen.height, 8, 0, MapaDe(own).get()));
    PonerBucle();
    Entregar();
  }

  void Poner(int left, int top, Extent part, std::span<const std::uint8_t> numbers, int hundredths) override {
    PonerFotograma(left, top, part, numbers, nullptr, hundredths);
  }

  void Poner(int left, int top, const Picture& picture, int hundredths) override {
    const Reducida r = Reducir(picture);
    PonerFotograma(left, top, picture.Size(), r.numeros, MapaDe(r.colores).get(), hundredths);
  }

  void Acabar() override {
    Exigir(EGifCloseFile(gif_.release(), nullptr));
    Entregar();
  }

 private:
  struct Cerrar {
    void operator()(GifFileType* gif) const { EGifCloseFile(gif, nullptr); }
  };

  // No exception may pass through the library: the bytes wait here.
  static int Recoger(GifFileType* gif, const GifByteType* bytes, int n) {
    try {
      static_cast<std::string*>(gif->UserData)
          ->append(reinterpret_cast<const char*>(bytes), static_cast<std::size_t>(n));
    } catch (const std::bad_alloc&) {
      return 0;
    }
    return n;
  }

  // The library fails for want of memory alone: nothing else is asked of it.
  static void Exigir(int result) {
    if (result == GIF_ERROR) throw std::bad_alloc();
  }

  void Entregar() {
    salida_(bytes_);
    bytes_.clear();
  }

  // Again and again: the block that browsers know by this name.
  void PonerBucle() {
    constexpr std::array<GifByteType, 3> kSinFin = {1, 0, 0};
    Exigir(EGifPutExtensionLeader(gif_.get(), APPLICATION_EXT_FUNC_CODE));
    Exigir(EGifPutExtensionBlock(gif_.get(), 11, "NETSCAPE2.0"));
    Exigir(EGifPutExtensionBlock(gif_.get(), static_cast<int>(kSinFin.size()), kSinFin.data()));
    Exigir(EGifPutExtensionTrailer(gif_.get()));
  }

  void PonerFotograma(int left, int top, Extent part, std::span<const std::uint8_t> numbers,
                      const ColorMapObject* own, int hundredths) {
    const GraphicsControlBlock control = {DISPOSE_DO_NOT, false, hundredths, NO_TRANSPARENT_COLOR};
    std::array<GifByteType, 4> block{};
    EGifGCBToExtension(&control, block.data());
    Exigir(
        EGifPutExtension(gif_.get(), GRAPHICS_EXT_FUNC_CODE, static_cast<int>(block.size()), block.data()));
    Exigir(EGifPutImageDesc(gif_.get(), left, top, part.width, part.height, false, own));
    linea_.resize(static_cast<std::size_t>(part.width));
    for (std::size_t y = 0; y < static_cast<std::size_t>(part.height); ++y) {
      std::ranges::copy(numbers.subspan(y * linea_.size(), linea_.size()), linea_.begin());
      Exigir(EGifPutLine(gif_.get(), linea_.data(), part.width));  // masks the numbers in place
    }
    Entregar();
  }

  std::string bytes_;
  Salida salida_;
  std::unique_ptr<GifFileType, Cerrar> gif_;
  std::vector<GifByteType> linea_;
};

}  // namespace

std::unique_ptr<CodificadorDeAnimacion> EscribirGif(Extent screen, std::span<const Colour> colours,
                                                    Salida out) {
  return std::make_unique<Escritor>(screen, colours, std::move(out));
}

}  // namespace pixmosa
