#include "editor/Historial.h"

namespace pixmosa {

void Historial::Empezar(const BasEditor& editor) {
  before_ = {editor.Grid, editor.Screen};
}

void Historial::Terminar(const BasEditor& editor) {
  if (before_ == Dibujo{editor.Grid, editor.Screen}) return;
  if (undo_.size() == kMost) undo_.erase(undo_.begin());
  undo_.push_back(before_);
  redo_.clear();
}

void Historial::Mover(std::vector<Dibujo>& from, std::vector<Dibujo>& to, BasEditor& editor) {
  if (from.empty()) return;
  to.push_back({editor.Grid, editor.Screen});
  editor.Grid = from.back().grid;
  editor.Screen = from.back().screen;
  editor.AllChanged = true;
  from.pop_back();
}

}  // namespace pixmosa
