#include "platform/jpeg/JpegRows.h"

#include <csetjmp>
#include <cstdio>
#include <jpeglib.h>
#include <vector>

#include "platform/Pixel.h"
#include "platform/Stretch.h"
#include "platform/jpeg/Segmentos.h"

namespace pixmosa {
namespace {

struct ErrorManager {
  jpeg_error_mgr base;
  std::jmp_buf back;
};

[[noreturn]] void OnError(j_common_ptr info) {
  std::longjmp(reinterpret_cast<ErrorManager*>(info->err)->back, 1);
}

void OnMessage(j_common_ptr) {}

// One decompression with everything it owns, so that a jump back leaves no object behind.
class Reader {
 public:
  explicit Reader(std::string_view bytes) : bytes_(bytes) {
    info_.err = jpeg_std_error(&errors_.base);
    errors_.base.error_exit = OnError;
    errors_.base.output_message = OnMessage;
  }
  ~Reader() { jpeg_destroy_decompress(&info_); }
  Reader(const Reader&) = delete;
  Reader& operator=(const Reader&) = delete;

  bool ReadHeader() {
    if (setjmp(errors_.back)) return false;
    jpeg_create_decompress(&info_);
    jpeg_mem_src(&info_, reinterpret_cast<const unsigned char*>(bytes_.data()),
                 static_cast<unsigned long>(bytes_.size()));
    if (jpeg_read_header(&info_, TRUE) != JPEG_HEADER_OK) return false;
    return info_.jpeg_color_space == JCS_GRAYSCALE || info_.jpeg_color_space == JCS_YCbCr;
  }

  Extent Size() const { return {static_cast<int>(info_.image_width), static_cast<int>(info_.image_height)}; }

  // The whole picture, one pixel for each `reduction` x `reduction`, the last ones for what is left.
  std::optional<Picture> ReadWhole(unsigned reduction) {
    if (setjmp(errors_.back)) return std::nullopt;
    info_.scale_num = 1;
    info_.scale_denom = reduction;
    info_.out_color_space = JCS_EXT_BGRA;
    jpeg_start_decompress(&info_);
    picture_ = Picture(static_cast<int>(info_.output_width), static_cast<int>(info_.output_height));
    std::uint32_t* to = picture_.Writable();
    while (info_.output_scanline < info_.output_height) {
      auto* line = reinterpret_cast<JSAMPROW>(to + std::size_t{info_.output_scanline} * info_.output_width);
      if (jpeg_read_scanlines(&info_, &line, 1) != 1) return std::nullopt;
    }
    return errors_.base.num_warnings == 0 ? std::optional(picture_) : std::nullopt;
  }

  // Decodes the rows `ys` (ascending, repeats allowed) and takes the columns `xs` of each.
  bool ReadRows(const std::vector<int>& ys, const std::vector<int>& xs, std::uint32_t* to) {
    row_.resize(info_.image_width);
    if (setjmp(errors_.back)) return false;
    return DecodeRows(ys, xs, to) && errors_.base.num_warnings == 0;
  }

 private:
  bool DecodeRows(const std::vector<int>& ys, const std::vector<int>& xs, std::uint32_t* to) {
    info_.out_color_space = JCS_EXT_BGRX;
    jpeg_start_decompress(&info_);
    auto* line = reinterpret_cast<JSAMPROW>(row_.data());
    int have = -1;
    for (const int y : ys) {
      if (y != have) {
        const auto next = static_cast<JDIMENSION>(y);
        if (next > info_.output_scanline) jpeg_skip_scanlines(&info_, next - info_.output_scanline);
        if (jpeg_read_scanlines(&info_, &line, 1) != 1) return false;
        have = y;
      }
      for (const int x : xs) *to++ = Opaco(row_[x]);
    }
    return true;
  }

  std::string_view bytes_;
  ErrorManager errors_{};
  jpeg_decompress_struct info_{};
  std::vector<std::uint32_t> row_;
  Picture picture_;
};

// Whole, upright, and not made to keep a decoder busy.
bool Conviene(std::string_view bytes) {
  return EsJpeg(bytes) && !JpegQuizaGirado(bytes) && JpegLlegaAlFinal(bytes) &&
         JpegPasadas(bytes) <= kMasPasadas;
}

}  // namespace

std::optional<Picture> ReadJpegReduced(std::string_view bytes, const std::function<Extent(Extent)>& size) {
  if (!Conviene(bytes)) return std::nullopt;
  Reader reader(bytes);
  if (!reader.ReadHeader()) return std::nullopt;
  const Extent source = reader.Size(), wanted = size(source);
  if (wanted.width < 1 || wanted.height < 1) return std::nullopt;
  int reduction = 8;
  while (reduction > 1 &&
         (source.width / reduction < wanted.width || source.height / reduction < wanted.height))
    reduction /= 2;
  return reader.ReadWhole(static_cast<unsigned>(reduction));
}

std::optional<Picture> ReadJpegStretched(std::string_view bytes, const std::function<Extent(Extent)>& size) {
  if (!Conviene(bytes)) return std::nullopt;
  Reader reader(bytes);
  if (!reader.ReadHeader()) return std::nullopt;
  const Extent source = reader.Size(), wanted = size(source);
  if (wanted.width < 1 || wanted.height < 1) return std::nullopt;
  Picture picture(wanted.width, wanted.height);
  const bool done = reader.ReadRows(StretchPositions(source.height, wanted.height),
                                    StretchPositions(source.width, wanted.width), picture.Writable());
  return done ? std::optional(picture) : std::nullopt;
}

}  // namespace pixmosa
