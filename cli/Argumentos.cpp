#include "cli/Argumentos.h"

#include <algorithm>
#include <array>
#include <climits>

#include "cli/Lista.h"
#include "platform/Palabras.h"

namespace pixmosa::cli {
namespace {

std::string Citado(std::string_view s) {
  return "\"" + std::string(s) + "\"";
}

void Comprobar(const Opcion& o, const std::string& value) {
  const std::string name = o.nombre;
  if (o.tipo == Tipo::Entero && !EnteroDeTexto(value, o.minimo, o.maximo)) {
    const std::string range = o.maximo == INT_MAX
                                  ? "de " + std::to_string(o.minimo) + " en adelante"
                                  : "de " + std::to_string(o.minimo) + " a " + std::to_string(o.maximo);
    throw ErrorDeUso("la opción " + name + " espera un número entero " + range + ", no " + Citado(value));
  }
  const auto same = [&](const char* e) { return value == e; };
  if (o.tipo == Tipo::Eleccion && std::none_of(o.elecciones.begin(), o.elecciones.end(), same))
    throw ErrorDeUso("la opción " + name + " espera " + Unidas(o.elecciones) + ", no " + Citado(value));
}

}  // namespace

Argumentos::Argumentos(std::span<const std::string> words, std::span<const Opcion> options) {
  Leer(words, options);
  if (std::count(operandos_.begin(), operandos_.end(), "-") > 1)
    throw ErrorDeUso("la entrada estándar (\"-\") solo se puede leer una vez");
}

void Argumentos::Leer(std::span<const std::string> words, std::span<const Opcion> options) {
  for (std::size_t i = 0; i < words.size(); ++i) {
    const std::string& word = words[i];
    if (word == "--") {
      operandos_.insert(operandos_.end(), words.begin() + static_cast<std::ptrdiff_t>(i) + 1, words.end());
      return;
    }
    if (word.size() < 2 || word[0] != '-') {
      operandos_.push_back(word);
      continue;
    }
    const std::size_t equals = word.find('=');
    const std::string name = word.substr(0, equals);
    const auto o =
        std::find_if(options.begin(), options.end(), [&](const Opcion& x) { return name == x.nombre; });
    if (o == options.end()) throw ErrorDeUso("no existe la opción " + Citado(name));
    if (o->tipo == Tipo::Interruptor) {
      if (equals != std::string::npos) throw ErrorDeUso("la opción " + name + " no lleva valor");
      valores_[name];
      continue;
    }
    if (equals == std::string::npos && i + 1 == words.size())
      throw ErrorDeUso("falta el valor de la opción " + name);
    const std::string value = equals == std::string::npos ? words[++i] : word.substr(equals + 1);
    Comprobar(*o, value);
    valores_[name] = value;
  }
}

std::optional<std::string> Argumentos::Texto(const std::string& option) const {
  const auto at = valores_.find(option);
  return at == valores_.end() ? std::nullopt : std::optional(at->second);
}

std::string Argumentos::Exigir(const std::string& option) const {
  const auto at = valores_.find(option);
  if (at == valores_.end()) throw ErrorDeUso("falta la opción " + option);
  return at->second;
}

int Argumentos::Entero(const std::string& option, int otherwise) const {
  const auto at = valores_.find(option);
  return at == valores_.end() ? otherwise : EnteroDeTexto(at->second, INT_MIN, INT_MAX).value_or(otherwise);
}

std::optional<Colour> Argumentos::Color(const std::string& option) const {
  const std::optional<std::string> text = Texto(option);
  if (!text) return std::nullopt;
  const std::optional<Colour> colour = ColorDeTexto(*text);
  if (!colour)
    throw ErrorDeUso("la opción " + option + " espera tres números de 0 a 255, como 0,0,128, no " +
                     Citado(*text));
  return colour;
}

std::optional<Colour> ColorDeTexto(const std::string& text) {
  std::array<int, 3> parts{};
  const std::vector<std::string> words = Separar(text);
  if (words.size() != parts.size()) return std::nullopt;
  for (std::size_t i = 0; i < words.size(); ++i) {
    const auto part = EnteroDeTexto(words[i], 0, 255);
    if (!part) return std::nullopt;
    parts[i] = *part;
  }
  return Rgb(parts[0], parts[1], parts[2]);
}

void Argumentos::ExigirOperandos(std::size_t least, std::size_t most, std::string_view what) const {
  if (operandos_.size() < least) throw ErrorDeUso("falta " + std::string(what));
  if (operandos_.size() > most) throw ErrorDeUso("sobra el operando " + Citado(operandos_[most]));
}

}  // namespace pixmosa::cli
