// Any bytes as a zip: it is refused, or its files stay within bounds and are whole or have a fault; what is a
// font among them is rewritten.
#include <cstdint>
#include <stdexcept>

#include "platform/zip/Descomprimir.h"
#include "tests/fuzz/Fuente.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  try {
    std::size_t total = 0;
    for (const auto& file : pixmosa::DescomprimirZip({reinterpret_cast<const char*>(data), size})) {
      total += file.bytes.size();
      if (!file.fallo.empty() && !file.bytes.empty()) std::abort();
      if (pixmosa::EmpiezaComoFuente(file.bytes)) RewriteAny(file.bytes);
    }
    if (total > std::size_t{64} << 20) std::abort();
  } catch (const ErrorDelPrograma&) {
  }
  return 0;
}
