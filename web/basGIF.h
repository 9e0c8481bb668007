// Frame sources: the frames of a GIF, cut out of its bytes, and the pictures of a folder.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace pixmosa {

// Where the frames of a GIF lie in its bytes.
struct GifCut {
  std::vector<std::size_t> positions;  // 1-based byte position of each frame
  std::size_t length = 0;              // of the whole file

  // Bytes before the first frame; with no frame, all but the last byte.
  std::size_t HeaderLength() const {
    return (positions.empty() ? length : positions[0]) - (length > 0 ? 1 : 0);
  }

  // Bytes of a frame's own (0-based), up to the next one; the last ends before the GIF's final byte.
  std::size_t FrameLength(std::size_t frame) const;

  // Those bytes. `gif` is the whole file that was cut.
  std::string_view Frame(std::string_view gif, std::size_t frame) const;

  // A frame's file: the header and the frame's bytes.
  std::string FrameFile(std::string_view gif, std::size_t frame) const;
};

// Every occurrence of the introducer of a graphic control extension, 0x21 0xF9, begins a frame, wherever it
// stands. Throws FileError where the frame files together would be far larger than the GIF.
GifCut CutGif(std::string_view gif);

// The same for a file, read in pieces of bounded size. Throws FileError also where it cannot be read.
GifCut CutGifFile(const std::filesystem::path& file);

// The state of the last GIF that was loaded.
struct BasGif {
  std::filesystem::path carpeta;           // the scratch folder
  std::vector<std::size_t> FramesList;     // byte position of every frame
  std::vector<std::string> Seleccionados;  // numbers of the frames to animate: "01", ..., "100"

  bool AnimArtDisponible() const { return FramesList.size() >= 2; }
};

// "01".."99", "100"...
std::string NumeroDeFotograma(std::size_t number);

// "Fotograma 01.bmp" in a folder.
std::filesystem::path ArchivoDeFotograma(const std::filesystem::path& folder, const std::string& number);

// Cuts a GIF into frame files in gif.carpeta in place of the former ones, and selects them all. Throws
// FileError, and then the former frames are as they were.
void CortarGif(BasGif& gif, const std::filesystem::path& file);

// Writes the frame files of a GIF into a folder, from its bytes or, in pieces of bounded size, from its file.
// Throws FileError, also where the file is no longer as long as when it was cut.
void EscribirFotogramas(const GifCut& cut, std::string_view gif, const std::filesystem::path& folder);
void EscribirFotogramasDeArchivo(const GifCut& cut, const std::filesystem::path& file,
                                 const std::filesystem::path& folder);

void SeleccionarTodos(BasGif& gif);

// The pictures of a folder for an animation ("*.bmp;*.gif;*.jpg;*.jpeg"), in alphabetical order ignoring
// case.
std::vector<std::filesystem::path> ImagenesDeCarpeta(const std::filesystem::path& folder);

}  // namespace pixmosa
