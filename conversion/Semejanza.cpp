#include "conversion/Semejanza.h"

#include <algorithm>
#include <cmath>
#include <map>

#include "conversion/Caracteres.h"
#include "conversion/Claridad.h"

namespace pixmosa {
namespace {

// Deviations, in widths of a cell: of the blur that stands for each distance, and of a window.
constexpr double kLejos = 1, kCerca = 0.5, kFino = 0, kVentana = 1;
// The constants that keep a quotient of two small numbers from being noise, for lightness 0..1.
constexpr double kC1 = 0.01 * 0.01, kC2 = 0.01 * 0.01;

struct Momentos {
  double media, desviacion;
};

Momentos MomentosDe(const Malla& m) {
  double sum = 0, squares = 0;
  for (const double v : m.valores) sum += v;
  const double n = static_cast<double>(m.valores.size()), mean = sum / n;
  for (const double v : m.valores) squares += (v - mean) * (v - mean);
  return {mean, std::sqrt(squares / n)};
}

Malla Productos(const Malla& a, const Malla& b) {
  Malla p = a;
  for (std::size_t i = 0; i < p.valores.size(); ++i) p.valores[i] *= b.valores[i];
  return p;
}

class Vista {
 public:
  explicit Vista(Extent cell) : shape_(static_cast<double>(cell.width) / cell.height) {}

  // Blurred by `widths` widths of a cell.
  Malla Borrosa(const Malla& subcells, double widths) const {
    return Difuminar(subcells, widths * kSubAncho, widths * shape_ * kSubAlto);
  }

  // The lightness seen from a distance.
  Malla Claridades(const Malla& light, double widths) const {
    Malla seen = Borrosa(light, widths);
    for (float& v : seen.valores) v = static_cast<float>(Claridad(std::max(0.0F, v)));
    return seen;
  }

 private:
  double shape_;
};

// The text with the picture's mean and deviation; a flat text stays flat.
Malla Igualada(Malla text, const Momentos& to) {
  const Momentos from = MomentosDe(text);
  const double gain = from.desviacion > 1e-6 ? to.desviacion / from.desviacion : 0;
  for (float& v : text.valores) v = static_cast<float>((v - from.media) * gain + to.media);
  return text;
}

double Estructura(const Vista& view, const Malla& picture, const Malla& text, double widths) {
  const Malla a = view.Claridades(picture, widths);
  const Malla b = Igualada(view.Claridades(text, widths), MomentosDe(a));
  const auto window = [&](const Malla& m) { return view.Borrosa(m, kVentana); };
  const Malla ma = window(a), mb = window(b);
  const Malla aa = window(Productos(a, a)), bb = window(Productos(b, b)), ab = window(Productos(a, b));
  double sum = 0, weights = 0;
  for (std::size_t i = 0; i < a.valores.size(); ++i) {
    const double x = ma.valores[i], y = mb.valores[i];
    const double vx = std::max(0.0, aa.valores[i] - x * x), vy = std::max(0.0, bb.valores[i] - y * y);
    const double xy = ab.valores[i] - x * y;
    const double alike = (2 * x * y + kC1) * (2 * xy + kC2) / ((x * x + y * y + kC1) * (vx + vy + kC2));
    const double weight = vx + 1e-9;
    sum += weight * alike;
    weights += weight;
  }
  return sum / weights;
}

// Of the lightness of whole cells; two flat ones are alike, a flat one and another have nothing in common.
double Correlacion(const Malla& picture, const Malla& text, Extent cells) {
  const auto lightness = [&](const Malla& m) {
    Malla c = MediaDe(m.valores, {static_cast<int>(m.ancho), static_cast<int>(m.alto)}, cells);
    for (float& v : c.valores) v = static_cast<float>(Claridad(v));
    return c;
  };
  const Malla a = lightness(picture), b = lightness(text);
  const Momentos x = MomentosDe(a), y = MomentosDe(b);
  if (x.desviacion < 1e-6 || y.desviacion < 1e-6) return x.desviacion < 1e-6 && y.desviacion < 1e-6 ? 1 : 0;
  double sum = 0;
  for (std::size_t i = 0; i < a.valores.size(); ++i)
    sum += (a.valores[i] - x.media) * (b.valores[i] - y.media);
  return sum / static_cast<double>(a.valores.size()) / x.desviacion / y.desviacion;
}

}  // namespace

Malla LuzDeTexto(TextSurface& surface, const Font& font, Extent cell, const std::vector<std::u32string>& rows,
                 Extent size, bool negative) {
  std::map<char32_t, std::array<double, kSubceldas>> drawn;
  std::array<double, kSubceldas> paper{};
  paper.fill(negative ? 0 : 1);
  std::u32string used = U" ";
  for (const std::u32string& row : rows)
    for (const char32_t c : row)
      if (drawn.try_emplace(c, paper).second && c != U' ') used += c;
  for (const CaracterMedido& c : MedirCaracteres(surface, font, cell, used, negative))
    drawn[c.caracter] = c.luz;

  Malla light(static_cast<std::size_t>(size.width) * kSubAncho,
              static_cast<std::size_t>(size.height) * kSubAlto);
  std::fill(light.valores.begin(), light.valores.end(), negative ? 0.0F : 1.0F);
  for (std::size_t y = 0; y < std::min<std::size_t>(rows.size(), size.height); ++y)
    for (std::size_t x = 0; x < std::min<std::size_t>(rows[y].size(), size.width); ++x)
      for (std::size_t s = 0; s < kSubceldas; ++s)
        light.Fila(y * kSubAlto + s / kSubAncho)[x * kSubAncho + s % kSubAncho] =
            static_cast<float>(drawn.at(rows[y][x])[s]);
  return light;
}

Semejanza Comparar(const Malla& picture, const Malla& text, Extent cell) {
  const Vista view(cell);
  Semejanza s;
  s.tono =
      Correlacion(picture, text,
                  {static_cast<int>(picture.ancho) / kSubAncho, static_cast<int>(picture.alto) / kSubAlto});
  s.lejos = Estructura(view, picture, text, kLejos);
  s.cerca = Estructura(view, picture, text, kCerca);
  s.fino = Estructura(view, picture, text, kFino);
  return s;
}

}  // namespace pixmosa
