#include "platform/jpeg/Segmentos.h"

#include <cstddef>

namespace pixmosa {
namespace {

constexpr unsigned kEnd = 0xD9, kScan = 0xDA, kExif = 0xE1;

unsigned At(std::string_view b, std::size_t i) {
  return static_cast<unsigned char>(b[i]);
}

// Marks without a length: TEM, the restarts, a second start.
bool StandsAlone(unsigned marker) {
  return marker == 0x01 || (marker >= 0xD0 && marker <= 0xD8);
}

// Calls `visit(marker, content)` for every segment and for the end mark, until it returns false. Between two
// segments lies nothing, something stray, or the data of a scan, in which an FF is followed by 0 or a
// restart.
template <typename Visit>
void Walk(std::string_view bytes, Visit visit) {
  std::size_t at = 2;
  while ((at = bytes.find('\xFF', at)) != std::string_view::npos) {
    at = bytes.find_first_not_of('\xFF', at);
    if (at == std::string_view::npos) return;
    const unsigned marker = At(bytes, at++);
    if (marker == kEnd) {
      visit(marker, std::string_view());
      return;
    }
    if (marker == 0 || StandsAlone(marker)) continue;
    if (at + 2 > bytes.size()) return;
    const std::size_t length = At(bytes, at) << 8 | At(bytes, at + 1);
    if (length < 2) continue;  // damaged, which is for the decoder to say
    if (length > bytes.size() - at || !visit(marker, bytes.substr(at + 2, length - 2))) return;
    at += length;
  }
}

// The orientation entry (tag 0x0112, type 3, count 1) with a value other than 1, in either byte order.
bool Turns(std::string_view exif) {
  for (std::size_t i = 6; i + 12 <= exif.size(); ++i) {
    const std::string_view e = exif.substr(i, 12);
    const bool little = e.substr(0, 8) == std::string_view("\x12\x01\x03\x00\x01\x00\x00\x00", 8);
    const bool big = e.substr(0, 8) == std::string_view("\x01\x12\x00\x03\x00\x00\x00\x01", 8);
    if ((little && At(e, 8) != 1) || (big && At(e, 9) != 1)) return true;
  }
  return false;
}

}  // namespace

bool EsJpeg(std::string_view bytes) {
  return bytes.substr(0, 3) == "\xFF\xD8\xFF";
}

bool JpegLlegaAlFinal(std::string_view bytes) {
  bool scan = false, end = false;
  Walk(bytes, [&](unsigned marker, std::string_view) {
    scan |= marker == kScan;
    end = scan && marker == kEnd;
    return true;
  });
  return end;
}

int JpegPasadas(std::string_view bytes) {
  int scans = 0;
  Walk(bytes, [&](unsigned marker, std::string_view) { return (scans += marker == kScan) <= kMasPasadas; });
  return scans;
}

bool JpegQuizaGirado(std::string_view bytes) {
  bool turned = false;
  Walk(bytes, [&](unsigned marker, std::string_view content) {
    if (marker == kExif && content.starts_with("Exif")) turned = turned || Turns(content);
    return marker != kScan && !turned;
  });
  return turned;
}

}  // namespace pixmosa
