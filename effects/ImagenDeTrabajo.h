// The working picture and what undo and reload give back. All three share their pixels until one is written.
#pragma once

#include <utility>

#include "platform/Picture.h"

namespace pixmosa {

struct ImagenDeTrabajo {
  Picture picMain;          // the picture as it is now, edited by effects, flips and mirrors
  Picture picMainAsignada;  // the picture last assigned: by loading, by undo, by applying the dialog
  Picture picUndo;          // the picture before the last effect, flip or mirror
  unsigned Asignaciones =
      0;  // how often a picture was assigned; an effect whose picture was replaced is lost

  // A loaded file: the working picture and its undo copy.
  void Cargar(Picture loaded) {
    Asignar(std::move(loaded));
    picUndo = picMain;
  }

  // Replaces the working picture; "the original" is this one from now on.
  void Asignar(Picture picture) {
    picMain = std::move(picture);
    picMainAsignada = picMain;
    ++Asignaciones;
  }

  void SaveUndo() { picUndo = picMain; }

  // "Deshacer cambios". One level: a second undo gives the same copy again.
  void Deshacer() { Asignar(picUndo); }

  // "Volver a la imagen original": throws away the edits since the last assignment.
  void VolverALaOriginal() { Asignar(picMainAsignada); }
};

}  // namespace pixmosa
