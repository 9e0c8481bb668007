// The walls around the decoding process: what it may use and what it may reach.
#pragma once

#include <filesystem>
#include <vector>

namespace pixmosa {

// Of processor time: for a picture, and for all the frames of a film.
inline constexpr unsigned kSegundosDeImagen = 6, kSegundosDePelicula = 120;

// From the first moment: seconds of processor time, memory, no files written, no greater rights, and the end
// with whoever started it. A limit that is lower already stays. False where the system refuses one.
bool Limitar(unsigned seconds = kSegundosDeImagen);

// What could be raised.
enum class Muros { Ninguno, SinCarpetas, Enteros };

// Before the first byte from outside is read by a decoder, and for good: no file is opened for writing, only
// those under `carpetas` for reading (SinCarpetas, where the kernel cannot hold a folder: none at all), no
// address, no other process. Every thread of the process must be its own child of the caller. Ninguno where
// the kernel refuses.
Muros Encerrar(const std::vector<std::filesystem::path>& carpetas);

// Where fonts, their settings and their catalogues lie.
std::vector<std::filesystem::path> CarpetasDeLetras();

}  // namespace pixmosa
