#include "effects/mFiltros.h"

#include <utility>

#include "effects/basFiltrosConfig.h"

namespace pixmosa {
namespace {

// Marks the dispatcher as busy with a picture, also past an exception.
class Ocupado {
 public:
  Ocupado(MFiltros& m, const ImagenDeTrabajo& bitmap, Progress& progress) : m_(m), progress_(progress) {
    m_.EffectBusy = true;
    m_.enCurso = &bitmap;
    m_.asignacionesAlEmpezar = bitmap.Asignaciones;
    m_.girosEnEspera.clear();
    progress_.Show();
  }
  ~Ocupado() {
    m_.EffectBusy = false;
    m_.enCurso = nullptr;
    progress_.Hide();
  }
  Ocupado(const Ocupado&) = delete;
  Ocupado& operator=(const Ocupado&) = delete;

 private:
  MFiltros& m_;
  Progress& progress_;
};

// The buffer for the result. The undo copy that is about to be replaced lends its block where nobody else
// holds it, so that a chain of effects goes on in the same memory.
Picture BloqueParaElResultado(ImagenDeTrabajo& image, Extent size) {
  if (image.picUndo.Size() == size && image.picUndo.EsUnica()) return std::exchange(image.picUndo, {});
  return {size.width, size.height};
}

bool FueReemplazada(const MFiltros& m, const ImagenDeTrabajo& bitmap) {
  return bitmap.Asignaciones != m.asignacionesAlEmpezar;
}

void Procesar(MFiltros& m, ImagenDeTrabajo& image, const EffectConfig& effect, ImagenDeTrabajo& bitmap,
              std::int32_t argument, Progress& progress) {
  const Ocupado busy(m, bitmap, progress);
  const Picture source = bitmap.picMain;
  Picture result = BloqueParaElResultado(image, source.Size());
  image.SaveUndo();
  PixelBuffers buffers{source.Width(), source.Height(),   source.Pixels(), result.Writable(),
                       progress,       m.ProgressPercent, m.random};
  effect.worker(buffers, argument);
  if (FueReemplazada(m, bitmap))
    m.girosEnEspera.clear();  // they were meant for what is gone
  else
    bitmap.picMain = std::move(result);
}

}  // namespace

bool ApplyEffect(MFiltros& m, ImagenDeTrabajo& image, int effect, ImagenDeTrabajo& bitmap,
                 std::int32_t argument, Progress& progress, bool askConfig) {
  if (m.EffectBusy || bitmap.picMain.IsEmpty()) return false;
  const EffectConfig* config = Efecto(effect);
  if (askConfig && config && config->Configurable && m.AbrirDialogo) {
    const bool held = m.CurrentDialogEffect == effect;
    m.AbrirDialogo(effect);
    if (!held) return false;
  }
  if (config) {
    Procesar(m, image, *config, bitmap, argument, progress);
  } else {
    image.SaveUndo();
  }
  for (const Giro* giro : std::exchange(m.girosEnEspera, {})) Girar(image, *giro);
  return true;
}

void PedirGiro(MFiltros& m, ImagenDeTrabajo& image, const Giro& giro) {
  if (m.enCurso == &image && !FueReemplazada(m, image)) {
    m.girosEnEspera.push_back(&giro);
  } else {
    Girar(image, giro);
  }
}

}  // namespace pixmosa
