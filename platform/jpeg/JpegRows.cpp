#include "platform/jpeg/JpegRows.h"

#include <csetjmp>
#include <cstdio>
#include <jpeglib.h>
#include <vector>

#include "platform/Pixel.h"
#include "platform/Stretch.h"

namespace pixmosa {
namespace {

constexpr unsigned char kStartOfScan = 0xDA, kExif = 0xE1;

unsigned At(std::string_view b, std::size_t i) {
  return static_cast<unsigned char>(b[i]);
}

// Walks the segments before the first scan; stops at it or where `visit(marker, content)` returns false.
// The position of the first scan's data, or npos.
template <typename Visit>
std::size_t WalkSegments(std::string_view bytes, Visit visit) {
  std::size_t at = 2;
  while (at + 4 <= bytes.size()) {
    if (At(bytes, at) != 0xFF) return std::string_view::npos;
    const unsigned marker = At(bytes, at + 1);
    if (marker == 0xFF) {
      ++at;
      continue;
    }
    const std::size_t length = At(bytes, at + 2) << 8 | At(bytes, at + 3);
    if (length < 2 || at + 2 + length > bytes.size()) return std::string_view::npos;
    if (!visit(marker, bytes.substr(at + 4, length - 2))) return std::string_view::npos;
    at += 2 + length;
    if (marker == kStartOfScan) return at;
  }
  return std::string_view::npos;
}

// A photograph whose EXIF data may turn it. Only its presence is looked at: the general reader turns it.
bool MayBeTurned(std::string_view bytes) {
  bool turned = false;
  WalkSegments(bytes, [&](unsigned marker, std::string_view content) {
    if (marker != kExif || content.substr(0, 4) != "Exif") return true;
    // The orientation entry (tag 0x0112, type 3, count 1) with a value other than 1, in either byte order.
    for (std::size_t i = 6; i + 12 <= content.size(); ++i) {
      const std::string_view e = content.substr(i, 12);
      const bool little = e.substr(0, 8) == std::string_view("\x12\x01\x03\x00\x01\x00\x00\x00", 8);
      const bool big = e.substr(0, 8) == std::string_view("\x01\x12\x00\x03\x00\x00\x00\x01", 8);
      if ((little && At(e, 8) != 1) || (big && At(e, 9) != 1)) turned = true;
    }
    return true;
  });
  return turned;
}

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
};

}  // namespace

bool IsJpeg(std::string_view bytes) {
  return bytes.substr(0, 3) == "\xFF\xD8\xFF";
}

bool JpegReachesItsEnd(std::string_view bytes) {
  const std::size_t scan = WalkSegments(bytes, [](unsigned, std::string_view) { return true; });
  return scan != std::string_view::npos && bytes.find("\xFF\xD9", scan) != std::string_view::npos;
}

std::optional<Picture> ReadJpegStretched(std::string_view bytes, const std::function<Extent(Extent)>& size) {
  if (!IsJpeg(bytes) || MayBeTurned(bytes) || !JpegReachesItsEnd(bytes)) return std::nullopt;
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
