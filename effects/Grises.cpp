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
  for (std::size_t x = 0; x < n; ++x) grays[x] = static_cast<std::uint8_t>(Tercio(SumaRGB(row[x])));
}

std::int32_t MediaDeGrises(const PixelBuffers& b) {
  std::uint64_t sum = 0;
  for (int y = 1; y <= b.H; ++y) sum += SumaDeGrises(b.Fuente(y), b.Columnas());
  return static_cast<std::int32_t>(sum / (static_cast<std::uint64_t>(b.W) * static_cast<std::uint64_t>(b.H)));
}

}  // namespace pixmosa
