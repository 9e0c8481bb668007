// Making the produced text from the working picture or from a file.
#pragma once

#include <functional>
#include <optional>
#include <string>

#include "programa/Programa.h"

namespace pixmosa {

// What the button "Play" runs.
enum class Trabajo { Ninguno, PedirImagen, Texto, AnimArt, WebArt };

// By the picture, the mode and the animation's option.
Trabajo QueGenerar(const Programa& p);

// The conversion method of the current mode, or nothing (-1) for the modes that make no text of a picture.
int MetodoDe(const Programa& p);

// The columns and rows that the text would have of the working picture, which is there, or a few rows less.
// Throws TextoExcesivo.
Extent MedidasDelTexto(const Programa& p, int method);

// The same, where they are far more than anybody reads; else nothing.
// Throws TextoExcesivo.
std::optional<Extent> TextoEnorme(const Programa& p, int method);

// The produced text from the working picture, which is there. False for an unknown method, which leaves the
// text. Throws TextoExcesivo, leaving the text.
bool Generar(Programa& p, int method);

// The same from a picture that is not kept: `read` gets the size that is asked for, and gives the picture
// stretched to it (PictureCodec::ReadStretched) or of that size at least (ReadReduced).
enum class Lectura { Estirada, Reducida };
using LeerReducida = std::function<Picture(Lectura how, const std::function<Extent(Extent)>& size)>;

// What EsDeFormas asks `read` for: as many pixels across as the light of every subcell is made of.
Extent PixelesDeFormas(int columns);

void GenerarDe(Programa& p, const LeerReducida& read, int method);

// The pattern file, which ships with the program. Throws Palette3x2Error.
void CargarPaleta3x2(Programa& p);

}  // namespace pixmosa
