#include "web/basGIF.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>

#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/PrivateFolder.h"

namespace pixmosa {
namespace {

namespace fs = std::filesystem;

constexpr char kIntroducer = 0x21, kGraphicControl = static_cast<char>(0xF9);
constexpr std::size_t kPiece = 256 << 10, kMostFrames = 100'000;
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
      throw FileError("El GIF tiene demasiados fotogramas: " + std::to_string(n) + ".");
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

// Reads pieces of a file into one buffer.
class Lector {
 public:
  explicit Lector(const fs::path& file) : name_(file.string()), buffer_(kPiece, '\0') {
    std::error_code ec;
    if (fs::is_directory(file, ec)) Fallar(RazonDelError(EISDIR));
    in_.reset(std::fopen(file.c_str(), "rb"));
    if (!in_) Fallar(RazonDelError(errno));
    std::setvbuf(in_.get(), nullptr, _IONBF, 0);  // the pieces are large
  }

  // The next bytes, at most `most` and kPiece; none at the end. The view holds until the next call.
  std::string_view Leer(std::size_t most) {
    const std::size_t got = std::fread(buffer_.data(), 1, std::min(most, kPiece), in_.get());
    if (got == 0 && std::ferror(in_.get())) Fallar(RazonDelError(errno));
    return std::string_view(buffer_).substr(0, got);
  }

  void Copiar(std::size_t begin, std::size_t length, AtomicFile& to) {
    if (std::fseek(in_.get(), static_cast<long>(begin), SEEK_SET) != 0) Fallar(RazonDelError(errno));
    while (length > 0) {
      const std::string_view piece = Leer(length);
      if (piece.empty()) Fallar("el archivo ha cambiado");
      to.Write(piece);
      length -= piece.size();
    }
  }

 private:
  struct Closer {
    void operator()(std::FILE* f) const { std::fclose(f); }
  };

  [[noreturn]] void Fallar(const std::string& why) const {
    throw FileError("No se ha podido leer \"" + name_ + "\": " + why + ".");
  }

  std::string name_, buffer_;
  std::unique_ptr<std::FILE, Closer> in_;
};

// Writes every frame file; `copy` hands on a range of the GIF's bytes.
template <typename Copy>
void Escribir(const GifCut& cut, const fs::path& folder, const Copy& copy) {
  for (std::size_t i = 0; i < cut.positions.size(); ++i) {
    AtomicFile frame(ArchivoDeFotograma(folder, NumeroDeFotograma(i + 1)));
    copy(0, cut.HeaderLength(), frame);
    copy(cut.positions[i] - 1, cut.FrameLength(i), frame);
    frame.Commit();
  }
}

}  // namespace

std::size_t GifCut::FrameLength(std::size_t frame) const {
  return (frame + 1 < positions.size() ? positions[frame + 1] : length) - positions[frame];
}

std::string_view GifCut::Frame(std::string_view gif, std::size_t frame) const {
  return gif.substr(positions[frame] - 1, FrameLength(frame));
}

std::string GifCut::FrameFile(std::string_view gif, std::size_t frame) const {
  std::string file(gif.substr(0, HeaderLength()));
  return file += Frame(gif, frame);
}

GifCut CutGif(std::string_view gif) {
  Buscador search;
  search.Seguir(gif);
  return search.Terminar();
}

GifCut CutGifFile(const fs::path& file) {
  Lector reader(file);
  Buscador search;
  for (std::string_view piece; !(piece = reader.Leer(kPiece)).empty();) search.Seguir(piece);
  return search.Terminar();
}

std::string NumeroDeFotograma(std::size_t number) {
  return (number < 10 ? "0" : "") + std::to_string(number);
}

fs::path ArchivoDeFotograma(const fs::path& folder, const std::string& number) {
  return folder / ("Fotograma " + number + ".bmp");
}

void EscribirFotogramas(const GifCut& cut, std::string_view gif, const fs::path& folder) {
  Escribir(cut, folder, [&](std::size_t begin, std::size_t length, AtomicFile& to) {
    to.Write(gif.substr(begin, length));
  });
}

void EscribirFotogramasDeArchivo(const GifCut& cut, const fs::path& file, const fs::path& folder) {
  Lector reader(file);
  Escribir(cut, folder,
           [&](std::size_t begin, std::size_t length, AtomicFile& to) { reader.Copiar(begin, length, to); });
}

void CortarGif(BasGif& gif, const fs::path& file) {
  const GifCut cut = CutGifFile(file);
  // The new frames are written beside the former ones and take their place only when all are there.
  const fs::path beside = gif.carpeta / "nuevos";
  std::error_code ec;
  fs::remove_all(beside, ec);
  fs::create_directory(beside, ec);
  try {
    EscribirFotogramasDeArchivo(cut, file, beside);
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
