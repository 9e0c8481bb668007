// Windows that fit the screen on which they open.
#pragma once

#include <QScreen>
#include <QWidget>

namespace pixmosa {

// The size wanted for a window, or what its screen leaves beside panels, frame and title.
inline QSize EnPantalla(const QWidget& window, QSize wanted) {
  constexpr QSize kFrame(16, 48);
  return wanted.boundedTo(window.screen()->availableGeometry().size() - kFrame);
}

}  // namespace pixmosa
