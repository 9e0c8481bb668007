// Dividing a line of values into equal parts, which need not begin or end between two values.
#pragma once

#include <cstdint>
#include <vector>

namespace pixmosa {

// Where the `to` equal parts of `from` values lie. In units of 1 / to of a value, value i covers i * to up to
// (i + 1) * to and part s covers s * from up to (s + 1) * from.
struct Reparto {
  // A part: values first..last, without what the first and the last lie outside of it.
  struct Parte {
    int first, last;
    std::int64_t antes, despues;
  };

  Reparto(int from, int to) : entero(to), justo(from % to == 0) {
    const std::int64_t f = from, t = to;
    for (std::int64_t s = 0; s < t; ++s) {
      const std::int64_t begin = s * f, end = begin + f;
      const std::int64_t a = begin / t, b = (end - 1) / t;
      partes.push_back({static_cast<int>(a), static_cast<int>(b), begin - a * t, (b + 1) * t - end});
    }
  }

  // The sum over a part of value(i) times its share.
  template <typename Suma, typename Value>
  Suma De(const Parte& part, Value value) const {
    Suma sum{};
    for (int i = part.first; i <= part.last; ++i) sum += value(i);
    sum *= static_cast<Suma>(entero);
    if (justo) return sum;
    return sum - value(part.first) * static_cast<Suma>(part.antes) -
           value(part.last) * static_cast<Suma>(part.despues);
  }

  std::int64_t entero;  // the share of a whole value
  bool justo;           // no value lies in two parts
  std::vector<Parte> partes;
};

}  // namespace pixmosa
