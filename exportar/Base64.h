// Bytes as text for data: addresses.
#pragma once

#include <string>
#include <string_view>

namespace pixmosa {

// RFC 4648, section 4, with padding.
std::string Base64(std::string_view bytes);

}  // namespace pixmosa
