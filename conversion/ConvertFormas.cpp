#include "conversion/ConvertFormas.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <map>

#include "conversion/Claridad.h"
#include "conversion/EleccionDeForma.h"
#include "conversion/Tonos.h"

namespace pixmosa {

namespace {

// The character of nearest lightness for every page light; ties to the lowest code.
std::vector<char32_t> MasCercanos(const std::vector<CaracterMedido>& characters) {
  std::map<double, char32_t> byLightness;  // of equal ones the first
  for (const CaracterMedido& c : characters) byLightness.try_emplace(Claridad(c.media), c.caracter);
  std::vector<char32_t> nearest;
  auto at = byLightness.begin();
  for (int x = 0; x <= kLuzDePagina; ++x) {
    const double l = Claridad(static_cast<double>(x) / kLuzDePagina);
    for (auto next = std::next(at); next != byLightness.end(); at = next++) {
      const double nearer = std::fabs(at->first - l) - std::fabs(next->first - l);
      if (nearer < 0 || (nearer == 0 && at->second < next->second)) break;
    }
    nearest.push_back(at->second);
  }
  return nearest;
}

}  // namespace

Repertorio MedirRepertorio(TextSurface& surface, const Font& font, Extent cell,
                           std::u32string_view characters, bool negative) {
  Repertorio r{MedirCaracteres(surface, font, cell, characters, negative), 1, 0, cell};
  for (const CaracterMedido& c : r.caracteres) {
    r.claridadMinima = std::min(r.claridadMinima, Claridad(c.media));
    r.claridadMaxima = std::max(r.claridadMaxima, Claridad(c.media));
  }
  return r;
}

std::u32string ConvertFormas(const Repertorio& from, const AjustesDeFormas& settings, int luminosity,
                             const Picture& picture, Extent size, ClaridadHecha* made) {
  const auto tones = TonosDePagina(from, settings, luminosity, picture, size, kSubAncho, kSubAlto, made);
  const EleccionDeForma choice(from.caracteres, settings.nitidez);
  std::u32string text;
  text.reserve(static_cast<std::size_t>(size.width) * size.height);
  const std::size_t across = static_cast<std::size_t>(size.width) * kSubAncho;
  for (std::size_t y = 0; y < static_cast<std::size_t>(size.height); ++y)
    for (std::size_t x = 0; x < across; x += kSubAncho) {
      std::array<std::int16_t, kSubceldas> cell{};
      for (std::size_t s = 0; s < kSubceldas; ++s)
        cell[s] = tones[(y * kSubAlto + s / kSubAncho) * across + x + s % kSubAncho];
      text += from.caracteres[choice.Mejor(cell)].caracter;
    }
  return text;
}

std::u32string ConvertTono(const Repertorio& from, const AjustesDeFormas& settings, int luminosity,
                           const Picture& picture, Extent size, ClaridadHecha* made) {
  const std::vector<char32_t> nearest = MasCercanos(from.caracteres);
  std::u32string text;
  for (const std::int16_t x : TonosDePagina(from, settings, luminosity, picture, size, 1, 1, made))
    text += nearest[x];
  return text;
}

}  // namespace pixmosa
