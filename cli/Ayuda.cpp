#include <climits>
#include <cstdint>

#include "cli/Orden.h"
#include "platform/CodePage.h"

namespace pixmosa::cli {
namespace {

constexpr std::size_t kSangria = 28;

std::size_t Anchura(std::string_view utf8) {
  std::size_t n = 0;
  for (; !utf8.empty(); ++n) NextUtf8(utf8);
  return n;
}

// A head and its explanation in two columns; a long head stands on a line of its own.
std::string Fila(const std::string& head, const std::string& text) {
  const std::size_t used = Anchura(head) + 2;
  const std::string gap =
      used + 2 > kSangria ? "\n" + std::string(kSangria, ' ') : std::string(kSangria - used, ' ');
  return "  " + head + gap + text + "\n";
}

}  // namespace

std::string Encabezado(const Opcion& o) {
  std::string s = o.nombre;
  if (o.tipo == Tipo::Eleccion) {
    s += ' ';
    for (const char* e : o.elecciones) s += (s.ends_with(' ') ? "" : "|") + std::string(e);
  } else if (o.tipo != Tipo::Interruptor) {
    s += std::string(" ") + o.valor;
  }
  return s;
}

std::string Explicacion(const Opcion& o) {
  if (o.tipo != Tipo::Entero || o.maximo == INT_MAX) return o.ayuda;
  return std::string(o.ayuda) + " (de " + std::to_string(o.minimo) + " a " + std::to_string(o.maximo) + ")";
}

std::string AyudaDe(const Orden& order) {
  std::string s = "Uso: pixmosa-cli " + std::string(order.nombre);
  if (*order.operandos) s += std::string(" ") + order.operandos;
  if (!order.opciones.empty()) s += " [OPCIONES]";
  s += "\n\n" + std::string(order.resumen) + "\n";
  if (!order.opciones.empty()) s += "\nOpciones:\n";
  for (const Opcion& o : order.opciones) s += Fila(Encabezado(o), Explicacion(o));
  if (order.masAyuda) s += "\n" + order.masAyuda();
  return s + "\nEjemplo:\n  " + order.ejemplo + "\n";
}

std::string AyudaGeneral() {
  std::string s =
      "Uso: pixmosa-cli ORDEN [OPCIONES]\n\n"
      "Convierte imágenes y textos en dibujos hechos con caracteres, sin abrir ninguna ventana.\n\n"
      "Órdenes:\n";
  for (const Orden& order : Ordenes()) s += Fila(order.nombre, order.resumen);
  s += "\nEjemplos:\n";
  for (const Orden& order : Ordenes()) s += "  " + std::string(order.ejemplo) + "\n";
  return s +
         "\nLas opciones pueden ir antes o después de los operandos, como \"--nombre valor\" o "
         "\"--nombre=valor\".\n"
         "Un operando \"-\" lee la entrada estándar. Un archivo dado con -o se escribe entero o no se toca.\n"
         "\"pixmosa-cli ORDEN --help\" explica las opciones de una orden; \"--version\" dice la versión.\n"
         "Resultado: 0 hecho, 1 no se ha podido hacer, 2 uso incorrecto.\n";
}

}  // namespace pixmosa::cli
