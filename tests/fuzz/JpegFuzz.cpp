// Any bytes as a JPEG: the walk over its segments and the quick reader, on pictures of bounded size.
#include "platform/jpeg/JpegRows.h"
#include "platform/jpeg/Segmentos.h"
#include "tests/fuzz/Fuzz.h"

void Fuzz(std::string_view bytes) {
  const bool whole = JpegLlegaAlFinal(bytes);
  // What follows the end mark changes nothing.
  Check(!whole || JpegLlegaAlFinal(std::string(bytes) + "\xFF\xE1"));
  Check(!JpegQuizaGirado(bytes) || bytes.size() >= 20);
  const auto reduced = ReadJpegReduced(bytes, [](Extent source) {
    return std::int64_t{source.width} * source.height > 1 << 16 ? Extent{} : Extent{7, 5};
  });
  Check(!reduced || whole);
  const auto picture = ReadJpegStretched(bytes, [](Extent source) {
    Check(source.width >= 1 && source.height >= 1);
    return std::int64_t{source.width} * source.height > 1 << 16 ? Extent{} : Extent{7, 5};
  });
  Check(!picture || (whole && picture->Size() == Extent{7, 5}));
}
