#include "programa/CargarImagen.h"

#include "platform/CodePage.h"

namespace pixmosa {
namespace {

bool TerminaEnGif(const std::filesystem::path& file) {
  return LowerCase(file.filename().string()).ends_with("gif");
}

// Whether the GIF goes on to its end; what cannot be read is no matter here.
bool EstaEntero(const std::filesystem::path& file) {
  try {
    OrigenGif gif = OrigenGif::DeArchivo(file);
    return GifCompleto(gif);
  } catch (const ErrorDelPrograma&) {
    return true;
  }
}

}  // namespace

std::string CargarImagen(Programa& p, const std::filesystem::path& file) {
  ImagenLeida read;
  read.imagen = p.codec.Read(file, &read.aviso);
  return CargarLeida(p, file, std::move(read));
}

std::string CargarLeida(Programa& p, const std::filesystem::path& file, ImagenLeida read) {
  const bool gif = TerminaEnGif(file), frames = gif && !p.basGif.carpeta.empty();
  if (frames) CortarGif(p.basGif, file);
  p.imagen.Cargar(std::move(read.imagen));
  p.archivo = file;
  p.animArtDisponible = frames && p.basGif.AnimArtDisponible();
  p.animArt = p.animArt && p.animArtDisponible;
  if (gif && !EstaEntero(file)) return "El GIF está incompleto: se muestra lo que hay de él.";
  if (frames && !p.basGif.PorQueNo.empty()) return "No se puede animar: " + p.basGif.PorQueNo;
  return read.aviso;
}

void PonerImagen(Programa& p, Picture picture) {
  p.imagen.Cargar(std::move(picture));
  p.archivo.clear();
  p.animArtDisponible = p.animArt = false;
}

}  // namespace pixmosa
