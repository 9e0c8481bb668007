#include "platform/qt/FallosDeImagen.h"

#include <algorithm>
#include <unistd.h>

namespace pixmosa {

void FailToRead(const std::string& name, const std::string& why) {
  throw PictureError("No se ha podido leer la imagen \"" + name + "\": " + why + ".");
}

void FailMemory(const std::string& name) {
  FailToRead(name, "no hay memoria suficiente para ella");
}

void FailSize(const std::string& name, Extent size) {
  FailToRead(name, "sus " + std::to_string(size.width) + " x " + std::to_string(size.height) +
                       " píxeles no caben en la memoria");
}

bool FitsMemory(Extent size) {
  const std::int64_t memory = std::int64_t{sysconf(_SC_PHYS_PAGES)} * sysconf(_SC_PAGESIZE);
  return Pixels(size) <= std::min(memory / 4 / 4, kMasPixelesDeImagen);
}

void CheckSize(const std::string& name, Extent size) {
  if (!FitsMemory(size)) FailSize(name, size);
}

Picture PictureOfAnswer(Decodificada d, const std::string& name, std::string* aviso) {
  switch (d.razon) {
    case Razon::Parcial:
      if (aviso) *aviso = "No se ha podido dibujar todo lo que contiene la imagen \"" + name + "\".";
      [[fallthrough]];
    case Razon::Hecha:
      CheckSize(name, d.imagen.Size());
      return std::move(d.imagen);
    case Razon::Desconocida:
      FailToRead(name, "no es una imagen de un formato conocido");
    case Razon::Danada:
      FailToRead(name, "el archivo está dañado o incompleto");
    case Razon::Vacia:
      FailToRead(name, "la imagen está vacía");
    case Razon::Grande:
      FailSize(name, d.declarada);
    case Razon::SinMemoria:
      FailMemory(name);
    case Razon::Insegura:
      FailToRead(name, "este sistema no permite leer con seguridad las imágenes de su tipo");
    case Razon::Tarde:
      FailToRead(name, "leerla lleva demasiado tiempo");
    case Razon::Caida:
      FailToRead(name, "el archivo está dañado y su lector ha fallado");
    case Razon::Ausente:
      break;
  }
  FailToRead(name, "falta el programa pixmosa-decodificador, que lee las imágenes de su tipo");
}

}  // namespace pixmosa
