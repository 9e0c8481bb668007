// What is done to a banner that is laid out: trimmed, mirrored, framed, coloured, made a comment of a
// program.
#pragma once

#include <optional>

#include "platform/Dibujo.h"

namespace pixmosa {

enum class MarcoDeLetrero { Ninguno, Linea, Doble, Estrellas };

// Of C and its kin "//", of shells "#", of SQL "--"; Bloque between the lines "/*" and "*/".
enum class Comentario { Ninguno, C, Sh, Sql, Bloque };

// From one colour to another, or through those of the rainbow, from the left to the right or downwards.
struct Degradado {
  Colour desde = kNoColour, hasta = kNoColour;
  bool arcoiris = false, haciaAbajo = false;
  bool operator==(const Degradado&) const = default;
};

struct Acabado {
  bool recortar = false;  // without the blank rows and columns around
  bool espejo = false;    // left and right exchanged, brackets and strokes too
  MarcoDeLetrero marco = MarcoDeLetrero::Ninguno;
  Comentario comentario = Comentario::Ninguno;
  std::optional<Degradado> degradado{};
  bool operator==(const Acabado&) const = default;
};

// In the order of its fields, but colours before the comment. An empty drawing gets a frame or a comment too.
Dibujo Acabar(Dibujo drawing, const Acabado& finish);

// Gives every cell the ink of its place.
void Degradar(Dibujo& drawing, const Degradado& colours);

}  // namespace pixmosa
