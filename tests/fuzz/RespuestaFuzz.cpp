// Any answer of the decoding process in pieces of any size: a whole picture within the bounds, or none.
#include <cstring>

#include "platform/decodificador/Respuesta.h"
#include "tests/fuzz/Fuzz.h"

void Fuzz(std::string_view bytes) {
  if (bytes.empty()) return;
  const std::size_t step = 1 + static_cast<unsigned char>(bytes[0]) % 64;
  std::string_view rest = bytes.substr(1);
  Cabecera c;
  if (rest.size() >= sizeof c) std::memcpy(&c, rest.data(), sizeof c);
  const std::uint64_t pixels = std::uint64_t{c.ancho} * c.alto;
  // Between these lie only larger blocks of memory.
  if (pixels > 1 << 12 && pixels <= static_cast<std::uint64_t>(kMasPixelesAparte)) return;
  Respuesta answer;
  while (!rest.empty()) {
    const std::span<std::byte> gap = answer.Hueco();
    const std::size_t n = std::min({gap.size(), step, rest.size()});
    if (n == 0) break;
    std::memcpy(gap.data(), rest.data(), n);
    answer.Llegan(n);
    rest.remove_prefix(n);
  }
  const Decodificada d = answer.Tomar();
  const bool done = ConPixeles(d.razon);
  Check(d.imagen.IsEmpty() != done);
  Check(!done || (d.imagen.PixelCount() == pixels && pixels * 4 + sizeof c <= bytes.size()));
}
