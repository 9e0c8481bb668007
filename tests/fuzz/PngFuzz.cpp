// Any bytes as a PNG of bounded size: a picture of the declared size or none, and what is written of it reads
// back.
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "platform/png/Png.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace pixmosa;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const Extent declared = TamanoDePng(bytes);
  PngLlegaAlFinal(bytes);
  if (std::int64_t{declared.width} * declared.height > 1 << 14) return 0;
  const Picture picture = LeerPng(bytes);
  if (picture.IsEmpty()) return 0;
  if (picture.Size() != declared) std::abort();
  const Picture again = LeerPng(EscribirPng(picture));
  if (again.Size() != declared ||
      !std::equal(again.Pixels(), again.Pixels() + again.PixelCount(), picture.Pixels()))
    std::abort();
  return 0;
}
