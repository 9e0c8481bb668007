#include "cli/Pasos.h"

#include <algorithm>
#include <climits>
#include <vector>

#include "cli/Argumentos.h"
#include "cli/Lista.h"
#include "effects/EntradasDeImagen.h"
#include "effects/basFiltrosConfig.h"
#include "platform/CodePage.h"
#include "platform/Colour.h"

namespace pixmosa::cli {
namespace {

constexpr const char* kRecortar = "recortar";

std::string Rango(std::int32_t from, std::int32_t to) {
  return "de " + std::to_string(from) + " a " + std::to_string(to);
}

[[noreturn]] void RechazarValor(const std::string& word) {
  throw ErrorDeUso("el paso \"" + word + "\" no lleva valor");
}

// A caption's name that a shell takes without quotes: rgb-a-brg for "RGB -> BRG".
std::string NombreSinComillas(std::string caption) {
  if (const std::size_t arrow = caption.find("->"); arrow != std::string::npos)
    caption.replace(arrow, 2, "a");
  return NombreDeOrden(caption);
}

// A value as the slider or the menu item gives it.
std::int32_t ArgumentoDado(int effect, const std::string& word, const std::string& value) {
  const EffectConfig& e = *Efecto(effect);
  if (e.argumento == Argumento::Ninguno) RechazarValor(word);
  const std::optional<int> v = EnteroDeTexto(value, e.Min, e.Max);
  if (!v) throw ErrorDeUso("el valor del paso \"" + word + "\" debe ser un entero " + Rango(e.Min, e.Max));
  return ArgumentoDelDeslizador(effect, *v);
}

Paso PasoDeEfecto(int effect, std::int32_t otherwise, const std::string& word,
                  const std::optional<std::string>& value) {
  if (value) return {effect, ArgumentoDado(effect, word, *value)};
  if (Efecto(effect)->argumento == Argumento::Exigido)
    throw ErrorDeUso("el paso \"" + word + "\" necesita un valor, como \"" + word + "=20\"");
  return {effect, otherwise};
}

bool EsNumero(std::string_view s) {
  if (s.starts_with('-')) s.remove_prefix(1);
  return !s.empty() && s.find_first_not_of("0123456789") == std::string_view::npos;
}

std::optional<Paso> PasoPorNumero(const std::string& name, const std::string& word,
                                  const std::optional<std::string>& value) {
  if (!EsNumero(name)) return std::nullopt;
  const std::optional<int> n = EnteroDeTexto(name, 1, kEfectos);
  if (!n) throw ErrorDeUso("no existe el efecto \"" + word + "\"; los hay " + Rango(1, kEfectos));
  return PasoDeEfecto(*n, Efecto(*n)->menu, word, value);
}

// X,Y,W,H.
Paso PasoDeRecorte(const std::string& word, const std::optional<std::string>& value) {
  constexpr std::size_t kNumeros = 4;
  const std::vector<std::string> parts = Separar(value.value_or(""));
  std::vector<int> numbers;
  numbers.reserve(parts.size());
  for (const std::string& part : parts)
    numbers.push_back(EnteroDeTexto(part, numbers.size() < 2 ? 0 : 1, INT_MAX).value_or(-1));
  if (parts.size() != kNumeros || std::count(numbers.begin(), numbers.end(), -1) > 0)
    throw ErrorDeUso("el paso \"" + word + "\" necesita cuatro enteros, como \"" + kRecortar +
                     "=X,Y,ANCHO,ALTO\"");
  return {.recorte = Zona{numbers[0], numbers[1], numbers[2], numbers[3]}};
}

std::optional<Paso> PasoPorNombre(const std::string& name, const std::string& word,
                                  const std::optional<std::string>& value) {
  if (name == kRecortar) return PasoDeRecorte(word, value);
  for (const Giro& g : Giros())
    if (name == g.orden) {
      if (value) RechazarValor(word);
      return Paso{.giro = &g};
    }
  for (int n = 1; n <= kEfectos; ++n)
    if (name == NombreDeOrden(Efecto(n)->caption)) return PasoDeEfecto(n, Efecto(n)->menu, word, value);
  for (const EntradaDeImagen& e : EntradasDeImagen())
    if (e.accion == Accion::Efecto &&
        (name == NombreDeOrden(e.caption) || name == NombreSinComillas(e.caption))) {
      if (value) RechazarValor(word);  // the entry is one of its values
      return PasoDeEfecto(e.efecto, e.argumento, word, value);
    }
  return std::nullopt;
}

std::string AyudaDelValor(int effect) {
  const EffectConfig& e = *Efecto(effect);
  if (e.argumento == Argumento::Ninguno) return "";
  std::string s = "valor " + Rango(e.Min, e.Max);
  if (e.argumento == Argumento::Exigido) return s + ", obligatorio";
  if (e.argumento == Argumento::Color) s += " (rojo + 256 verde + 65536 azul)";
  const std::int32_t otherwise = e.argumento == Argumento::Gris ? SplitColour(e.menu).red : e.menu;
  return s + "; si falta, " + std::to_string(otherwise);
}

void Rellenar(std::string& line, std::size_t columns) {
  std::size_t used = 0;
  for (std::string_view rest = line; !rest.empty(); ++used) NextUtf8(rest);
  line.append(columns > used ? columns - used : 1, ' ');
}

std::string Linea(const std::string& number, const std::string& name, const std::string& caption,
                  const std::string& value) {
  std::string s = std::string(number.size() < 2 ? 4 - number.size() : 2, ' ') + number;
  Rellenar(s, 6);
  s += name;
  Rellenar(s, 33);
  s += "\"" + caption + "\"";
  if (!value.empty()) {
    Rellenar(s, 60);
    s += value;
  }
  return s + "\n";
}

}  // namespace

std::optional<Paso> PasoDe(const std::string& word) {
  const std::size_t equals = word.find('=');
  const std::string name = word.substr(0, equals);
  std::optional<std::string> value;
  if (equals != std::string::npos) value = word.substr(equals + 1);
  if (const std::optional<Paso> step = PasoPorNumero(name, word, value)) return step;
  return PasoPorNombre(name, word, value);
}

void DarPaso(MFiltros& m, ImagenDeTrabajo& image, const Paso& step) {
  if (step.giro) {
    Girar(image, *step.giro);
    return;
  }
  if (step.recorte) {
    image.SaveUndo();
    image.picMain = Recortada(image.picMain, *step.recorte);
    return;
  }
  NoProgress progress;
  ApplyEffect(m, image, step.efecto, image, step.argumento, progress, false);
}

std::string AyudaDePasos() {
  std::string s =
      "Pasos, que se dan de izquierda a derecha; cada uno por su número o por su nombre, con =VALOR donde lo "
      "lleva:\n";
  for (int n = 1; n <= kEfectos; ++n)
    s += Linea(std::to_string(n), NombreDeOrden(Efecto(n)->caption), Efecto(n)->caption, AyudaDelValor(n));
  for (const EntradaDeImagen& e : EntradasDeImagen())
    if (e.accion == Accion::Efecto && std::string_view(e.caption) != Efecto(e.efecto)->caption)
      s += Linea("", NombreSinComillas(e.caption), e.caption,
                 "lo mismo que " + std::to_string(e.efecto) + "=" + std::to_string(e.argumento) +
                     " y que \"" + NombreDeOrden(e.caption) + "\"");
  for (const Giro& g : Giros()) s += Linea("", g.orden, g.caption, "");
  s += Linea("", kRecortar, "Recortar", "valor X,Y,ANCHO,ALTO en píxeles, obligatorio");
  return s;
}

}  // namespace pixmosa::cli
