// Any answer of the decoding process in pieces of any size: a whole picture within the bounds, or none.
#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "platform/decodificador/Respuesta.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace pixmosa;
  if (size < 1) return 0;
  const std::size_t step = 1 + data[0] % 64;
  std::span<const std::uint8_t> rest(data + 1, size - 1);
  Cabecera c;
  if (rest.size() >= sizeof c) std::memcpy(&c, rest.data(), sizeof c);
  const std::uint64_t pixels = std::uint64_t{c.ancho} * c.alto;
  // Between these lie only larger blocks of memory.
  if (pixels > 1 << 12 && pixels <= static_cast<std::uint64_t>(kMasPixelesAparte)) return 0;
  Respuesta answer;
  while (!rest.empty()) {
    const std::span<std::byte> gap = answer.Hueco();
    if (gap.empty()) break;
    const std::size_t n = std::min({gap.size(), step, rest.size()});
    std::memcpy(gap.data(), rest.data(), n);
    answer.Llegan(n);
    rest = rest.subspan(n);
  }
  const Decodificada d = answer.Tomar();
  if (d.imagen.IsEmpty() != (d.razon != Razon::Hecha)) std::abort();
  if (d.razon == Razon::Hecha && (d.imagen.PixelCount() != pixels || pixels * 4 + sizeof c > size))
    std::abort();
  return 0;
}
