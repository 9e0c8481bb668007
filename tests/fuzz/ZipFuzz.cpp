// Any bytes as a zip: it is refused, or its files stay within bounds and are whole or have a fault; what is a
// font among them is rewritten.
#include "platform/zip/Descomprimir.h"
#include "tests/fuzz/Fuente.h"

void Fuzz(std::string_view bytes) try {
  std::size_t total = 0;
  for (const auto& file : DescomprimirZip(bytes)) {
    total += file.bytes.size();
    Check(file.fallo.empty() || file.bytes.empty());
    if (EmpiezaComoFuente(file.bytes)) RewriteAny(file.bytes);
  }
  Check(total <= std::size_t{64} << 20);
} catch (const ErrorDelPrograma&) {
}
