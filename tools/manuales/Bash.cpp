#include "tools/manuales/Manuales.h"
#include "tools/manuales/Valores.h"

namespace pixmosa::manuales {
namespace {

// The current word in $cur and the one before in $prev, also where "--name=value" comes in three words.
constexpr char kPrincipio[] = R"(# Completion of pixmosa-cli for bash, written from its table of orders.

_pixmosa_cli() {
  local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]} opciones= valor=archivos
  if [[ $cur == "=" ]]; then
    cur=
  elif [[ $prev == "=" && $COMP_CWORD -gt 2 ]]; then
    prev=${COMP_WORDS[COMP_CWORD - 2]}
  fi
  COMPREPLY=()
)";

constexpr char kFinal[] = R"(  if [[ $valor == archivos && $cur == -* ]]; then
    valor="palabras $opciones --help"
  fi
  case $valor in
    archivos) compopt -o filenames 2>/dev/null; mapfile -t COMPREPLY < <(compgen -f -- "$cur") ;;
    carpetas) compopt -o filenames 2>/dev/null; mapfile -t COMPREPLY < <(compgen -d -- "$cur") ;;
    palabras*) mapfile -t COMPREPLY < <(compgen -W "${valor#palabras }" -- "$cur") ;;
  esac
}
complete -F _pixmosa_cli pixmosa-cli
)";

const char* Valor(Ofrece what) {
  switch (what) {
    case Ofrece::Palabras:
      return "palabras ";
    case Ofrece::Archivos:
      return "archivos";
    case Ofrece::Carpetas:
      return "carpetas";
    default:
      return "nada";
  }
}

std::string CasoDe(const cli::Orden& order) {
  std::string names, values;
  for (const cli::Opcion& o : order.opciones) {
    names += (names.empty() ? "" : " ") + std::string(o.nombre);
    const Ofrece what = OfreceDe(o);
    if (what == Ofrece::SinValor) continue;
    const std::string words = what == Ofrece::Palabras ? PalabrasDe(o) : "";
    values += "        " + std::string(o.nombre) + ") valor=\"" + Valor(what) + words + "\" ;;\n";
  }
  std::string s = "    " + std::string(order.nombre) + ")\n      opciones=\"" + names + "\"\n";
  if (!values.empty()) s += "      case $prev in\n" + values + "      esac\n";
  return s + "      ;;\n";
}

}  // namespace

std::string CompletarBash() {
  std::string first = "--help --version", cases;
  for (const cli::Orden& order : cli::Ordenes()) {
    first = std::string(order.nombre) + " " + first;
    cases += CasoDe(order);
  }
  return kPrincipio + ("  if ((COMP_CWORD == 1)); then\n    valor=\"palabras " + first + "\"\n  else\n") +
         "    case ${COMP_WORDS[1]} in\n" + cases + "    *) valor=nada ;;\n    esac\n  fi\n" + kFinal;
}

}  // namespace pixmosa::manuales
