#include "programa/Fotografia.h"

#include <algorithm>
#include <array>
#include <functional>

#include "platform/Pixel.h"

namespace pixmosa {
namespace {

constexpr int kMenorLado = 64;
constexpr int kMuestras = 256;     // rows and columns that are looked at, about
constexpr int kMenosNiveles = 64;  // that each cover one pixel in 4000 at least
constexpr int kMenorParte = 4000;

}  // namespace

bool EsFotografia(const Picture& picture) {
  if (std::min(picture.Width(), picture.Height()) < kMenorLado) return false;
  std::array<int, 256> count{};
  int total = 0;
  const int down = std::max(1, picture.Height() / kMuestras),
            across = std::max(1, picture.Width() / kMuestras);
  for (int y = 0; y < picture.Height(); y += down)
    for (int x = 0; x < picture.Width(); x += across, ++total) ++count[SumaRGB(picture.Row(y)[x]) / 3];
  const auto levels =
      std::count_if(count.begin(), count.end(), [&](int n) { return n > 0 && n >= total / kMenorParte; });
  std::partial_sort(count.begin(), count.begin() + 2, count.end(), std::greater());
  return levels >= kMenosNiveles && count[0] + count[1] < total / 2;
}

}  // namespace pixmosa
