#include "conversion/EleccionDeForma.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "platform/Clones.h"
#include "platform/Rounding.h"

namespace pixmosa {
namespace {

constexpr double kPesoDeForma = 0.08, kGanancia = 0.85, kUnidad = 65536;
constexpr std::int32_t kNunca = std::numeric_limits<std::int32_t>::max();
constexpr std::int16_t kMayorPeso = std::numeric_limits<std::int16_t>::max();
// What rounding eight weights and one offset can change a cost by.
constexpr double kRedondeo = kSubceldas * kLuzDePagina / 2.0 + 1;

// The formula's parts in real numbers.
struct Formula {
  double w, ganancia;

  double Peso(const CaracterMedido& c, std::size_t s) const {
    return (2 * c.media + 2 * w * ganancia * (c.luz[s] - c.media)) / kSubceldas;
  }
  double Partida(const CaracterMedido& c) const {
    double squares = 0;
    for (const double v : c.luz) squares += (v - c.media) * (v - c.media) / kSubceldas;
    return c.media * c.media + w * squares;
  }
  double MayorPeso(const std::vector<CaracterMedido>& characters) const {
    double largest = 0;
    for (const CaracterMedido& c : characters)
      for (std::size_t s = 0; s < kSubceldas; ++s) largest = std::max(largest, std::fabs(Peso(c, s)));
    return largest;
  }
  // How far the weights lie from their mean, squares summed.
  double Desvio(const CaracterMedido& c) const {
    double squares = 0;
    for (std::size_t s = 0; s < kSubceldas; ++s) {
      const double d = Peso(c, s) - 2 * c.media / kSubceldas;
      squares += d * d;
    }
    return std::sqrt(squares);
  }
};

}  // namespace

EleccionDeForma::EleccionDeForma(const std::vector<CaracterMedido>& characters, int sharpness) {
  std::vector<std::int32_t> order(characters.size());
  for (std::size_t i = 0; i < order.size(); ++i) order[i] = static_cast<std::int32_t>(i);
  std::stable_sort(order.begin(), order.end(),
                   [&](auto a, auto b) { return characters[a].media < characters[b].media; });
  const double span = characters[order.back()].media - characters[order.front()].media;
  const Formula formula{kPesoDeForma * std::pow(4, (sharpness - 50) / 50.0), span > 0 ? kGanancia / span : 0};

  // 65536 times, or the half of it as often as the weights need to stay within 16 bits.
  double unit = kUnidad;
  while (formula.MayorPeso(characters) * unit > kMayorPeso) unit /= 2;
  unidad_ = unit * kLuzDePagina;

  for (std::size_t i = 0; i < order.size(); ++i) {
    const CaracterMedido& c = characters[order[i]];
    const std::size_t k = i % kJuntos;
    if (k == 0) {
      grupos_.emplace_back();
      std::fill_n(grupos_.back().partida, kJuntos, kNunca);
      grupos_.back().menor = c.media;
      grupos_.back().desvio = 0;
    }
    Grupo& group = grupos_.back();
    group.partida[k] = RoundHalfEven(formula.Partida(c) * unidad_);
    group.indice[k] = order[i];
    group.mayor = c.media;
    for (std::size_t s = 0; s < kSubceldas; ++s)
      group.peso[s][k] = static_cast<std::int16_t>(RoundHalfEven(formula.Peso(c, s) * unit));
    group.desvio = std::max(group.desvio, formula.Desvio(c) * unit);
  }
}

inline void EleccionDeForma::Probar(const Grupo& group, const std::int16_t* light, Barato& best) {
  std::int32_t cost[kJuntos];
  for (int i = 0; i < kJuntos; ++i) cost[i] = group.partida[i];
  for (int s = 0; s < kSubceldas; ++s)
    for (int i = 0; i < kJuntos; ++i) cost[i] -= group.peso[s][i] * light[s];
  std::int32_t least = kNunca, index = kNunca;
  for (int i = 0; i < kJuntos; ++i) least = std::min(least, cost[i]);
  if (least > best.coste) return;
  for (int i = 0; i < kJuntos; ++i) index = std::min(index, cost[i] == least ? group.indice[i] : kNunca);
  if (least < best.coste || index < best.indice) best = {least, index};
}

// The cost is unit ((m - mean x)^2 - (mean x)^2 + w mean(d^2)) less at most the product of the norms of the
// weights and of the light about their means (Cauchy and Schwarz). So the groups are gone over outward from
// the cell's own light, and those whose square alone exceeds what was found are left out.
PIXMOSA_CLONES std::size_t EleccionDeForma::Mejor(std::span<const std::int16_t, kSubceldas> light) const {
  int sum = 0, squares = 0;
  for (const int x : light) {
    sum += x;
    squares += x * x;
  }
  const double mean = sum / static_cast<double>(kSubceldas);
  const double spread = std::sqrt(std::max(0.0, squares - sum * mean));
  const double page = mean / kLuzDePagina;
  const double own = unidad_ * page * page + kRedondeo;
  // Beyond the nearest mean of a group, its own deviation is all that could make it cheaper.
  const auto cannot = [&](double m, const Grupo& group, const Barato& best) {
    return unidad_ * (m - page) * (m - page) - own - group.desvio * spread > best.coste;
  };

  Barato best{kNunca, kNunca};
  const auto middle =
      std::partition_point(grupos_.begin(), grupos_.end(), [&](const Grupo& g) { return g.mayor < page; });
  for (auto up = middle; up != grupos_.end(); ++up)
    if (up->menor <= page || !cannot(up->menor, *up, best)) Probar(*up, light.data(), best);
  for (auto down = middle; down != grupos_.begin();) {
    --down;
    if (!cannot(down->mayor, *down, best)) Probar(*down, light.data(), best);
  }
  return static_cast<std::size_t>(best.indice);
}

}  // namespace pixmosa
