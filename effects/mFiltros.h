// The dispatcher of the effects and its state.
#pragma once

#include <cstdint>

#include "effects/ImagenDeTrabajo.h"
#include "platform/Progress.h"
#include "platform/Random.h"

namespace pixmosa {

// One instance for the program's run.
struct MFiltros {
  bool EffectBusy = false;
  int CurrentDialogEffect = 0;  // the effect that the dialog holds, 0 = none
  std::int32_t ProgressPercent = 0;
  Random random;
};

// A picture that effects edit, with the count of its assignments: when that changes while an effect runs, the
// picture was replaced and the result has nowhere to go.
struct Bitmap {
  Picture& pixels;
  const unsigned& asignaciones;
};

inline Bitmap BitmapDe(ImagenDeTrabajo& image) {
  return {image.picMain, image.Asignaciones};
}

// What the dispatcher asks of the windows.
class VentanaDeEfectos {
 public:
  virtual ~VentanaDeEfectos() = default;
  virtual void MostrarDialogo() = 0;  // made if it does not exist, visible afterwards
  virtual void CargarEfecto(int effect) = 0;
  virtual void RefrescarPicMain() = 0;
};

// For programs without windows: no effect opens a dialog when askConfig is false.
class SinVentana final : public VentanaDeEfectos {
 public:
  void MostrarDialogo() override {}
  void CargarEfecto(int) override {}
  void RefrescarPicMain() override {}
};

// Runs an effect (1..32; another number runs nothing) on `bitmap`, after keeping the undo copy of `image`. A
// configurable effect with askConfig is loaded into the dialog instead, unless the dialog holds it already.
// Does nothing while another effect runs, and without a picture. Throws std::bad_alloc, leaving the picture
// as it was.
void ApplyEffect(MFiltros& m, ImagenDeTrabajo& image, VentanaDeEfectos& window, int effect, Bitmap bitmap,
                 std::int32_t argument, Progress& progress, bool askConfig);

}  // namespace pixmosa
