#include "programa/CargarImagen.h"

#include "platform/CodePage.h"

namespace pixmosa {
namespace {

bool TerminaEnGif(const std::filesystem::path& file) {
  return LowerCase(file.filename().string()).ends_with("gif");
}

}  // namespace

void CargarImagen(Programa& p, const std::filesystem::path& file) {
  Picture loaded = p.codec.Read(file);
  const bool frames = TerminaEnGif(file) && !p.basGif.carpeta.empty();
  if (frames) CortarGif(p.basGif, file);
  p.imagen.Cargar(std::move(loaded));
  p.archivo = file;
  p.animArtDisponible = frames && p.basGif.AnimArtDisponible();
  p.animArt = p.animArt && p.animArtDisponible;
}

}  // namespace pixmosa
