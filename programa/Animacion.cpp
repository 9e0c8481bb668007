#include "programa/Animacion.h"

#include "platform/CodePage.h"
#include "web/AnimArt.h"

namespace pixmosa {
namespace {

// Ends the writing of a page from inside; never leaves this file.
struct Cancelada {};

Serie SerieDeArchivos(const Programa& p, std::vector<std::filesystem::path> files, std::string name) {
  const auto shared = std::make_shared<const std::vector<std::filesystem::path>>(std::move(files));
  return {shared->size(),
          [&codec = p.codec, shared](std::size_t k) { return codec.Read((*shared)[k]); },
          std::move(name),
          {},
          [shared](std::size_t k) { return (*shared)[k].string(); }};
}

// The frame becomes the working picture; why it could not, or nothing.
std::string PonerFotograma(Programa& p, const Serie& frames, std::size_t k) {
  std::string failure;
  try {
    p.imagen.Asignar(frames.leer(k));
  } catch (const std::exception& e) {
    failure = FraseDe(e);  // the frame before stays, and with it its text
  }
  if (!HayImagen(p)) return failure;
  try {
    GenerateAscii(p.basAscii, p.ajustes, p.imagen.picMain, kGrayscale);
  } catch (const TextoExcesivo& e) {
    throw TextoExcesivo(e.columnas, e.filas, frames.nombreDe(k));
  }
  return failure;
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

Serie SerieDeOrigen(Programa& p, const std::shared_ptr<OrigenGif>& gif, const std::string& name) {
  const auto cut = std::make_shared<const GifCut>(CutGif(*gif));
  try {
    p.imagen.Asignar(p.codec.ReadBytes(gif->Todo(), name));
  } catch (const PictureError&) {
    // Its frames may still be read one by one.
  }
  const auto called = [name](std::size_t k) { return name + ", fotograma " + NumeroDeFotograma(k + 1); };
  return {cut->positions.size(),
          [&codec = p.codec, gif, cut, called](std::size_t k) {
            return codec.ReadBytes(FrameFile(*gif, *cut, k), called(k));
          },
          {},
          p.codec.Size(gif->Leer(0)),
          called};
}

bool EscribirAnimacion(Programa& p, const Serie& frames, const std::filesystem::path& file,
                       const Seguir& seguir) {
  try {
    EscribirAnimArt(file, frames.cuantos, BytesOfUtf8(p.ajustes.font.name),
                    [&](std::size_t k) -> std::string& {
                      const std::string failure = PonerFotograma(p, frames, k);
                      if (!seguir(k, failure)) throw Cancelada();
                      return p.basAscii.ProducedText;
                    });
  } catch (const Cancelada&) {
    return false;
  }
  return true;
}

}  // namespace pixmosa
