// Undo and redo of whole actions: strokes, boxes, fills, transformations, sizes.
#pragma once

#include <cstddef>
#include <deque>

#include "editor/basEditor.h"

namespace pixmosa {

class Historial {
 public:
  static constexpr std::size_t kPasos = 1000, kBytes = std::size_t{256} << 20;

  // Call before an action.
  void Empezar(BasEditor& editor);

  // Call after it. An action that changed nothing leaves no trace; any other empties the redo. Beyond kPasos
  // actions, or kBytes of what they replaced, the oldest are forgotten, but never the last one.
  void Terminar(BasEditor& editor);

  bool PuedeDeshacer() const { return !undo_.empty(); }
  bool PuedeRehacer() const { return !redo_.empty(); }
  void Deshacer(BasEditor& editor) { Mover(undo_, redo_, editor); }
  void Rehacer(BasEditor& editor) { Mover(redo_, undo_, editor); }

 private:
  struct Paso {
    Diario diario;
    std::shared_ptr<const TextoAbierto> abierto;
  };
  static void Mover(std::deque<Paso>& from, std::deque<Paso>& to, BasEditor& editor);

  std::shared_ptr<const TextoAbierto> before_;
  std::deque<Paso> undo_, redo_;
};

}  // namespace pixmosa
