// Which installed font stands for a name the user sees, and how it is drawn.
#pragma once

#include <string>

#include <QFont>

#include "platform/Font.h"

namespace pixmosa {

// True where the system has a family of this name.
bool FontInstalled(const std::string& name);

// The family that stands for `name`: itself where installed, otherwise the first fixed-pitch family at hand
// whose measures are near "Lucida Console"; the same one in every window, on the command line and in tests.
QString FamilyFor(const std::string& name);

// The font for drawing: N / 0.75 pixels high, no anti-aliasing, no glyphs lent by other families.
QFont QtFontOf(const Font& font);

// The same with smoothing and without hints, so that a character has the same shape at every scale; glyphs
// that the family lacks are lent by others.
QFont SmoothQtFontOf(const Font& font, int scale);

}  // namespace pixmosa
