#include "tools/manuales/Manuales.h"
#include "tools/manuales/Valores.h"

namespace pixmosa::manuales {
namespace {

constexpr char kPrincipio[] = R"(#compdef pixmosa-cli
# Completion of pixmosa-cli for zsh, written from its table of orders.

_pixmosa-cli() {
  local -a ordenes
)";

// Between single quotes.
std::string Citado(const std::string& text) {
  std::string s = "'";
  for (const char c : text) s += c == '\'' ? "'\\''" : std::string(1, c);
  return s + "'";
}

std::string Accion(const cli::Opcion& option) {
  switch (OfreceDe(option)) {
    case Ofrece::Palabras:
      return "(" + PalabrasDe(option) + ")";
    case Ofrece::Archivos:
      return "_files";
    case Ofrece::Carpetas:
      return "_files -/";
    default:
      return " ";
  }
}

std::string Especificacion(const cli::Opcion& option) {
  const bool value = OfreceDe(option) != Ofrece::SinValor;
  const bool longer = std::string_view(option.nombre).starts_with("--");
  std::string s = option.nombre;
  if (value && longer) s += "=";
  s += "[" + Escapado(cli::Explicacion(option), "[]\\") + "]";
  const std::string what = *option.valor ? Escapado(option.valor, ":\\") : "valor";
  return Citado(value ? s + ":" + what + ":" + Accion(option) : s);
}

std::string CasoDe(const cli::Orden& order) {
  std::string s = "    " + std::string(order.nombre) + ")\n      _arguments \\\n";
  for (const cli::Opcion& o : order.opciones) s += "        " + Especificacion(o) + " \\\n";
  s += "        '--help[explica la orden]'";
  if (*order.operandos) s += " \\\n        " + Citado("*:" + Escapado(order.operandos, ":\\") + ":_files");
  return s + " ;;\n";
}

}  // namespace

std::string CompletarZsh() {
  std::string s = kPrincipio;
  s += "  ordenes=(\n";
  for (const cli::Orden& order : cli::Ordenes())
    s += "    " + Citado(std::string(order.nombre) + ":" + Escapado(order.resumen, ":\\")) + "\n";
  s += "    '--help:explica todas las órdenes'\n    '--version:dice la versión'\n  )\n"
       "  if ((CURRENT == 2)); then\n    _describe orden ordenes\n    return\n  fi\n"
       "  shift words\n  ((CURRENT--))\n  case $words[1] in\n";
  for (const cli::Orden& order : cli::Ordenes()) s += CasoDe(order);
  return s + "  esac\n}\n\n_pixmosa-cli \"$@\"\n";
}

}  // namespace pixmosa::manuales
