#include "conversion/Malla.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "platform/Luz.h"
#include "platform/Pixel.h"
#include "platform/Reparto.h"
#include "platform/Stretch.h"

namespace pixmosa {
namespace {

constexpr double kMenorCaja = 3;      // deviation from which three boxes are like the curve
constexpr double kLuzEntera = 65535;  // a pixel's light as a whole number

// The light that each value of a colour part adds to a pixel.
struct TablasDeLuz {
  std::array<std::uint32_t, 256> rojo{}, verde{}, azul{};
  TablasDeLuz() {
    for (int v = 0; v < 256; ++v) {
      const double light = kLuzEntera * LuzDeParte(v);
      rojo[v] = RoundHalfEven(0.2126 * light);
      azul[v] = RoundHalfEven(0.0722 * light);
      verde[v] = RoundHalfEven(light) - rojo[v] - azul[v];
    }
  }
  std::uint32_t De(std::uint32_t p) const { return rojo[Rojo(p)] + verde[Verde(p)] + azul[Azul(p)]; }
};

// The means of the parts of rows that come one after another from the top: `row(y, sums)` writes the sums of
// row y's parts, across. All sums are exact where the values are whole numbers.
template <typename Suma, typename Row>
Malla Repartir(Extent from, Extent size, double whole, Row row) {
  const Reparto down(from.height, size.height);
  Malla mean(size.width, size.height);
  std::vector<Suma> parts(size.width), sums(size.width);
  int have = -1;
  const double scale = 1 / (whole * from.width * from.height);
  for (int s = 0; s < size.height; ++s) {
    const Reparto::Parte& part = down.partes[s];
    std::fill(sums.begin(), sums.end(), Suma{});
    for (int y = part.first; y <= part.last; ++y) {
      if (y != have) row(have = y, parts);
      const std::int64_t outside = (y == part.first ? part.antes : 0) + (y == part.last ? part.despues : 0);
      const auto share = static_cast<Suma>(down.entero - outside);
      for (int x = 0; x < size.width; ++x) sums[x] += parts[x] * share;
    }
    std::transform(sums.begin(), sums.end(), mean.Fila(s).begin(),
                   [&](Suma sum) { return static_cast<float>(static_cast<double>(sum) * scale); });
  }
  return mean;
}

// The values that means of `to` parts are made of: all, or where there are many, `most` evenly in each part.
std::vector<int> Muestras(int from, int to, int most) {
  return StretchPositions(from, std::min<std::int64_t>(from, std::int64_t{most} * to));
}

// Means over 2 r + 1 cells of a line whose cells stand `step` apart, those outside it left out.
void MediaMovil(std::span<float> line, std::size_t radius, std::vector<double>& upTo) {
  const std::size_t n = line.size();
  upTo.resize(n + 1);
  for (std::size_t i = 0; i < n; ++i) upTo[i + 1] = upTo[i] + line[i];
  for (std::size_t i = 0; i < n; ++i) {
    const std::size_t begin = i > radius ? i - radius : 0, end = std::min(n, i + radius + 1);
    line[i] = static_cast<float>((upTo[end] - upTo[begin]) / static_cast<double>(end - begin));
  }
}

// The radii of three boxes whose variances, (w^2 - 1) / 12 each, come nearest to a Gaussian's.
std::array<std::size_t, 3> Radios(double deviation) {
  const double ideal = std::sqrt(4 * deviation * deviation + 1);
  const auto radius = static_cast<std::size_t>((ideal - 1) / 2);
  const double w = 2.0 * static_cast<double>(radius) + 1;
  // k boxes of the smaller width and 3 - k of the next odd one.
  const double k = (3 * (w + 2) * (w + 2) - 3 - 12 * deviation * deviation) / (4 * w + 4);
  std::array<std::size_t, 3> radii{};
  for (int i = 0; i < 3; ++i) radii[i] = i < std::lrint(k) ? radius : radius + 1;
  return radii;
}

Malla Girada(const Malla& m) {
  Malla turned(m.alto, m.ancho);
  for (std::size_t y = 0; y < m.alto; ++y)
    for (std::size_t x = 0; x < m.ancho; ++x) turned.valores[x * m.alto + y] = m.valores[y * m.ancho + x];
  return turned;
}

// By the curve itself, which a box would be too coarse for.
void DifuminarFino(std::span<float> line, const std::vector<float>& kernel, std::vector<float>& from) {
  from.assign(line.begin(), line.end());
  const auto n = static_cast<std::ptrdiff_t>(line.size()),
             radius = static_cast<std::ptrdiff_t>(kernel.size()) - 1;
  for (std::ptrdiff_t i = 0; i < n; ++i) {
    float sum = 0, weights = 0;
    for (std::ptrdiff_t k = std::max(-radius, -i); k <= std::min(radius, n - 1 - i); ++k) {
      sum += from[i + k] * kernel[std::abs(k)];
      weights += kernel[std::abs(k)];
    }
    line[i] = sum / weights;
  }
}

void DifuminarFilas(Malla& m, double deviation) {
  if (deviation < kMenorCaja) {
    std::vector<float> kernel, from;
    for (int i = 0; i <= std::ceil(3 * deviation); ++i)
      kernel.push_back(i == 0 ? 1 : static_cast<float>(std::exp(-i * i / (2 * deviation * deviation))));
    for (std::size_t y = 0; y < m.alto; ++y) DifuminarFino(m.Fila(y), kernel, from);
    return;
  }
  std::vector<double> upTo;
  for (const std::size_t radius : Radios(deviation))
    for (std::size_t y = 0; radius > 0 && y < m.alto; ++y) MediaMovil(m.Fila(y), radius, upTo);
}

}  // namespace

Malla LuzMedia(const Picture& picture, Extent size) {
  static const TablasDeLuz light;
  const std::vector<int> xs = Muestras(picture.Width(), size.width, kMuestrasDeAncho),
                         ys = Muestras(picture.Height(), size.height, kMuestrasDeAlto);
  const Extent taken{static_cast<int>(xs.size()), static_cast<int>(ys.size())};
  const Reparto across(taken.width, size.width);
  return Repartir<std::uint64_t>(taken, size, kLuzEntera, [&](int y, std::vector<std::uint64_t>& parts) {
    const std::uint32_t* p = picture.Row(ys[y]).data();
    const auto at = [&](int i) -> std::uint64_t { return light.De(p[xs[i]]); };
    std::transform(across.partes.begin(), across.partes.end(), parts.begin(),
                   [&](const Reparto::Parte& part) { return across.De<std::uint64_t>(part, at); });
  });
}

Malla MediaDe(std::span<const float> values, Extent from, Extent size) {
  const Reparto across(from.width, size.width);
  return Repartir<double>(from, size, 1, [&](int y, std::vector<double>& parts) {
    const float* p = values.data() + static_cast<std::ptrdiff_t>(y) * from.width;
    const auto at = [&](int i) -> double { return p[i]; };
    std::transform(across.partes.begin(), across.partes.end(), parts.begin(),
                   [&](const Reparto::Parte& part) { return across.De<double>(part, at); });
  });
}

Malla Difuminar(const Malla& m, double across, double down) {
  Malla blurred = m;
  DifuminarFilas(blurred, across);
  blurred = Girada(blurred);
  DifuminarFilas(blurred, down);
  return Girada(blurred);
}

}  // namespace pixmosa
