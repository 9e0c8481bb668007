#include "tools/manuales/Valores.h"

#include <algorithm>
#include <array>

namespace pixmosa::manuales {
namespace {

constexpr int kRangoCorto = 10;  // numbers

// How the help calls the values that are files and folders.
constexpr std::array<std::string_view, 5> kArchivos = {"ARCHIVO", "SALIDA", "PAGINA.html", "TEXTO.txt",
                                                       "FUENTE"};
constexpr std::string_view kReceta = "--receta";  // a file, or the name of a kept one
constexpr std::array<std::string_view, 2> kCarpetas = {"DIR", "CARPETA"};

template <std::size_t kN>
bool Esta(const std::array<std::string_view, kN>& list, std::string_view word) {
  return std::find(list.begin(), list.end(), word) != list.end();
}

}  // namespace

std::string PalabrasDe(const cli::Opcion& option) {
  std::string s;
  const auto add = [&](const std::string& word) { s += (s.empty() ? "" : " ") + word; };
  for (const char* choice : option.elecciones) add(choice);
  if (option.tipo == cli::Tipo::Entero && option.minimo > option.maximo - kRangoCorto)
    for (int n = option.minimo; n <= option.maximo; ++n) add(std::to_string(n));
  return s;
}

Ofrece OfreceDe(const cli::Opcion& option) {
  if (option.tipo == cli::Tipo::Interruptor) return Ofrece::SinValor;
  if (!PalabrasDe(option).empty()) return Ofrece::Palabras;
  if (Esta(kArchivos, option.valor) || kReceta == option.nombre) return Ofrece::Archivos;
  return Esta(kCarpetas, option.valor) ? Ofrece::Carpetas : Ofrece::Nada;
}

std::string Escapado(std::string_view text, std::string_view special) {
  std::string s;
  for (const char c : text) {
    if (special.find(c) != std::string_view::npos) s += '\\';
    s += c;
  }
  return s;
}

}  // namespace pixmosa::manuales
