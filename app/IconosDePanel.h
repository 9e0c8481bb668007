// Small icons drawn in the text colour of the window, light or dark.
#pragma once

#include <QIcon>

namespace pixmosa {

// Lines of text that lie left, centred or right.
QIcon IconoDeRenglones(Qt::Alignment alignment);

// A box with one heavy side.
QIcon IconoDeBorde(Qt::Edge side);

}  // namespace pixmosa
