// Adding FIGlet fonts from elsewhere to the font folders: what the window and the command line do alike.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "platform/Comprimido.h"

namespace pixmosa {

// What became of one font.
struct FuenteAgregada {
  enum Suceso { kAgregada, kYaEstaba, kRechazada };
  Suceso suceso = kRechazada;
  std::string archivo;           // as it was chosen; of a zip, its name in there behind that
  std::string nombre;            // in the lists, without ending; empty for one that was refused
  std::size_t reemplazados = 0;  // characters of its artwork that the code page lacks
  std::string frase;             // what happened, a Spanish sentence or two in UTF-8
  bool hayQueDecirlo = true;     // false for a font that was added as it is under its own name
};

// Called before each file with its number from 0 and the number of files; at last with both equal.
using AvanceDeFuentes = std::function<void(std::size_t done, std::size_t of)>;

// Rewrites each font of the chosen files, of the folders' files "*.flf" and "*.tlf" and of the zips, writes
// it into the first of `folders` that can be written and lists it there under the category of added fonts. A
// font never takes another's name in any of the folders: it gets a number behind its own ("Sombra 2"). One
// that is there with the same content is not added again. Several processes may do this at once. Nothing is
// thrown for a file that is at fault: the others go on.
std::vector<FuenteAgregada> AgregarFuentes(const std::vector<std::filesystem::path>& folders,
                                           const std::vector<std::filesystem::path>& chosen,
                                           const Desempaquetar& unpack, const AvanceDeFuentes& advance = {});

// The sentences that have to be said, a line each; of very many the first ones and how many there are more.
std::string ResumenDeFuentes(const std::vector<FuenteAgregada>& fonts);

}  // namespace pixmosa
