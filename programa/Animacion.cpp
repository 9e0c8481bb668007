#include "programa/Animacion.h"

#include "platform/CodePage.h"
#include "web/AnimArt.h"

namespace pixmosa {
namespace {

// Ends the writing of a page from inside; never leaves this file.
struct Cancelada {};

Serie SerieDeArchivos(const Programa& p, std::vector<std::filesystem::path> files, std::string name) {
  const std::size_t count = files.size();
  return {count, [&codec = p.codec, files = std::move(files)](std::size_t k) { return codec.Read(files[k]); },
          std::move(name)};
}

void PonerFotograma(Programa& p, const Serie& frames, std::size_t k) {
  try {
    p.imagen.Asignar(frames.leer(k));
  } catch (const PictureError&) {
    // The frame before stays, and with it its text.
  }
  if (HayImagen(p)) GenerateAscii(p.basAscii, p.ajustes, p.imagen.picMain, kGrayscale);
}

}  // namespace

Serie SerieDeGif(const Programa& p) {
  std::vector<std::filesystem::path> files;
  for (const std::string& number : p.basGif.Seleccionados)
    files.push_back(ArchivoDeFotograma(p.basGif.carpeta, number));
  return SerieDeArchivos(p, std::move(files), NombreDeImagen(p));
}

Serie SerieDeCarpeta(const Programa& p, const std::filesystem::path& folder) {
  return SerieDeArchivos(p, ImagenesDeCarpeta(folder), folder.filename().string());
}

bool EscribirAnimacion(Programa& p, const Serie& frames, const std::filesystem::path& file,
                       const std::function<bool(std::size_t)>& seguir) {
  try {
    EscribirAnimArt(file, frames.cuantos, BytesOfUtf8(p.ajustes.font.name), [&](std::size_t k) {
      PonerFotograma(p, frames, k);
      if (!seguir(k)) throw Cancelada();
      return EscaparTexto(p.basAscii.ProducedText);
    });
  } catch (const Cancelada&) {
    return false;
  }
  // The produced text is left as the page holds it.
  p.basAscii.ProducedText = EscaparTexto(p.basAscii.ProducedText);
  return true;
}

}  // namespace pixmosa
