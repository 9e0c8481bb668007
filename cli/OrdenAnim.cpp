#include <algorithm>
#include <filesystem>
#include <memory>

#include "cli/Destino.h"
#include "cli/LeerGif.h"
#include "cli/Lista.h"
#include "cli/OpcionesDeTexto.h"
#include "cli/Ordenes.h"
#include "platform/Palabras.h"
#include "programa/Animacion.h"

namespace pixmosa::cli {
namespace {

// The pictures of the operand: a folder, or a GIF, whose own picture is the one that stands before its
// frames.
Serie SerieDe(Programa& p, Consola& consola, const std::string& operand) {
  if (std::error_code ec; std::filesystem::is_directory(operand, ec)) return SerieDeCarpeta(p, operand);
  const auto gif = std::make_shared<OrigenGif>(AbrirGif(consola, operand));
  return SerieDeOrigen(p, gif, operand);
}

// The frames of a series with these numbers, from 0.
Serie Elegidos(const Serie& all, const std::vector<std::size_t>& numbers) {
  return {numbers.size(),
          [all, numbers](std::size_t k) { return all.leer(numbers[k]); },
          {},
          all.cadaUna,
          [all, numbers](std::size_t k) { return all.nombreDe(numbers[k]); }};
}

// The chosen frames (0-based), ascending; all without the option.
std::vector<std::size_t> Numeros(const Argumentos& arguments, std::size_t count) {
  std::vector<std::size_t> chosen;
  const auto text = arguments.Texto("--fotogramas");
  if (!text) {
    for (std::size_t i = 0; i < count; ++i) chosen.push_back(i);
    return chosen;
  }
  for (const std::string& word : Separar(*text)) {
    const auto n = EnteroDeTexto(word, 1, static_cast<int>(count));
    if (!n)
      throw ErrorDeUso("la opción --fotogramas espera números de 1 a " + std::to_string(count) + ", no \"" +
                       word + "\"");
    chosen.push_back(static_cast<std::size_t>(*n) - 1);
  }
  std::sort(chosen.begin(), chosen.end());
  chosen.erase(std::unique(chosen.begin(), chosen.end()), chosen.end());
  return chosen;
}

int Hacer(Consola& consola, const Argumentos& arguments) {
  arguments.ExigirOperandos(1, 1, "el GIF o la carpeta");
  const std::string operand = arguments.Operandos()[0], file = arguments.Exigir("-o");
  Programa p = PrepararPrograma(consola, arguments);
  ExigirCaracteres(p);
  const Serie all = SerieDe(p, consola, operand);
  if (all.cuantos == 0) throw ErrorDeTrabajo("No hay fotogramas en \"" + operand + "\".");
  const Serie chosen = Elegidos(all, Numeros(arguments, all.cuantos));
  if (const std::string excess = Exceso(chosen); !excess.empty())
    throw ErrorDeTrabajo("El GIF \"" + operand + "\" es demasiado grande: " + excess +
                         ". La opción --fotogramas elige menos.");
  std::size_t unreadable = 0;
  const bool written = EscribirAnimacion(p, chosen, file, [&](std::size_t k, const std::string& failure) {
    consola.Progreso("Fotograma", k, chosen.cuantos);
    if (!failure.empty()) {
      ++unreadable;
      consola.Avisar(failure);
    }
    return unreadable < chosen.cuantos;
  });
  consola.Progreso("Fotograma", chosen.cuantos, chosen.cuantos);
  if (!written) throw ErrorDeTrabajo("No se ha podido leer ningún fotograma de \"" + operand + "\".");
  return 0;
}

}  // namespace

Orden OrdenAnim() {
  return {"anim",
          "GIF|CARPETA -o PAGINA.html",
          "Escribe una página HTML que muestra uno tras otro los fotogramas convertidos en texto.",
          "pixmosa-cli anim baile.gif -o baile.html --columnas 80",
          Juntar({{"-o", Tipo::Texto, "PAGINA.html", "la página que se escribe"},
                  OpcionDeSobrescribir(),
                  {"--metodo",
                   Tipo::Eleccion,
                   "",
                   "el método; si falta, grises",
                   0,
                   0,
                   {kMetodos[kGrayscale], kMetodos[kTono], kMetodos[kFormas]}},
                  {"--fotogramas", Tipo::Texto, "LISTA", "los que se muestran, como 2,5,7; si falta, todos"}},
                 OpcionesDeTexto()),
          Hacer};
}

}  // namespace pixmosa::cli
