// The fonts that the user has marked, remembered from one run to the next in the registry.
#pragma once

#include <set>
#include <string>

#include "platform/Registry.h"

namespace pixmosa {

// File names in UTF-8.
using Favoritas = std::set<std::string>;

Favoritas LeerFavoritas(Registry& registry);
void GuardarFavoritas(Registry& registry, const Favoritas& names);

}  // namespace pixmosa
