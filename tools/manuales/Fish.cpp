#include "tools/manuales/Manuales.h"
#include "tools/manuales/Valores.h"

namespace pixmosa::manuales {
namespace {

constexpr char kCompletar[] = "complete -c pixmosa-cli";

std::string Citado(const std::string& text) {
  return "'" + Escapado(text, "'\\") + "'";
}

std::string Con(const char* order) {
  return std::string(kCompletar) + " -n '__fish_seen_subcommand_from " + order + "'";
}

std::string Valor(const cli::Opcion& option) {
  switch (OfreceDe(option)) {
    case Ofrece::SinValor:
      return "";
    case Ofrece::Palabras:
      return " -x -a " + Citado(PalabrasDe(option));
    case Ofrece::Archivos:
      return " -r -F";
    case Ofrece::Carpetas:
      return " -x -a '(__fish_complete_directories)'";
    default:
      return " -x";
  }
}

std::string LineaDe(const cli::Orden& order, const cli::Opcion& option) {
  const std::string_view name = option.nombre;
  const bool longer = name.starts_with("--");
  return Con(order.nombre) + (longer ? " -l " : " -s ") + std::string(name.substr(longer ? 2 : 1)) +
         Valor(option) + " -d " + Citado(cli::Explicacion(option)) + "\n";
}

}  // namespace

std::string CompletarFish() {
  std::string s = "# Completion of pixmosa-cli for fish, written from its table of orders.\n" +
                  std::string(kCompletar) + " -f\n";
  const std::string first = std::string(kCompletar) + " -n __fish_use_subcommand";
  s += first + " -l help -d 'explica todas las órdenes'\n" + first + " -l version -d 'dice la versión'\n";
  for (const cli::Orden& order : cli::Ordenes()) {
    s += first + " -a " + order.nombre + " -d " + Citado(order.resumen) + "\n";
    s += Con(order.nombre) + " -l help -d 'explica la orden'\n";
    if (*order.operandos) s += Con(order.nombre) + " -F\n";
    for (const cli::Opcion& o : order.opciones) s += LineaDe(order, o);
  }
  return s;
}

}  // namespace pixmosa::manuales
