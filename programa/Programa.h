// The program's one state, plain, with what it needs of the platform to measure fonts and to read pictures.
// The window and the command line each make one and work on it by the procedures of this folder.
#pragma once

#include <filesystem>
#include <vector>

#include "conversion/basAscii.h"
#include "editor/basEditor.h"
#include "effects/ImagenDeTrabajo.h"
#include "effects/mFiltros.h"
#include "exportar/Formatos.h"
#include "figlet/Letrero.h"
#include "platform/PictureCodec.h"
#include "platform/TextSurface.h"
#include "programa/HistorialDeImagen.h"
#include "programa/Modos.h"
#include "web/basGIF.h"
#include "web/basWeb.h"

namespace pixmosa {

struct Programa {
  TextSurface& superficie;
  PictureCodec& codec;
  std::filesystem::path carpeta;  // the folder with the files that ship with the program
  // Of FIGlet fonts: the program's, then the user's own.
  std::vector<std::filesystem::path> carpetasDeFuentes{};
  // Of drawings kept while they are edited; empty where none are.
  std::filesystem::path carpetaDeDibujos{};

  Modo modo = kModoGrises;
  bool vistaPrevia = false;        // open the preview after each generation
  bool animArt = false;            // in the grayscale mode: an animation instead of one text
  bool animArtDisponible = false;  // the working picture came from a GIF of two frames or more
  Colour fondoTexto = kWhite, colorTexto = kBlack, fondoWeb = kBlack;

  std::filesystem::path archivo{};  // that the working picture came from
  ImagenDeTrabajo imagen{};
  HistorialDeImagen historial{};
  MFiltros mFiltros{};
  BasAscii basAscii{};
  AsciiSettings ajustes{};
  int columnas = 0;  // asked for as a number; 0 where the size says them
  BasEditor basEditor{};
  BasFigLet basFigLet{};
  OpcionesDeLetrero letrero{};
  BasWeb basWeb{};
  WebSettings ajustesWeb{};
  OpcionesDeExportar exportar{};
  std::string formatoDeExportar = "html";  // the ending of the format exported last
  int metodoDelTexto = -1;                 // that made the produced text; none for a banner
  BasGif basGif{};
  Random azar{};
};

// The working picture's own name, without folder and ending; nothing without a picture.
inline std::string NombreDeImagen(const Programa& p) {
  return p.archivo.stem().string();
}

inline bool HayImagen(const Programa& p) {
  return !p.imagen.picMain.IsEmpty();
}

}  // namespace pixmosa
