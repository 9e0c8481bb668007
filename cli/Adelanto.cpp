#include "cli/Adelanto.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <system_error>

#include "platform/AtomicFile.h"
#include "platform/PictureCodec.h"
#include "platform/jpeg/JpegRows.h"
#include "platform/jpeg/Segmentos.h"
#include "platform/qt/FallosDeImagen.h"

namespace pixmosa::cli {

bool Adelanto::Empezar(const std::string& file, Extent wanted) {
  if (std::error_code ec; !std::filesystem::is_regular_file(file, ec)) return false;
  std::array<char, 3> begin{};
  std::ifstream(file, std::ios::binary).read(begin.data(), begin.size());
  if (!EsJpeg({begin.data(), begin.size()})) return false;
  const auto read = [file, wanted] {
    Leida picture;
    try {
      picture.imagen = ReadJpegReduced(LeerArchivo(file, kMasBytesDeImagen), [&](Extent source) {
        picture.entera = source;
        return FitsMemory(source) ? wanted : Extent{};
      });
    } catch (const std::exception&) {
      picture.imagen.reset();
    }
    return picture;
  };
  try {
    lectura_ = std::async(std::launch::async, read);
  } catch (const std::system_error&) {
    return false;  // no thread is to be had: it is read when it is asked for
  }
  return true;
}

std::optional<Picture> Adelanto::Tomar(const std::function<Extent(Extent)>& size) {
  if (!lectura_.valid()) return std::nullopt;
  Leida read = lectura_.get();
  if (read.imagen) size(read.entera);
  return read.imagen;
}

}  // namespace pixmosa::cli
