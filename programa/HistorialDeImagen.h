// What was done to the working picture, step by step, to go back and forth in. Steps share the pixels that
// they have in common.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "effects/ImagenDeTrabajo.h"

namespace pixmosa {

struct Programa;

struct PasoDeImagen {
  std::string nombre;  // UTF-8, as the list shows it
  ImagenDeTrabajo imagen;
  std::filesystem::path archivo;       // that the picture came from
  std::vector<std::string> ordenes{};  // what made it out of the loaded one, as PasoDe reads them
};

struct HistorialDeImagen {
  std::vector<PasoDeImagen> pasos;  // the oldest first
  std::size_t actual = 0;           // the step that the working picture is
};

// The most that is kept; the oldest steps go first, the last two stay.
inline constexpr std::size_t kMasPasosDeImagen = 1000;
inline constexpr std::uint64_t kMasBytesDeHistorial = std::uint64_t{1} << 30;

// Notes the working picture as a new step, in place of those that were undone; nothing where it is the same
// as before. `words` made it out of the picture of the step before; without any it is a picture that was
// there already, or a loaded one.
void AnotarPaso(Programa& p, const std::string& name, const std::vector<std::string>& words = {},
                std::uint64_t mostBytes = kMasBytesDeHistorial);

bool PuedeDeshacerPaso(const Programa& p);
bool PuedeRehacerPaso(const Programa& p);

// The working picture, its undo copy and its original become those of step k, which there is. Nothing while
// an effect runs.
void IrAlPaso(Programa& p, std::size_t k);

}  // namespace pixmosa
