#include "cli/Ordenes.h"

#include <algorithm>
#include <array>
#include <string>

#include "platform/Errores.h"

namespace pixmosa::cli {
namespace {

constexpr int kHecho = 0, kFallo = 1, kUso = 2;

// A failure's sentence ends in one period, whoever wrote it.
std::string Frase(std::string s) {
  if (!s.ends_with('.')) s += '.';
  return s;
}

int EjecutarOrden(Consola& consola, const Orden& order, std::span<const std::string> words) {
  const bool help = std::find(words.begin(), std::find(words.begin(), words.end(), "--"), "--help") !=
                    std::find(words.begin(), words.end(), "--");
  if (help) {
    consola.Escribir(AyudaDe(order));
    return kHecho;
  }
  return order.hacer(consola, Argumentos(words, order.opciones));
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
  static const std::vector<Orden> orders = {OrdenAscii(),   OrdenTabla(),      OrdenEfecto(),
                                            OrdenWeb(),     OrdenFotogramas(), OrdenAnim(),
                                            OrdenLetrero(), OrdenFuentes(),    OrdenEstadisticas()};
  return orders;
}

int Ejecutar(Consola& consola, std::span<const std::string> words) {
  try {
    return Despachar(consola, words);
  } catch (const ErrorDeUso& e) {
    consola.Avisar(Frase(e.what()));
    return kUso;
  } catch (const std::exception& e) {
    consola.Avisar(Frase(FraseDe(e)));
    return kFallo;
  }
}

}  // namespace pixmosa::cli
