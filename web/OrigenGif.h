// The bytes of a GIF, from memory or from a file that is read in pieces of bounded size.
#pragma once

#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>

namespace pixmosa {

class OrigenGif {
 public:
  static constexpr std::size_t kPiece = 256 << 10;       // the largest piece
  static constexpr std::size_t kMostPiped = 512U << 20;  // the most bytes taken from a pipe or a device

  explicit OrigenGif(std::string bytes) : bytes_(std::move(bytes)) {}

  // A file stays open and is read where it is asked for. A pipe or a device, where nobody can go back, is
  // read whole. Throws FileError.
  static OrigenGif DeArchivo(const std::filesystem::path& file);

  // The bytes from position `at` (0-based), at most `most` and kPiece; fewer, but not none, may come before
  // the end. The view holds until the next call. Throws FileError.
  std::string_view Leer(std::size_t at, std::size_t most = kPiece);

  // All the bytes. Throws FileError.
  std::string Todo();

  // Hands on a range in pieces. Throws FileError, also where the file no longer reaches so far.
  template <typename Take>
  void Leer(std::size_t begin, std::size_t length, const Take& take) {
    while (length > 0) {
      const std::string_view piece = Leer(begin, length);
      if (piece.empty()) Fallar("el archivo ha cambiado");
      take(piece);
      begin += piece.size();
      length -= piece.size();
    }
  }

 private:
  struct Closer {
    void operator()(std::FILE* f) const { std::fclose(f); }
  };

  [[noreturn]] void Fallar(const std::string& why) const;

  std::string name_{}, bytes_;  // the bytes: all of them, or the piece read last
  std::size_t begin_ = 0;       // where they begin
  std::unique_ptr<std::FILE, Closer> file_{};
};

}  // namespace pixmosa
