// Files packed in a zip file, read with libzip.
#pragma once

#include <string_view>
#include <vector>

#include "platform/Comprimido.h"

namespace pixmosa {

// Every file of a zip archive; folders are left out. A file that is damaged, encrypted or too large has a
// `fallo`. At most 1,000 entries and 64 MiB of contents; what is unpacked in vain counts too. Throws
// ErrorDelPrograma as Desempaquetar says.
std::vector<ArchivoComprimido> DescomprimirZip(std::string_view zip);

}  // namespace pixmosa
