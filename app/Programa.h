// The one object that owns the program's state; windows and handlers get it by reference.
#pragma once

#include <filesystem>
#include <vector>

#include "conversion/basAscii.h"
#include "editor/basEditor.h"
#include "effects/ImagenDeTrabajo.h"
#include "effects/mFiltros.h"
#include "figlet/basFigLet.h"
#include "platform/Dialogs.h"
#include "platform/PictureCodec.h"
#include "platform/Registry.h"
#include "platform/Shell.h"
#include "platform/TextSurface.h"
#include "web/basGIF.h"
#include "web/basWeb.h"

namespace pixmosa {

// What the platform offers; real adapters in the program, recording ones in tests.
struct Plataforma {
  TextSurface& superficie;
  PictureCodec& imagenes;
  Dialogs& dialogos;
  Shell& entorno;
  Registry& registro;
};

struct Programa {
  Plataforma plataforma;
  std::filesystem::path carpeta;  // the folder with the files that ship with the program

  std::vector<std::filesystem::path>
      carpetasDeFuentes{};  // of FIGlet fonts: the program's, then the user's own

  ImagenDeTrabajo imagen{};
  MFiltros mFiltros{};
  BasAscii basAscii{};
  AsciiSettings ajustes{};
  BasEditor basEditor{};
  BasFigLet basFigLet{};
  BasWeb basWeb{};
  BasGif basGif{};
  Random azar{};
};

// The start-up's step before the window: reads the pattern file. False, after the message, where the program
// has to end.
bool CargarPaleta3x2(Programa& program);

}  // namespace pixmosa
