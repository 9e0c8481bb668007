// The character of least cost for a cell: m^2 + w mean(d^2) - sum over s of (2 m + 2 w G d[s]) / 8 x[s],
// where a character has mean light m and differences d from it, the cell has light x, w = 0.08 at sharpness
// 50, four times that at 100 and a quarter at 0, and G = 0.85 / (largest m - least m).
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "conversion/Caracteres.h"

namespace pixmosa {

// Page light of 1 as a whole number.
inline constexpr int kLuzDePagina = 4096;

class EleccionDeForma {
 public:
  // `characters` ascending, one at least.
  EleccionDeForma(const std::vector<CaracterMedido>& characters, int sharpness);

  // Index of the cheapest for light 0..kLuzDePagina in the subcells; ties to the lowest. All in whole
  // numbers, the same on every machine.
  std::size_t Mejor(std::span<const std::int16_t, kSubceldas> light) const;

 private:
  static constexpr int kJuntos = 16;

  // Characters of neighbouring means, tried together: cost = partida - sum of peso[s] x[s].
  struct Grupo {
    std::int32_t partida[kJuntos];
    std::int16_t peso[kSubceldas][kJuntos];
    std::int32_t indice[kJuntos];
    double menor, mayor;  // means
    double desvio;        // the largest norm of a character's weights about their mean
  };
  struct Barato {
    std::int32_t coste, indice;
  };

  static inline void Probar(const Grupo& group, const std::int16_t* light, Barato& best);

  double unidad_;              // what a cost is multiplied by
  std::vector<Grupo> grupos_;  // by mean
};

}  // namespace pixmosa
