#include "web/OrigenGif.h"

#include <algorithm>
#include <cerrno>

#include "platform/AtomicFile.h"

namespace pixmosa {

namespace fs = std::filesystem;

OrigenGif OrigenGif::DeArchivo(const fs::path& file) {
  std::error_code ec;
  const fs::file_status status = fs::status(file, ec);
  if (fs::exists(status) && !fs::is_regular_file(status)) return OrigenGif(LeerArchivo(file, kMostPiped));
  OrigenGif gif{std::string()};
  gif.name_ = file.string();
  gif.file_.reset(std::fopen(file.c_str(), "rb"));
  if (!gif.file_) gif.Fallar(RazonDelError(errno));
  std::setvbuf(gif.file_.get(), nullptr, _IONBF, 0);  // the pieces are large
  return gif;
}

std::string_view OrigenGif::Leer(std::size_t at, std::size_t most) {
  most = std::min(most, kPiece);
  if (file_ && (at < begin_ || at >= begin_ + bytes_.size())) {
    if (std::fseek(file_.get(), static_cast<long>(at), SEEK_SET) != 0) Fallar(RazonDelError(errno));
    bytes_.resize(most);
    bytes_.resize(std::fread(bytes_.data(), 1, most, file_.get()));
    begin_ = at;
    if (std::ferror(file_.get())) Fallar(RazonDelError(errno));
  }
  if (at >= begin_ + bytes_.size()) return {};
  return std::string_view(bytes_).substr(at - begin_, most);
}

void OrigenGif::Fallar(const std::string& why) const {
  throw FileError("No se ha podido leer \"" + name_ + "\": " + why + ".");
}

std::string OrigenGif::Todo() {
  std::string all;
  for (std::string_view piece; !(piece = Leer(all.size())).empty();) all += piece;
  return all;
}

}  // namespace pixmosa
