#include "platform/AtomicFile.h"

#include <algorithm>
#include <cerrno>
#include <memory>
#include <random>
#include <system_error>
#include <unistd.h>
#include <utility>

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

// Where a name leads through its links, whether or not a file is there; empty where they go round in circles.
fs::path Destino(fs::path file) {
  constexpr int kMostLinks = 40;
  std::error_code ec;
  for (int i = 0; i < kMostLinks; ++i) {
    if (!fs::is_symlink(file, ec)) return file;
    const fs::path next = fs::read_symlink(file, ec);
    if (ec) return file;
    file = file.parent_path() / next;
  }
  return {};
}

// What file systems say that have no such call.
bool CannotSync(int error) {
  return error == EINVAL || error == ENOSYS || error == EOPNOTSUPP || error == EROFS;
}

struct Razon {
  int error;
  const char* texto;
};

constexpr Razon kRazones[] = {
    {EPERM, "permiso denegado"},
    {EACCES, "permiso denegado"},
    {ENOENT, "no existe"},
    {EEXIST, "ya existe"},
    {EISDIR, "es una carpeta"},
    {ENOTDIR, "una parte de la ruta no es una carpeta"},
    {ENOTEMPTY, "la carpeta no está vacía"},
    {ENAMETOOLONG, "el nombre es demasiado largo"},
    {EILSEQ, "el nombre tiene caracteres que el disco no admite"},
    {EINVAL, "el disco no lo admite"},
    {EOPNOTSUPP, "el disco no lo admite"},
    {ENOSYS, "el disco no lo admite"},
    {ELOOP, "los enlaces dan vueltas sin fin"},
    {EMLINK, "hay demasiados enlaces"},
    {EXDEV, "está en otro disco"},
    {ENOSPC, "no queda espacio en el disco"},
    {EDQUOT, "no queda espacio en el disco para este usuario"},
    {EFBIG, "el archivo es demasiado grande"},
    {EOVERFLOW, "el archivo es demasiado grande"},
    {EROFS, "el disco es de solo lectura"},
    {EIO, "error de lectura o escritura del disco"},
    {ENOMEM, "no queda memoria"},
    {EMFILE, "hay demasiados archivos abiertos"},
    {ENFILE, "hay demasiados archivos abiertos"},
    {EBUSY, "otro programa lo está usando"},
    {ETXTBSY, "otro programa lo está usando"},
    {EAGAIN, "no está disponible en este momento"},
    {EINTR, "la operación se ha interrumpido"},
    {ENXIO, "el dispositivo no existe"},
    {ENODEV, "el dispositivo no existe"},
    {ENOMEDIUM, "no hay ningún disco en la unidad"},
    {ESPIPE, "no es un archivo en el que se pueda saltar"},
    {EPIPE, "nadie lee ya lo que se escribe"},
    {EBADF, "el archivo no está abierto"},
    {ESTALE, "el archivo ya no está en el servidor"},
    {ETIMEDOUT, "el servidor no responde"},
    {EHOSTDOWN, "el servidor no responde"},
    {ENETUNREACH, "no hay red"},
    {ENOTCONN, "el disco ya no está conectado"},
    {EREMOTEIO, "error de lectura o escritura del servidor"},
    {EUCLEAN, "el disco está dañado"},
    {ENOLCK, "no se ha podido bloquear el archivo"},
};

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
  for (const Razon& r : kRazones)
    if (r.error == error) return r.texto;
  return "error del sistema " + std::to_string(error);
}

AtomicFile::AtomicFile(const fs::path& file, Guardado kept) : named_(file), kept_(kept) {
  if (file.empty()) Fail(ENOENT);
  target_ = Destino(file);
  if (target_.empty()) Fail(ELOOP);
  std::error_code ec;
  const fs::file_status status = fs::status(target_, ec);
  if (fs::is_directory(status)) Fail(EISDIR);
  direct_ = fs::exists(status) && !fs::is_regular_file(status);
  temporary_ = direct_ ? target_ : Beside(target_);
  if (!direct_) alive_.emplace(temporary_);
  stream_ = std::fopen(temporary_.c_str(), direct_ ? "wb" : "wbx");
  if (!stream_) {
    temporary_.clear();  // it is not ours
    Fail(errno);
  }
  if (!direct_ && fs::exists(status)) fs::permissions(temporary_, status.permissions(), ec);
}

AtomicFile::~AtomicFile() {
  if (stream_) Dejar();
}

void AtomicFile::Write(std::string_view bytes) {
  if (std::fwrite(bytes.data(), 1, bytes.size(), stream_) != bytes.size()) Fail(errno);
}

void AtomicFile::Commit() {
  if (std::fflush(stream_) != 0) Fail(errno);
  if (!direct_ && kept_ == Guardado::Duradero && ::fdatasync(::fileno(stream_)) != 0 && !CannotSync(errno))
    Fail(errno);
  const int closed = std::fclose(std::exchange(stream_, nullptr));
  if (closed != 0) Fail(errno);
  if (!direct_ && std::rename(temporary_.c_str(), target_.c_str()) != 0) Fail(errno);
  alive_.reset();
}

void AtomicFile::Dejar() {
  if (stream_) std::fclose(std::exchange(stream_, nullptr));
  std::error_code ec;
  if (!direct_ && !temporary_.empty()) fs::remove(temporary_, ec);
  alive_.reset();
}

void AtomicFile::Fail(int error) {
  Dejar();
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
