// Any answer of the decoding process in pieces of any size, for a picture and for the frames of a film: whole
// pictures within the bounds, or none.
#include <cstring>

#include "platform/decodificador/Respuesta.h"
#include "tests/fuzz/Fuzz.h"

namespace {

// Between these lie only larger blocks of memory.
bool EsGrande(std::uint64_t pixels) {
  return pixels > 1 << 12 && pixels <= static_cast<std::uint64_t>(kMasPixelesAparte);
}

// The pixels that an answer at the front of some bytes announces.
std::uint64_t Anunciados(std::string_view bytes) {
  Cabecera c;
  if (bytes.size() >= sizeof c) std::memcpy(&c, bytes.data(), sizeof c);
  return std::uint64_t{c.ancho} * c.alto;
}

template <typename Respuesta>
void Dar(Respuesta& answer, std::string_view& rest, std::size_t step) {
  while (!rest.empty()) {
    const std::span<std::byte> gap = answer.Hueco();
    const std::size_t n = std::min({gap.size(), step, rest.size()});
    if (n == 0) break;
    std::memcpy(gap.data(), rest.data(), n);
    answer.Llegan(n);
    rest.remove_prefix(n);
  }
}

void Comprobar(const Decodificada& d, std::uint64_t pixels, std::size_t taken) {
  const bool done = ConPixeles(d.razon);
  Check(d.imagen.IsEmpty() != done);
  Check(!done || (d.imagen.PixelCount() == pixels && pixels * 4 + sizeof(Cabecera) <= taken));
}

}  // namespace

void Fuzz(std::string_view bytes) {
  if (bytes.empty()) return;
  const std::size_t step = 1 + static_cast<unsigned char>(bytes[0]) % 64;
  const std::string_view all = bytes.substr(1);
  if (!EsGrande(Anunciados(all))) {
    std::string_view rest = all;
    Respuesta answer;
    Dar(answer, rest, step);
    Comprobar(answer.Tomar(), Anunciados(all), all.size() - rest.size());
  }
  for (std::string_view film = all; film.size() > sizeof(Ritmo);) {
    const std::string_view frame = film.substr(sizeof(Ritmo));
    if (EsGrande(Anunciados(frame))) return;
    RespuestaDeFotograma answer;
    const std::size_t before = film.size();
    Dar(answer, film, step);
    Ritmo pace;
    const Decodificada d = answer.Tomar(pace);
    Comprobar(d, Anunciados(frame), before - film.size());
    if (!ConPixeles(d.razon)) return;
  }
}
