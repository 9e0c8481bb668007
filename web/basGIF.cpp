#include "web/basGIF.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/PrivateFolder.h"

namespace pixmosa {
namespace {

namespace fs = std::filesystem;

constexpr char kIntroducer = 0x21, kGraphicControl = static_cast<char>(0xF9);
constexpr std::size_t kMostFrames = 100'000;
// A real header is a few hundred bytes, so copies of it are a small part of all; what goes far beyond the
// GIF's own size is a file made to fill the disk.
constexpr std::size_t kMostForHeaders = 64 << 20;
constexpr std::array<std::string_view, 4> kEndings = {".bmp", ".gif", ".jpg", ".jpeg"};

std::string Lower(const fs::path& p) {
  return LowerCase(BytesOfUtf8(p.string()));
}

}  // namespace

std::string_view GifCut::Frame(std::string_view gif, std::size_t frame) const {
  const std::size_t begin = positions[frame] - 1;
  const std::size_t end = (frame + 1 < positions.size() ? positions[frame + 1] : length) - 1;
  return gif.substr(begin, end - begin);
}

std::string GifCut::FrameFile(std::string_view gif, std::size_t frame) const {
  std::string file(gif.substr(0, HeaderLength()));
  return file += Frame(gif, frame);
}

GifCut CutGif(std::string_view gif) {
  GifCut cut;
  cut.length = gif.size();
  for (std::size_t at = gif.find(kIntroducer); at != std::string_view::npos && at + 1 < gif.size();
       at = gif.find(kIntroducer, at + 1))
    if (gif[at + 1] == kGraphicControl) cut.positions.push_back(at + 1);
  const std::size_t n = cut.positions.size();
  if (n > kMostFrames || (n > 0 && cut.HeaderLength() > kMostForHeaders / n + gif.size() / n))
    throw FileError("El GIF tiene demasiados fotogramas: " + std::to_string(n) + ".");
  return cut;
}

std::string NumeroDeFotograma(std::size_t number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

fs::path ArchivoDeFotograma(const fs::path& folder, const std::string& number) {
  return folder / ("Fotograma " + number + ".bmp");
}

void EscribirFotogramas(const GifCut& cut, std::string_view gif, const fs::path& folder) {
  for (std::size_t i = 0; i < cut.positions.size(); ++i) {
    AtomicFile frame(ArchivoDeFotograma(folder, NumeroDeFotograma(i + 1)));
    frame.Write(gif.substr(0, cut.HeaderLength()));
    frame.Write(cut.Frame(gif, i));
    frame.Commit();
  }
}

void CortarGif(BasGif& gif, const fs::path& file) {
  const std::string bytes = LeerArchivo(file);
  const GifCut cut = CutGif(bytes);
  // The new frames are written beside the former ones and take their place only when all are there.
  const fs::path beside = gif.carpeta / "nuevos";
  std::error_code ec;
  fs::remove_all(beside, ec);
  fs::create_directory(beside, ec);
  try {
    EscribirFotogramas(cut, bytes, beside);
  } catch (const FileError&) {
    fs::remove_all(beside, ec);
    throw;
  }
  BorrarBmp(gif.carpeta);
  for (std::size_t i = 1; i <= cut.positions.size(); ++i) {
    const std::string number = NumeroDeFotograma(i);
    fs::rename(ArchivoDeFotograma(beside, number), ArchivoDeFotograma(gif.carpeta, number), ec);
  }
  fs::remove_all(beside, ec);
  gif.FramesList = cut.positions;
  SeleccionarTodos(gif);
}

void SeleccionarTodos(BasGif& gif) {
  gif.Seleccionados.clear();
  for (std::size_t i = 1; i <= gif.FramesList.size(); ++i) gif.Seleccionados.push_back(NumeroDeFotograma(i));
}

std::vector<fs::path> ImagenesDeCarpeta(const fs::path& folder) {
  std::vector<fs::path> files;
  std::error_code ec;
  for (fs::directory_iterator at(folder, ec), end; !ec && at != end; at.increment(ec)) {
    const std::string ending = Lower(at->path().extension());
    if (std::find(kEndings.begin(), kEndings.end(), ending) != kEndings.end() && !at->is_directory(ec))
      files.push_back(at->path());
  }
  std::sort(files.begin(), files.end(), [](const fs::path& a, const fs::path& b) {
    const std::string x = Lower(a.filename()), y = Lower(b.filename());
    return x != y ? x < y : a < b;
  });
  return files;
}

}  // namespace pixmosa
