// Effects on small pictures: a progress that records and can act in the middle, and one dispatch.
#pragma once

#include <functional>
#include <vector>

#include "effects/mFiltros.h"

namespace pixmosa::test {

class RecordingProgress final : public Progress {
 public:
  std::vector<int> values;
  int shown = 0, hidden = 0;
  std::function<void()> onYield;  // runs inside each yield, as an event handler would

  void Show() override { ++shown; }
  void Hide() override { ++hidden; }
  void SetValue(int percent) override { values.push_back(percent); }
  void Yield() override {
    if (onYield) onYield();
  }
};

// The picture after one effect, random draws from a fixed seed.
inline Picture Applied(int effect, std::int32_t argument, const Picture& picture, Progress& progress) {
  MFiltros m;
  m.random.Seed(1);
  ImagenDeTrabajo image;
  image.Cargar(picture);
  ApplyEffect(m, image, effect, image, argument, progress, false);
  return image.picMain;
}

inline Picture Applied(int effect, std::int32_t argument, const Picture& picture) {
  NoProgress progress;
  return Applied(effect, argument, picture, progress);
}

}  // namespace pixmosa::test
