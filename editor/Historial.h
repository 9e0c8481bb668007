// Undo and redo of whole actions: strokes, boxes, fills, transformations.
#pragma once

#include <cstddef>
#include <vector>

#include "editor/basEditor.h"

namespace pixmosa {

class Historial {
 public:
  // Call before an action; the drawing as it is becomes what an undo gives back.
  void Empezar(const BasEditor& editor);

  // Call after it. An action that changed nothing leaves no trace; any other empties the redo.
  void Terminar(const BasEditor& editor);

  bool PuedeDeshacer() const { return !undo_.empty(); }
  bool PuedeRehacer() const { return !redo_.empty(); }
  void Deshacer(BasEditor& editor) { Mover(undo_, redo_, editor); }
  void Rehacer(BasEditor& editor) { Mover(redo_, undo_, editor); }

 private:
  struct Dibujo {
    Characters grid, screen;
    std::array<bool, kRows> rest;
    std::shared_ptr<const TextoAbierto> opened;
    bool operator==(const Dibujo&) const = default;
  };
  static Dibujo De(const BasEditor& editor);
  static void Mover(std::vector<Dibujo>& from, std::vector<Dibujo>& to, BasEditor& editor);

  static constexpr std::size_t kMost = 300;  // about 15 KB each
  Dibujo before_{};
  std::vector<Dibujo> undo_, redo_;
};

}  // namespace pixmosa
