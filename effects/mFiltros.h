// The dispatcher of the effects and its state.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include "effects/Giros.h"
#include "effects/ImagenDeTrabajo.h"
#include "platform/Progress.h"
#include "platform/Random.h"

namespace pixmosa {

// One instance for the program's run.
struct MFiltros {
  bool EffectBusy = false;
  int CurrentDialogEffect = 0;  // the effect that the dialog holds, 0 = none
  std::int32_t ProgressPercent = 0;
  Random random{};
  // Shows the parameter dialog, holding this effect; handed over at start-up by a program that has windows.
  std::function<void(int effect)> AbrirDialogo{};
  // The picture that the running effect edits, its count of assignments when the effect began, and the turns
  // asked for since.
  const ImagenDeTrabajo* enCurso = nullptr;
  unsigned asignacionesAlEmpezar = 0;
  std::vector<const Giro*> girosEnEspera{};
};

// Runs an effect (1..32; another number runs nothing) on the picture that `bitmap` holds, after keeping the
// undo copy of `image`. A configurable effect with askConfig is loaded into the dialog instead, unless the
// dialog holds it already. True where an effect ran; false while another one runs, without a picture, and
// where the dialog was opened. A result whose picture was replaced meanwhile has nowhere to go and is lost.
// Throws std::bad_alloc, leaving the picture as it was.
bool ApplyEffect(MFiltros& m, ImagenDeTrabajo& image, int effect, ImagenDeTrabajo& bitmap,
                 std::int32_t argument, Progress& progress, bool askConfig);

// A flip or mirror of the working picture; while an effect runs on that picture the turn waits for its
// result. Throws std::bad_alloc, leaving the picture as it was.
void PedirGiro(MFiltros& m, ImagenDeTrabajo& image, const Giro& giro);

}  // namespace pixmosa
