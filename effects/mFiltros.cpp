#include "effects/mFiltros.h"

#include <utility>

#include "effects/basFiltrosConfig.h"

namespace pixmosa {
namespace {

// Marks the dispatcher as busy, also past an exception.
class Ocupado {
 public:
  Ocupado(MFiltros& m, Progress& progress) : m_(m), progress_(progress) { m_.EffectBusy = true; }
  ~Ocupado() {
    m_.EffectBusy = false;
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

void Procesar(MFiltros& m, ImagenDeTrabajo& image, const EffectConfig& effect, Bitmap bitmap,
              std::int32_t argument, Progress& progress) {
  const Picture source = bitmap.pixels;
  const unsigned assigned = bitmap.asignaciones;
  progress.Show();
  Picture result = BloqueParaElResultado(image, source.Size());
  image.SaveUndo();
  PixelBuffers buffers{source.Width(), source.Height(),   source.Pixels(), result.Writable(),
                       progress,       m.ProgressPercent, m.random};
  effect.worker(buffers, argument);
  if (bitmap.asignaciones == assigned) bitmap.pixels = std::move(result);
}

}  // namespace

void ApplyEffect(MFiltros& m, ImagenDeTrabajo& image, VentanaDeEfectos& window, int effect, Bitmap bitmap,
                 std::int32_t argument, Progress& progress, bool askConfig) {
  if (m.EffectBusy || bitmap.pixels.IsEmpty()) return;
  const EffectConfig* config = Efecto(effect);
  if (askConfig && config && config->Configurable) {
    window.MostrarDialogo();
    if (m.CurrentDialogEffect != effect) {
      window.CargarEfecto(effect);
      return;
    }
  }
  if (config) {
    const Ocupado busy(m, progress);
    Procesar(m, image, *config, bitmap, argument, progress);
  } else {
    image.SaveUndo();
  }
  window.RefrescarPicMain();
}

}  // namespace pixmosa
