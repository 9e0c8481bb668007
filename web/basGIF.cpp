#include "web/basGIF.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "platform/CodePage.h"
#include "platform/PrivateFolder.h"

namespace pixmosa {
namespace {

namespace fs = std::filesystem;

constexpr char kIntroducer = 0x21, kGraphicControl = static_cast<char>(0xF9);
constexpr std::size_t kMostFrames = 100'000, kMegabyte = 1'000'000;
constexpr std::string_view kPrincipio = "Fotograma ";
// A real header is a few hundred bytes, so copies of it are a small part of all; what goes far beyond the
// GIF's own size is a file made to fill the disk.
constexpr std::size_t kMostForHeaders = 64 << 20;
constexpr std::array<std::string_view, 4> kEndings = {".bmp", ".gif", ".jpg", ".jpeg"};

std::string Lower(const fs::path& p) {
  return LowerCase(BytesOfUtf8(p.string()));
}

// Finds the markers of a GIF that comes in pieces.
class Buscador {
 public:
  void Seguir(std::string_view piece) {
    if (half_ && piece.front() == kGraphicControl) Encontrar(cut_.length);
    for (std::size_t at = piece.find(kIntroducer); at != std::string_view::npos && at + 1 < piece.size();
         at = piece.find(kIntroducer, at + 1))
      if (piece[at + 1] == kGraphicControl) Encontrar(cut_.length + at + 1);
    half_ = piece.ends_with(kIntroducer);
    cut_.length += piece.size();
  }

  GifCut Terminar() {
    const std::size_t n = cut_.positions.size();
    if (n > 0 && cut_.HeaderLength() > kMostForHeaders / n + cut_.length / n)
      throw FileError("El GIF tiene demasiados fotogramas: " + std::to_string(n) + ", que ocuparían " +
                      std::to_string(cut_.HeaderLength() * n / kMegabyte) + " MB.");
    return std::move(cut_);
  }

 private:
  void Encontrar(std::size_t position) {
    cut_.positions.push_back(position);
    if (cut_.positions.size() > kMostFrames)
      throw FileError("El GIF tiene más de " + std::to_string(kMostFrames) + " fotogramas.");
  }

  GifCut cut_;
  bool half_ = false;  // the last piece ended within a possible marker
};

// The number in the name of a frame file, 0 in any other name.
std::size_t NumeroDeArchivo(const fs::path& file) {
  const std::string name = file.filename().string();
  std::size_t number = 0;
  if (name.size() > kPrincipio.size())
    std::from_chars(name.data() + kPrincipio.size(), name.data() + name.size(), number);
  return number > 0 && ArchivoDeFotograma({}, NumeroDeFotograma(number)) == name ? number : 0;
}

// Removes the frame files of a folder with numbers beyond `last`.
void QuitarSobrantes(const fs::path& folder, std::size_t last) {
  std::error_code ec;
  std::vector<fs::path> left;
  for (fs::directory_iterator at(folder, ec), end; !ec && at != end; at.increment(ec))
    if (NumeroDeArchivo(at->path()) > last && at->symlink_status(ec).type() == fs::file_type::regular)
      left.push_back(at->path());
  for (const fs::path& file : left) fs::remove(file, ec);
}

}  // namespace

std::size_t GifCut::FrameLength(std::size_t frame) const {
  return (frame + 1 < positions.size() ? positions[frame + 1] : length) - positions[frame];
}

GifCut CutGif(OrigenGif& gif) {
  Buscador search;
  std::size_t at = 0;
  for (std::string_view piece; !(piece = gif.Leer(at)).empty(); at += piece.size()) search.Seguir(piece);
  return search.Terminar();
}

std::string FrameFile(OrigenGif& gif, const GifCut& cut, std::size_t frame) {
  std::string file;
  file.reserve(cut.HeaderLength() + cut.FrameLength(frame));
  const auto append = [&](std::string_view piece) { file += piece; };
  gif.Leer(0, cut.HeaderLength(), append);
  gif.Leer(cut.positions[frame] - 1, cut.FrameLength(frame), append);
  return file;
}

std::string NumeroDeFotograma(std::size_t number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

fs::path ArchivoDeFotograma(const fs::path& folder, const std::string& number) {
  return folder / (std::string(kPrincipio) + number + ".bmp");
}

void EscribirFotogramas(const GifCut& cut, OrigenGif& gif, const fs::path& folder, Guardado kept) {
  for (std::size_t i = 0; i < cut.positions.size(); ++i) {
    AtomicFile frame(ArchivoDeFotograma(folder, NumeroDeFotograma(i + 1)), kept);
    const auto write = [&](std::string_view piece) { frame.Write(piece); };
    gif.Leer(0, cut.HeaderLength(), write);
    gif.Leer(cut.positions[i] - 1, cut.FrameLength(i), write);
    frame.Commit();
  }
  QuitarSobrantes(folder, cut.positions.size());
}

void CortarGif(BasGif& gif, const fs::path& file) {
  BorrarBmp(gif.carpeta);
  gif.FramesList.clear();
  gif.PorQueNo.clear();
  try {
    OrigenGif source = OrigenGif::DeArchivo(file);
    GifCut cut = CutGif(source);
    EscribirFotogramas(cut, source, gif.carpeta, Guardado::DePaso);
    gif.FramesList = std::move(cut.positions);
  } catch (const FileError& e) {
    BorrarBmp(gif.carpeta);
    gif.PorQueNo = e.what();
  }
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
