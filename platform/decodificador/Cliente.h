// Runs the decoding process, which reads the kinds of picture whose readers are not to be trusted. Whatever
// happens in it - a fall, an endless loop, a flood of memory - ends in an answer here.
#pragma once

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

#include "platform/decodificador/Respuesta.h"

namespace pixmosa {

// The program: beside the running executable, or where an installation puts it (../libexec/pixmosa).
std::filesystem::path ProgramaDecodificador();

// The picture in a file's bytes, upright and on white, as `programa` reads it. `mientras`, where there is
// one, is called about every 15 ms; what it throws passes through. The process is gone when this returns.
// Throws std::bad_alloc.
Decodificada Decodificar(const std::filesystem::path& programa, std::string_view bytes,
                         const std::function<void()>& mientras = {},
                         std::chrono::milliseconds plazo = std::chrono::seconds(15));

// The frames of a film as `programa` reads them, each asked for when it is wanted; the process lives as long.
class PeliculaAparte {
 public:
  // `plazo` is for each frame.
  PeliculaAparte(const std::filesystem::path& programa, std::string bytes,
                 std::function<void()> mientras = {},
                 std::chrono::milliseconds plazo = std::chrono::seconds(15));
  ~PeliculaAparte();
  PeliculaAparte(const PeliculaAparte&) = delete;
  PeliculaAparte& operator=(const PeliculaAparte&) = delete;

  // The next frame, upright and on white; Vacia behind the last. After any other reason but Hecha and Parcial
  // nothing more comes. Throws std::bad_alloc.
  Decodificada Siguiente();

  // Of the frame that came last: its delay, and how many there are, as the process says.
  std::uint32_t Milisegundos() const { return milisegundos_; }
  std::uint32_t Cuantos() const { return cuantos_; }

 private:
  struct Proceso;
  std::string bytes_;
  std::string_view resto_;
  std::function<void()> mientras_;
  std::chrono::milliseconds plazo_;
  std::unique_ptr<Proceso> proceso_;
  std::uint32_t milisegundos_ = 0, cuantos_ = 0;
};

}  // namespace pixmosa
