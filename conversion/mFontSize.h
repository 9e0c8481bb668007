// The chosen font and a change of it.
#pragma once

#include "platform/Dialogs.h"
#include "platform/Font.h"

namespace pixmosa {

// The font that a choice in the font dialog means: its face, or the former one where it names none, and the
// whole points of its height in pixels (at least 1).
Font FontOfChoice(const FontChoice& choice, const Font& before);

}  // namespace pixmosa
