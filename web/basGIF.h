// Frame sources: the frames of a GIF, cut out of its bytes, and the pictures of a folder.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

#include "platform/AtomicFile.h"
#include "web/OrigenGif.h"

namespace pixmosa {

// Where the frames of a GIF lie in its bytes.
struct GifCut {
  std::vector<std::size_t> positions;  // 1-based byte position of each frame
  std::size_t length = 0;              // of the whole GIF

  // Bytes before the first frame; with no frame, all but the last byte.
  std::size_t HeaderLength() const {
    return (positions.empty() ? length : positions[0]) - (length > 0 ? 1 : 0);
  }

  // Bytes of a frame's own (0-based), up to the next one; the last ends before the GIF's final byte.
  std::size_t FrameLength(std::size_t frame) const;
};

// Every occurrence of the introducer of a graphic control extension, 0x21 0xF9, begins a frame, wherever it
// stands. Throws FileError where it cannot be read or the frame files together would be far larger than the
// GIF.
GifCut CutGif(OrigenGif& gif);

// A frame's file: the header and the frame's bytes. Throws FileError.
std::string FrameFile(OrigenGif& gif, const GifCut& cut, std::size_t frame);

// Whether the blocks of a GIF go on to its trailer, whatever stands behind that; false for one that was cut
// off or is no GIF. Looks at no pixel. Throws FileError where it cannot be read.
bool GifCompleto(OrigenGif& gif);

// The state of the last GIF that was loaded.
struct BasGif {
  std::filesystem::path carpeta;           // the scratch folder
  std::vector<std::size_t> FramesList;     // byte position of every frame
  std::vector<std::string> Seleccionados;  // numbers of the frames to animate: "01", ..., "100"
  std::string PorQueNo{};                  // why it could not be cut, a Spanish sentence; else empty

  bool AnimArtDisponible() const { return FramesList.size() >= 2; }
};

// "01".."99", "100"...
std::string NumeroDeFotograma(std::size_t number);

// "Fotograma 01.bmp" in a folder.
std::filesystem::path ArchivoDeFotograma(const std::filesystem::path& folder, const std::string& number);

// Cuts a GIF into frame files in gif.carpeta in place of the former ones, and selects them all. Where that
// fails there are no frames, neither new nor former, and PorQueNo says why.
void CortarGif(BasGif& gif, const std::filesystem::path& file);

// Writes the frame files of a GIF into a folder; once all are there, removes those of a longer series that
// was there before, by their names. Throws FileError.
void EscribirFotogramas(const GifCut& cut, OrigenGif& gif, const std::filesystem::path& folder,
                        Guardado kept = Guardado::Duradero);

void SeleccionarTodos(BasGif& gif);

// The pictures of a folder for an animation ("*.bmp;*.gif;*.jpg;*.jpeg"), in alphabetical order ignoring
// case.
std::vector<std::filesystem::path> ImagenesDeCarpeta(const std::filesystem::path& folder);

}  // namespace pixmosa
