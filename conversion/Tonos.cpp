#include "conversion/Tonos.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "conversion/Claridad.h"
#include "platform/Rounding.h"

namespace pixmosa {
namespace {

constexpr double kMenorAmplitud = 0.15;  // a narrower range of tones is not stretched further
constexpr double kCuantil = 0.01;

// Lightness of light 0..1 by a table that is finer than any picture.
class TablaDeClaridad {
 public:
  TablaDeClaridad() {
    for (int i = 0; i <= kPasos; ++i)
      tabla_[i] = static_cast<float>(Claridad(static_cast<double>(i) / kPasos));
  }
  float De(float light) const { return tabla_[Truncate(light * kPasos + 0.5F)]; }

 private:
  static constexpr int kPasos = 1 << 14;
  std::array<float, kPasos + 1> tabla_{};
};

// Means of blocks of across x down values.
Malla DeCeldas(const Malla& parts, int across, int down) {
  if (across == 1 && down == 1) return parts;
  Malla cells(parts.ancho / across, parts.alto / down);
  for (std::size_t y = 0; y < parts.alto; ++y) {
    const float* from = parts.Fila(y).data();
    for (float& sum : cells.Fila(y / down))
      for (int i = 0; i < across; ++i) sum += *from++;
  }
  for (float& v : cells.valores) v /= static_cast<float>(across * down);
  return cells;
}

struct Amplitud {
  double p0, p1;
};

Amplitud Cuantiles(std::vector<float> values) {
  const auto at = [&](double share) {
    const auto n = values.begin() + std::lround(share * static_cast<double>(values.size() - 1));
    std::nth_element(values.begin(), n, values.end());
    return static_cast<double>(*n);
  };
  return {at(kCuantil), at(1 - kCuantil)};
}

// A range narrower than kMenorAmplitud becomes as wide about its middle, within 0..1.
Amplitud Ensanchada(Amplitud a) {
  if (a.p1 - a.p0 >= kMenorAmplitud) return a;
  const double begin = std::clamp((a.p0 + a.p1 - kMenorAmplitud) / 2, 0.0, 1 - kMenorAmplitud);
  return {begin, begin + kMenorAmplitud};
}

// Page light of every tone 0..kLuzDePagina.
std::array<std::int16_t, kLuzDePagina + 1> LucesDePagina(const Repertorio& from) {
  std::array<std::int16_t, kLuzDePagina + 1> page{};
  for (int t = 0; t <= kLuzDePagina; ++t) {
    const double tone = static_cast<double>(t) / kLuzDePagina;
    const double l = from.claridadMinima + (from.claridadMaxima - from.claridadMinima) * tone;
    page[t] = static_cast<std::int16_t>(RoundHalfEven(kLuzDePagina * LuzDeClaridad(l)));
  }
  return page;
}

// The pixels of a picture never change while the copy here holds them.
const Malla& Claridades(const Picture& picture, Extent size, ClaridadHecha& made) {
  static const TablaDeClaridad lightness;
  const Extent before{static_cast<int>(made.partes.ancho), static_cast<int>(made.partes.alto)};
  if (made.imagen.Pixels() == picture.Pixels() && made.imagen.Size() == picture.Size() && before == size)
    return made.partes;
  made = {};
  made.partes = LuzMedia(picture, size);
  for (float& v : made.partes.valores) v = lightness.De(v);
  made.imagen = picture;
  return made.partes;
}

}  // namespace

std::vector<std::int16_t> TonosDePagina(const Repertorio& from, const AjustesDeFormas& settings,
                                        int luminosity, const Picture& picture, Extent size, int across,
                                        int down, ClaridadHecha* made) {
  ClaridadHecha own;
  const Malla& l = Claridades(picture, {size.width * across, size.height * down}, made ? *made : own);
  Malla c = DeCeldas(l, across, down);

  const float k = static_cast<float>(settings.contrasteLocal) / 100;
  const double deviation = size.width / 8.0;
  const Malla b = k > 0 ? Difuminar(c, deviation, deviation * from.celda.width / from.celda.height) : c;
  for (std::size_t i = 0; i < c.valores.size(); ++i) c.valores[i] += k * (c.valores[i] - b.valores[i]);
  const Amplitud range = settings.ajustarTono ? Ensanchada(Cuantiles(c.valores)) : Amplitud{0, 1};

  const auto page = LucesDePagina(from);
  const auto scale = static_cast<float>(kLuzDePagina / (range.p1 - range.p0));
  const auto begin = static_cast<float>(range.p0);
  const float offset = static_cast<float>(kLuzDePagina) * 2 * static_cast<float>(luminosity) / 255 + 0.5F;
  std::vector<std::int16_t> tones(l.valores.size());
  std::int16_t* to = tones.data();
  for (std::size_t y = 0; y < l.alto; ++y) {
    const float* v = l.Fila(y).data();
    for (const float blurred : b.Fila(y / down))
      for (int i = 0; i < across; ++i, ++v) {
        const float t = (*v + k * (*v - blurred) - begin) * scale + offset;
        *to++ = page[Truncate(std::clamp(t, 0.0F, static_cast<float>(kLuzDePagina)))];
      }
  }
  return tones;
}

}  // namespace pixmosa
