// Archives, as the logic sees them: an adapter unpacks, whoever needs the files gets them in memory.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Errores.h"

namespace pixmosa {

// One file of an archive.
struct ArchivoComprimido {
  std::string nombre;  // UTF-8, with its folders as the archive writes them
  std::string bytes;
  std::string fallo;  // why there are no bytes, in Spanish; empty for a file that was read whole
};

// Every file of an archive, within bounds that the adapter states. Throws ErrorDelPrograma, its what() a
// Spanish reason without a full stop, where the archive as a whole cannot be read.
using Desempaquetar = std::function<std::vector<ArchivoComprimido>(std::string_view archive)>;

}  // namespace pixmosa
