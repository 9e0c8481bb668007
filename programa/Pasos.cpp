#include "programa/Pasos.h"

#include <algorithm>
#include <climits>
#include <vector>

#include "effects/EntradasDeImagen.h"
#include "effects/basFiltrosConfig.h"
#include "platform/Colour.h"
#include "platform/Palabras.h"

namespace pixmosa {
namespace {

std::string Rango(std::int32_t from, std::int32_t to) {
  return "de " + std::to_string(from) + " a " + std::to_string(to);
}

[[noreturn]] void RechazarValor(const std::string& word) {
  throw ErrorDePaso("el paso \"" + word + "\" no lleva valor");
}

// A value as the slider or the menu item gives it.
std::int32_t ArgumentoDado(int effect, const std::string& word, const std::string& value) {
  const EffectConfig& e = *Efecto(effect);
  if (e.argumento == Argumento::Ninguno) RechazarValor(word);
  const std::optional<int> v = EnteroDeTexto(value, e.Min, e.Max);
  if (!v) throw ErrorDePaso("el valor del paso \"" + word + "\" debe ser un entero " + Rango(e.Min, e.Max));
  return ArgumentoDelDeslizador(effect, *v);
}

Paso PasoDeEfecto(int effect, std::int32_t otherwise, const std::string& word,
                  const std::optional<std::string>& value) {
  if (value) return {effect, ArgumentoDado(effect, word, *value)};
  if (Efecto(effect)->argumento == Argumento::Exigido)
    throw ErrorDePaso("el paso \"" + word + "\" necesita un valor, como \"" + word + "=20\"");
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
  if (!n) throw ErrorDePaso("no existe el efecto \"" + word + "\"; los hay " + Rango(1, kEfectos));
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
    throw ErrorDePaso("el paso \"" + word + "\" necesita cuatro enteros, como \"" + kRecortar +
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

// What the slider or the command line gives for a worker's argument.
std::int32_t ValorDe(const Paso& step) {
  return Efecto(step.efecto)->argumento == Argumento::Gris ? SplitColour(step.argumento).red : step.argumento;
}

}  // namespace

std::string NombreSinComillas(std::string caption) {
  if (const std::size_t arrow = caption.find("->"); arrow != std::string::npos)
    caption.replace(arrow, 2, "a");
  return NombreDeOrden(caption);
}

std::optional<Paso> PasoDe(const std::string& word) {
  const std::size_t equals = word.find('=');
  const std::string name = word.substr(0, equals);
  std::optional<std::string> value;
  if (equals != std::string::npos) value = word.substr(equals + 1);
  if (const std::optional<Paso> step = PasoPorNumero(name, word, value)) return step;
  return PasoPorNombre(name, word, value);
}

std::string PalabraDe(const Paso& step) {
  if (step.giro) return step.giro->orden;
  if (const auto& z = step.recorte)
    return std::string(kRecortar) + "=" + std::to_string(z->x) + "," + std::to_string(z->y) + "," +
           std::to_string(z->ancho) + "," + std::to_string(z->alto);
  const EffectConfig& e = *Efecto(step.efecto);
  const std::string name = NombreDeOrden(e.caption);
  return e.argumento == Argumento::Ninguno ? name : name + "=" + std::to_string(ValorDe(step));
}

void DarPaso(MFiltros& m, ImagenDeTrabajo& image, const Paso& step, Progress& progress) {
  if (step.giro) {
    Girar(image, *step.giro);
  } else if (step.recorte) {
    Picture cut = Recortada(image.picMain, *step.recorte);
    image.SaveUndo();
    image.picMain = std::move(cut);
  } else {
    ApplyEffect(m, image, step.efecto, image, step.argumento, progress, false);
  }
}

}  // namespace pixmosa
