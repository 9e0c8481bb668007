// Any bytes as a JPEG: the walk over its segments and the quick reader, on pictures of bounded size.
#include <cstdint>
#include <cstdlib>

#include "platform/jpeg/JpegRows.h"
#include "platform/jpeg/Segmentos.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using pixmosa::Extent;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const bool whole = pixmosa::JpegLlegaAlFinal(bytes);
  // What follows the end mark changes nothing.
  if (whole && !pixmosa::JpegLlegaAlFinal(std::string(bytes) + "\xFF\xE1")) std::abort();
  if (pixmosa::JpegQuizaGirado(bytes) && size < 20) std::abort();
  const auto picture = pixmosa::ReadJpegStretched(bytes, [](Extent source) {
    if (source.width < 1 || source.height < 1) std::abort();
    return std::int64_t{source.width} * source.height > 1 << 16 ? Extent{} : Extent{7, 5};
  });
  if (picture && (!whole || picture->Size() != Extent{7, 5})) std::abort();
  return 0;
}
