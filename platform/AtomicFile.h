// Files written whole or not at all, and files read whole within a bound.
#pragma once

#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

#include "platform/Errores.h"
#include "platform/Temporales.h"

namespace pixmosa {

// what() is a Spanish sentence in UTF-8 that names the file and the reason.
class FileError : public ErrorDelPrograma {
 public:
  using ErrorDelPrograma::ErrorDelPrograma;
};

// A file of the user's is on the disk before it takes its place; one of passage need not be.
enum class Guardado { Duradero, DePaso };

// Writes beside the place and renames in Commit(); without Commit, or where a signal ends the program, the
// earlier file of that name stays as it was. A link keeps pointing where it did, also to a file that is not
// there yet; a device or pipe is written directly. Every member throws FileError.
class AtomicFile {
 public:
  explicit AtomicFile(const std::filesystem::path& file, Guardado kept = Guardado::Duradero);
  ~AtomicFile();
  AtomicFile(const AtomicFile&) = delete;
  AtomicFile& operator=(const AtomicFile&) = delete;

  void Write(std::string_view bytes);
  void Commit();

 private:
  // Closes and removes the temporary file.
  void Dejar();
  [[noreturn]] void Fail(int error);

  std::filesystem::path named_, target_, temporary_;
  std::FILE* stream_ = nullptr;
  std::optional<Temporal> alive_;
  Guardado kept_;
  bool direct_ = false;
};

// The whole of `bytes` as the file, through AtomicFile.
void EscribirArchivo(const std::filesystem::path& file, std::string_view bytes);

// The whole file. Throws FileError, also for a folder or for more than `most` bytes.
std::string LeerArchivo(const std::filesystem::path& file, std::uintmax_t most = std::uintmax_t{1} << 31);

// The rest of a stream, such as standard input; `name` stands for it in messages. Throws the same.
std::string LeerFlujo(std::FILE* stream, const std::string& name,
                      std::uintmax_t most = std::uintmax_t{1} << 31);

// A short Spanish reason for an errno value, such as "permiso denegado"; "error del sistema N" for a rare
// one.
std::string RazonDelError(int error);

}  // namespace pixmosa
