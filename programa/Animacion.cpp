#include "programa/Animacion.h"

#include "platform/CodePage.h"
#include "programa/Generar.h"
#include "web/AnimArt.h"

namespace pixmosa {
namespace {

constexpr std::int64_t kMasPixeles = 1'000'000'000;  // in all the frames
constexpr std::size_t kPrincipio = 1024;             // bytes of a file that tell its picture's size

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
  } catch (const ErrorDelPrograma& e) {
    failure = e.what();  // the frame before stays, and with it its text
  }
  if (!HayImagen(p)) return failure;
  try {
    Generar(p, p.ajustes.conversion);
  } catch (const TextoExcesivo& e) {
    throw TextoExcesivo(e.columnas, e.filas, frames.nombreDe(k));
  }
  return failure;
}

// The text in the code page, where what that lacks stands as a character reference of the page.
std::string ConReferencias(std::string_view utf8) {
  std::string bytes;
  while (!utf8.empty()) {
    const char32_t c = NextUtf8(utf8);
    if (const auto code = ByteOfUnicode(c)) {
      bytes += static_cast<char>(*code);
    } else {
      bytes += "&#" + std::to_string(static_cast<std::uint32_t>(c)) + ";";
    }
  }
  return bytes;
}

}  // namespace

std::string Exceso(const Serie& frames) {
  const auto count = static_cast<std::int64_t>(frames.cuantos);
  const Extent size = frames.cadaUna;
  if (count == 0 || std::int64_t{size.width} * size.height <= kMasPixeles / count) return {};
  return std::to_string(count) + " fotogramas de " + std::to_string(size.width) + " x " +
         std::to_string(size.height) + " píxeles";
}

Serie SerieDeGif(const Programa& p) {
  std::vector<std::filesystem::path> files;
  for (const std::string& number : p.basGif.Seleccionados)
    files.push_back(ArchivoDeFotograma(p.basGif.carpeta, number));
  Extent each;
  try {
    if (!files.empty()) each = p.codec.Size(OrigenGif::DeArchivo(files[0]).Leer(0, kPrincipio));
  } catch (const FileError&) {
    // Reading the frames says so, one by one.
  }
  Serie frames = SerieDeArchivos(p, std::move(files), NombreDeImagen(p));
  frames.cadaUna = each;
  return frames;
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
    std::string withReferences;
    EscribirAnimArt(file, frames.cuantos, BytesOfUtf8(p.ajustes.font.name),
                    [&](std::size_t k) -> std::string& {
                      const std::string failure = PonerFotograma(p, frames, k);
                      if (!seguir(k, failure)) throw Cancelada();
                      if (p.basAscii.ProducedUtf8.empty()) return p.basAscii.ProducedText;
                      return withReferences = ConReferencias(p.basAscii.ProducedUtf8);
                    });
  } catch (const Cancelada&) {
    return false;
  }
  return true;
}

}  // namespace pixmosa
