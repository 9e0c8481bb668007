// Fonts packed in a zip file, read with libzip.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace pixmosa {

// The first file of a zip archive; the bytes themselves where they are no archive. Nothing for an archive
// that cannot be read or whose first file is larger than a font can be.
std::optional<std::string> SinComprimir(std::string_view bytes);

}  // namespace pixmosa
