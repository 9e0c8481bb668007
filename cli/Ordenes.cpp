#include "cli/Ordenes.h"

#include <algorithm>
#include <array>
#include <string>

#include "cli/Destino.h"
#include "cli/Frases.h"
#include "platform/Errores.h"

namespace pixmosa::cli {
namespace {

constexpr int kHecho = 0, kFallo = 1, kUso = 2;

// Whether the file of -o could be the operand's.
bool Sustituye(const Orden& order) {
  return std::any_of(order.opciones.begin(), order.opciones.end(),
                     [](const Opcion& o) { return std::string_view(o.nombre) == kSobrescribir; });
}

int EjecutarOrden(Consola& consola, const Orden& order, std::span<const std::string> words) {
  const bool help = std::find(words.begin(), std::find(words.begin(), words.end(), "--"), "--help") !=
                    std::find(words.begin(), words.end(), "--");
  if (help) {
    consola.Escribir(AyudaDe(order));
    return kHecho;
  }
  const Argumentos arguments(words, order.opciones);
  if (const auto file = arguments.Texto("-o"); file && Sustituye(order)) ExigirOtroArchivo(arguments, *file);
  if (arguments.Operandos().empty()) return order.hacer(consola, arguments);
  return Nombrando(arguments.Operandos()[0], [&] { return order.hacer(consola, arguments); });
}

int Despachar(Consola& consola, std::span<const std::string> words) {
  if (words.empty()) throw ErrorDeUso("falta la orden; \"pixmosa-cli --help\" las explica todas");
  const std::string& name = words[0];
  if (name == "--help") {
    consola.Escribir(AyudaGeneral());
    return kHecho;
  }
  if (name == "--version") {
    consola.Escribir("pixmosa-cli " PIXMOSA_VERSION "\n");
    return kHecho;
  }
  for (const Orden& order : Ordenes())
    if (name == order.nombre) return EjecutarOrden(consola, order, words.subspan(1));
  throw ErrorDeUso("no existe la orden \"" + name + "\"; \"pixmosa-cli --help\" las explica todas");
}

}  // namespace

std::span<const Orden> Ordenes() {
  static const std::vector<Orden> orders = {
      OrdenAscii(),    OrdenTabla(),   OrdenEfecto(),  OrdenWeb(),          OrdenFotogramas(), OrdenAnim(),
      OrdenPelicula(), OrdenLetrero(), OrdenFuentes(), OrdenEstadisticas(), OrdenComparar()};
  return orders;
}

int Ejecutar(Consola& consola, std::span<const std::string> words) {
  try {
    return Despachar(consola, words);
  } catch (const ErrorDeUso& e) {
    consola.Avisar(e.what());
    return kUso;
  } catch (const std::exception& e) {
    consola.Avisar(FraseDe(e));
    return kFallo;
  }
}

}  // namespace pixmosa::cli
