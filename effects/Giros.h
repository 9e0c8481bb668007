// Flips and mirrors: operations on the working picture that need no pixel buffers.
#pragma once

#include <span>

#include "effects/ImagenDeTrabajo.h"

namespace pixmosa {

// The picture turned about its vertical or horizontal middle line.
void FlipHorizontal(Picture& picture);
void FlipVertical(Picture& picture);

// A quarter turn to the right or to the left; width and height change places.
void TurnRight(Picture& picture);
void TurnLeft(Picture& picture);

// One half copied onto the other, reflected about H / 2 or W / 2: the first row or column has its mirror
// place just outside the picture, so it is neither copied nor replaced, and the middle of an even size stays.
// Rows (or columns) 0 .. round(H / 2 - 1), rounded half to even, and their mirror places H - y take part.
void MirrorTopToBottom(Picture& picture);
void MirrorBottomToTop(Picture& picture);
void MirrorRightToLeft(Picture& picture);
void MirrorLeftToRight(Picture& picture);

struct Giro {
  const char* control;  // the menu entry
  const char* caption;
  const char* orden;  // the step's name on the command line
  void (*hacer)(Picture&);
};

std::span<const Giro> Giros();

// Keeps the undo copy and turns the working picture. Does nothing without a picture. Throws std::bad_alloc,
// leaving both as they were.
void Girar(ImagenDeTrabajo& image, const Giro& giro);

}  // namespace pixmosa
