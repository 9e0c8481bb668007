#include "platform/png/Png.h"

#include <algorithm>
#include <csetjmp>
#include <cstdint>
#include <cstring>
#include <new>
#include <png.h>
#include <zlib.h>

namespace pixmosa {
namespace {

constexpr std::string_view kSignature = "\x89PNG\r\n\x1A\n";

std::uint32_t Number(std::string_view bytes, std::size_t at) {
  std::uint32_t v = 0;
  for (const char c : bytes.substr(at, 4)) v = v << 8 | static_cast<unsigned char>(c);
  return v;
}

void OnError(png_structp png, png_const_charp) {
  png_longjmp(png, 1);
}
void OnWarning(png_structp, png_const_charp) {}

// One decompression with everything it owns, so that a jump back leaves no object behind.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : rest_(bytes) {
    png_ = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, OnError, OnWarning);
    if (!png_) throw std::bad_alloc();
    info_ = png_create_info_struct(png_);
    if (info_) return;
    png_destroy_read_struct(&png_, nullptr, nullptr);
    throw std::bad_alloc();
  }
  ~Reader() { png_destroy_read_struct(&png_, &info_, nullptr); }
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;

  // Up to the first row; every kind becomes blue, green, red, and its cover or 255.
  bool ReadHeader() {
    if (setjmp(png_jmpbuf(png_))) return false;
    png_set_read_fn(png_, this, [](png_structp png, png_bytep to, std::size_t n) {
      static_cast<Reader*>(png_get_io_ptr(png))->Give(png, to, n);
    });
    png_set_user_limits(png_, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
    png_read_info(png_, info_);
    png_set_expand(png_);
    png_set_scale_16(png_);
    png_set_gray_to_rgb(png_);
    png_set_bgr(png_);
    covers_ = (png_get_color_type(png_, info_) & PNG_COLOR_MASK_ALPHA) != 0 ||
              png_get_valid(png_, info_, PNG_INFO_tRNS) != 0;
    png_set_add_alpha(png_, 0xFF, PNG_FILLER_AFTER);
    passes_ = png_set_interlace_handling(png_);
    png_read_update_info(png_, info_);
    return png_get_rowbytes(png_, info_) == std::size_t{4} * png_get_image_width(png_, info_);
  }

  Extent Size() const {
    return {static_cast<int>(png_get_image_width(png_, info_)),
            static_cast<int>(png_get_image_height(png_, info_))};
  }

  bool ReadRows(std::uint32_t* to) {
    if (setjmp(png_jmpbuf(png_))) return false;
    const std::size_t width = png_get_image_width(png_, info_), height = png_get_image_height(png_, info_);
    for (int pass = 0; pass < passes_; ++pass)
      for (std::size_t y = 0; y < height; ++y)
        png_read_row(png_, reinterpret_cast<png_bytep>(to + y * width), nullptr);
    png_read_end(png_, nullptr);
    return true;
  }

  bool Covers() const { return covers_; }

 private:
  void Give(png_structp png, png_bytep to, std::size_t n) {
    if (n > rest_.size()) png_error(png, "");
    std::memcpy(to, rest_.data(), n);
    rest_.remove_prefix(n);
  }

  std::string_view rest_;
  png_structp png_ = nullptr;
  png_infop info_ = nullptr;
  bool covers_ = false;
  int passes_ = 1;
};

// A pixel with its cover on white: each part times the cover, rounded, and what the cover leaves of white.
std::uint32_t OnWhite(std::uint32_t pixel) {
  const std::uint32_t cover = pixel >> 24;
  std::uint32_t out = 0xFF000000U;
  for (unsigned shift = 0; shift < 24; shift += 8) {
    const std::uint32_t t = (pixel >> shift & 0xFF) * cover;
    out |= (((t + (t >> 8) + 0x80) >> 8) + 255 - cover) << shift;
  }
  return out;
}

struct Writer {
  Writer() {
    png = png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, OnError, OnWarning);
    if (png) info = png_create_info_struct(png);
  }
  ~Writer() { png_destroy_write_struct(&png, &info); }
  Writer(const Writer&) = delete;
  Writer& operator=(const Writer&) = delete;

  static void Take(png_structp png, png_bytep data, std::size_t n) {
    try {
      static_cast<std::string*>(png_get_io_ptr(png))->append(reinterpret_cast<const char*>(data), n);
    } catch (const std::bad_alloc&) {
      png_error(png, "");
    }
  }

  bool Write(const Picture& picture, std::string& bytes, Empaquetado packing) {
    if (!info || setjmp(png_jmpbuf(png))) return false;
    png_set_write_fn(png, &bytes, Take, [](png_structp) {});
    png_set_user_limits(png, PNG_UINT_31_MAX, PNG_UINT_31_MAX);
    png_set_IHDR(png, info, static_cast<png_uint_32>(picture.Width()),
                 static_cast<png_uint_32>(picture.Height()), 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    if (packing == Empaquetado::Rapido) {
      png_set_compression_level(png, Z_BEST_SPEED);
      png_set_compression_strategy(png, Z_RLE);
      png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_FILTER_UP);
    } else {
      png_set_compression_level(png, packing == Empaquetado::Mediano ? Z_BEST_SPEED : Z_DEFAULT_COMPRESSION);
      png_set_filter(png, PNG_FILTER_TYPE_BASE, PNG_ALL_FILTERS);
    }
    png_write_info(png, info);
    png_set_bgr(png);
    png_set_filler(png, 0, PNG_FILLER_AFTER);
    for (int y = 0; y < picture.Height(); ++y)
      png_write_row(png, reinterpret_cast<png_const_bytep>(picture.Row(y).data()));
    png_write_end(png, nullptr);
    return true;
  }

  png_structp png = nullptr;
  png_infop info = nullptr;
};

}  // namespace

bool EsPng(std::string_view bytes) {
  return bytes.starts_with(kSignature);
}

Extent TamanoDePng(std::string_view bytes) {
  if (!EsPng(bytes) || bytes.size() < 24) return {};
  const auto side = [&](std::size_t at) {
    return static_cast<int>(std::min<std::uint32_t>(Number(bytes, at), PNG_UINT_31_MAX));
  };
  return {side(16), side(20)};
}

bool PngLlegaAlFinal(std::string_view bytes) {
  // Pieces of 4 bytes of length, 4 of name, the content, 4 of check.
  std::uint64_t at = kSignature.size();
  while (at + 12 <= bytes.size()) {
    if (bytes.substr(at + 4, 4) == "IEND") return true;
    at += std::uint64_t{12} + Number(bytes, at);
  }
  return false;
}

Picture LeerPng(std::string_view bytes) {
  Reader reader(bytes);
  if (!reader.ReadHeader()) return {};
  Picture picture(reader.Size().width, reader.Size().height);
  std::uint32_t* to = picture.Writable();
  if (!reader.ReadRows(to)) return {};
  if (reader.Covers()) std::transform(to, to + picture.PixelCount(), to, OnWhite);
  return picture;
}

std::string EscribirPng(const Picture& picture, Empaquetado packing) {
  std::string bytes;
  if (!Writer().Write(picture, bytes, packing)) throw std::bad_alloc();
  return bytes;
}

}  // namespace pixmosa
