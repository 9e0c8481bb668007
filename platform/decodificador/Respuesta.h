// What the decoding process answers: sixteen bytes (mark, reason, width, height; whole numbers of the
// machine) and, only for a picture, its pixels. Asked for a film it answers so for each frame, eight bytes
// (milliseconds, how many frames there are) before each; behind the last one comes Razon::Vacia. The receiver
// trusts none of it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "platform/Picture.h"

namespace pixmosa {

constexpr std::int64_t kMasPixelesAparte = 100'000'000;          // of a picture that the process may answer
constexpr std::size_t kMasBytesAparte = std::size_t{256} << 20;  // of a file that it may be given

enum class Razon : std::uint32_t {
  Hecha,        // the pixels follow
  Desconocida,  // no format that the process reads
  Danada,
  Vacia,       // a picture without pixels
  Grande,      // more pixels than kMasPixelesAparte
  SinMemoria,  // more memory than the process may have
  Insegura,    // the system refuses the walls, or the process cannot start there: not the file's fault
  Parcial,     // the pixels follow, but some picture or text in it could not be drawn
  // Only the client says these:
  Tarde,   // it took too long and was ended
  Caida,   // it ended without an answer
  Ausente  // it could not be started
};
constexpr Razon kUltimaRespondida = Razon::Parcial;

constexpr bool ConPixeles(Razon r) {
  return r == Razon::Hecha || r == Razon::Parcial;
}

// The process's status where it cannot start: also the loader's, where a library is missing or has no room.
constexpr int kNoArranca = 127;

struct Cabecera {
  static constexpr std::array<char, 4> kMarca = {'P', 'x', 'D', '1'};
  std::array<char, 4> marca = kMarca;
  std::uint32_t razon = 0, ancho = 0, alto = 0;
};
static_assert(sizeof(Cabecera) == 16);

struct Decodificada {
  Razon razon = Razon::Caida;
  Picture imagen{};    // for Hecha and Parcial
  Extent declarada{};  // for Grande
};

// Collects an answer however it comes in pieces; allocates nothing before the size has passed.
class Respuesta {
 public:
  // Where the next bytes go; empty once the answer is whole or turned out to be none. Throws std::bad_alloc.
  std::span<std::byte> Hueco();

  // The first `n` bytes of Hueco() have come.
  void Llegan(std::size_t n) { hay_ += n; }

  // The whole answer; Caida where it is not whole.
  Decodificada Tomar();

 private:
  bool CabeceraValida() const;

  Cabecera cabecera_;
  Picture imagen_;
  std::size_t hay_ = 0;  // bytes that have come, header included
};

// The word that asks for a film, the process's only argument.
constexpr const char* kPedirPelicula = "pelicula";

struct Ritmo {
  std::uint32_t milisegundos = 0, cuantos = 0;
};
static_assert(sizeof(Ritmo) == 8);

// Collects the answer for one frame in the same way.
class RespuestaDeFotograma {
 public:
  std::span<std::byte> Hueco();
  void Llegan(std::size_t n);

  // The pace is 0, 0 where it is not whole.
  Decodificada Tomar(Ritmo& pace);

 private:
  Ritmo ritmo_;
  std::size_t hay_ = 0;  // bytes of the pace that have come
  Respuesta respuesta_;
};

}  // namespace pixmosa
