#include "platform/decodificador/Respuesta.h"

#include <utility>

namespace pixmosa {

bool Respuesta::CabeceraValida() const {
  if (cabecera_.marca != Cabecera::kMarca || cabecera_.razon > static_cast<std::uint32_t>(kUltimaRespondida))
    return false;
  if (!ConPixeles(static_cast<Razon>(cabecera_.razon))) return true;
  return cabecera_.ancho > 0 && cabecera_.alto > 0 && cabecera_.ancho <= kMasPixelesAparte &&
         cabecera_.alto <= kMasPixelesAparte / cabecera_.ancho;
}

std::span<std::byte> Respuesta::Hueco() {
  if (hay_ < sizeof cabecera_) return std::as_writable_bytes(std::span(&cabecera_, 1)).subspan(hay_);
  if (!CabeceraValida() || !ConPixeles(static_cast<Razon>(cabecera_.razon))) return {};
  if (imagen_.IsEmpty())
    imagen_ = Picture(static_cast<int>(cabecera_.ancho), static_cast<int>(cabecera_.alto));
  return std::as_writable_bytes(std::span(imagen_.Writable(), imagen_.PixelCount()))
      .subspan(hay_ - sizeof cabecera_);
}

Decodificada Respuesta::Tomar() {
  if (hay_ < sizeof cabecera_ || !CabeceraValida() || !Hueco().empty()) return {};
  Decodificada d{static_cast<Razon>(cabecera_.razon), std::move(imagen_), {}};
  if (ConPixeles(d.razon))
    for (std::uint32_t& pixel : std::span(d.imagen.Writable(), d.imagen.PixelCount())) pixel |= 0xFF000000U;
  if (d.razon == Razon::Grande)
    d.declarada = {static_cast<int>(cabecera_.ancho & 0x7FFFFFFF),
                   static_cast<int>(cabecera_.alto & 0x7FFFFFFF)};
  return d;
}

std::span<std::byte> RespuestaDeFotograma::Hueco() {
  if (hay_ < sizeof ritmo_) return std::as_writable_bytes(std::span(&ritmo_, 1)).subspan(hay_);
  return respuesta_.Hueco();
}

void RespuestaDeFotograma::Llegan(std::size_t n) {
  if (hay_ < sizeof ritmo_) {
    hay_ += n;
  } else {
    respuesta_.Llegan(n);
  }
}

Decodificada RespuestaDeFotograma::Tomar(Ritmo& pace) {
  Decodificada d = respuesta_.Tomar();
  pace = d.razon == Razon::Caida ? Ritmo{} : ritmo_;
  return d;
}

}  // namespace pixmosa
