#include "platform/AtomicFile.h"

#include <cerrno>
#include <cstring>
#include <memory>
#include <random>
#include <system_error>

namespace pixmosa {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kChunk = 65536;

struct Closer {
  void operator()(std::FILE* f) const { std::fclose(f); }
};
using Stream = std::unique_ptr<std::FILE, Closer>;

std::string Suffix() {
  static constexpr char kDigits[] = "0123456789abcdefghijklmnopqrstuv";
  std::random_device rd;
  std::string s = ".";
  for (int i = 0; i < 8; ++i) s += kDigits[rd() % 32];
  return s + ".tmp";
}

// A file name shortened so that the name with its suffix stays within what file systems allow.
fs::path Beside(const fs::path& target) {
  const std::string name = target.filename().string().substr(0, 200);
  return target.parent_path() / ("." + name + Suffix());
}

[[noreturn]] void FailToRead(const std::string& name, const std::string& why) {
  throw FileError("No se ha podido leer \"" + name + "\": " + why + ".");
}

void ReadInto(std::string& bytes, std::FILE* in, const std::string& name, std::uintmax_t most) {
  for (;;) {
    const std::size_t have = bytes.size();
    bytes.resize(std::max<std::size_t>(bytes.capacity(), have + kChunk));
    const std::size_t got = std::fread(bytes.data() + have, 1, bytes.size() - have, in);
    bytes.resize(have + got);
    if (bytes.size() > most) FailToRead(name, "el archivo es demasiado grande");
    if (got > 0) continue;
    if (std::ferror(in)) FailToRead(name, RazonDelError(errno));
    return;
  }
}

}  // namespace

std::string RazonDelError(int error) {
  switch (error) {
    case EACCES:
    case EPERM:
      return "permiso denegado";
    case ENOENT:
      return "no existe";
    case EISDIR:
      return "es una carpeta";
    case ENOTDIR:
      return "una parte de la ruta no es una carpeta";
    case ENOSPC:
    case EDQUOT:
      return "no queda espacio en el disco";
    case EROFS:
      return "el disco es de solo lectura";
    case ENAMETOOLONG:
      return "el nombre es demasiado largo";
    case EFBIG:
      return "el archivo es demasiado grande";
    case EIO:
      return "error de lectura o escritura del disco";
    default:
      return std::strerror(error);
  }
}

AtomicFile::AtomicFile(const fs::path& file) : named_(file), target_(file) {
  if (file.empty()) Fail(ENOENT);
  std::error_code ec;
  if (const fs::path real = fs::canonical(file, ec); !ec) target_ = real;
  const fs::file_status status = fs::status(target_, ec);
  if (fs::is_directory(status)) Fail(EISDIR);
  direct_ = fs::exists(status) && !fs::is_regular_file(status);
  temporary_ = direct_ ? target_ : Beside(target_);
  stream_ = std::fopen(temporary_.c_str(), direct_ ? "wb" : "wbx");
  if (!stream_) Fail(errno);
  if (!direct_ && fs::exists(status)) fs::permissions(temporary_, status.permissions(), ec);
}

AtomicFile::~AtomicFile() {
  if (!stream_) return;
  std::fclose(stream_);
  std::error_code ec;
  if (!direct_) fs::remove(temporary_, ec);
}

void AtomicFile::Write(std::string_view bytes) {
  if (std::fwrite(bytes.data(), 1, bytes.size(), stream_) != bytes.size()) Fail(errno);
}

void AtomicFile::Commit() {
  if (std::fflush(stream_) != 0) Fail(errno);
  const int closed = std::fclose(stream_);
  stream_ = nullptr;
  std::error_code ec;
  if (closed != 0) {
    const int error = errno;
    if (!direct_) fs::remove(temporary_, ec);
    Fail(error);
  }
  if (direct_) return;
  fs::rename(temporary_, target_, ec);
  if (!ec) return;
  std::error_code ignored;
  fs::remove(temporary_, ignored);
  Fail(ec.value());
}

void AtomicFile::Fail(int error) {
  if (stream_) {
    std::fclose(stream_);
    stream_ = nullptr;
    std::error_code ec;
    if (!direct_) fs::remove(temporary_, ec);
  }
  throw FileError("No se ha podido escribir \"" + named_.string() + "\": " + RazonDelError(error) + ".");
}

void EscribirArchivo(const fs::path& file, std::string_view bytes) {
  AtomicFile f(file);
  f.Write(bytes);
  f.Commit();
}

std::string LeerArchivo(const fs::path& file, std::uintmax_t most) {
  std::error_code ec;
  if (fs::is_directory(file, ec)) FailToRead(file.string(), RazonDelError(EISDIR));
  const Stream in(std::fopen(file.c_str(), "rb"));
  if (!in) FailToRead(file.string(), RazonDelError(errno));
  std::string bytes;
  if (const std::uintmax_t size = fs::file_size(file, ec); !ec && size <= most) bytes.reserve(size + kChunk);
  ReadInto(bytes, in.get(), file.string(), most);
  return bytes;
}

std::string LeerFlujo(std::FILE* stream, const std::string& name, std::uintmax_t most) {
  std::string bytes;
  ReadInto(bytes, stream, name, most);
  return bytes;
}

}  // namespace pixmosa
