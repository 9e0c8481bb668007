// Writing an animated picture, frame by frame: what the writers of films ask of the platform.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string_view>

#include "platform/Picture.h"

namespace pixmosa {

// Where the bytes of a file go as they are made; what it throws passes through.
using Salida = std::function<void(std::string_view)>;

// Plays without end. Every frame covers a part of the screen, what lies around it stays.
class CodificadorDeAnimacion {
 public:
  virtual ~CodificadorDeAnimacion() = default;

  // A frame of part.width x part.height numbers of the screen's own colours, its first pixel at (left, top);
  // shown for `hundredths` of a second, at most 65535.
  virtual void Poner(int left, int top, Extent part, std::span<const std::uint8_t> numbers,
                     int hundredths) = 0;

  // The same from a picture, in the 256 colours that suit it best.
  virtual void Poner(int left, int top, const Picture& picture, int hundredths) = 0;

  virtual void Acabar() = 0;
};

// The screen (sides 1..65535), its own colours (2..256) and where the bytes go.
using AbrirCodificador = std::function<std::unique_ptr<CodificadorDeAnimacion>(
    Extent screen, std::span<const Colour> colours, Salida)>;

}  // namespace pixmosa
