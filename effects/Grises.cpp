#include "effects/Grises.h"

#include "platform/Clones.h"

namespace pixmosa {
namespace {

PIXMOSA_CLONES
std::uint32_t SumaDeGrises(const std::uint32_t* row, std::size_t n) {
  std::uint32_t sum = 0;
  for (std::size_t x = 0; x < n; ++x) sum += Tercio(SumaRGB(row[x]));
  return sum;
}

}  // namespace

PIXMOSA_CLONES
void FilaDeGrises(const std::uint32_t* row, std::uint8_t* grays, std::size_t n) {
  for (std::size_t x = 0; x < n; ++x) grays[x] = Tercio(SumaRGB(row[x]));
}

std::int32_t MediaDeGrises(const PixelBuffers& b) {
  std::uint64_t sum = 0;
  for (std::ptrdiff_t y = 1; y <= b.H; ++y) sum += SumaDeGrises(b.Origen(y), b.Columnas());
  const std::uint64_t pixels = b.W * b.H;
  return sum / pixels;
}

}  // namespace pixmosa
