#include "editor/Historial.h"

namespace pixmosa {

Historial::Dibujo Historial::De(const BasEditor& editor) {
  return {editor.Grid, editor.Screen, editor.Resto, editor.Abierto};
}

void Historial::Empezar(const BasEditor& editor) {
  before_ = De(editor);
}

void Historial::Terminar(const BasEditor& editor) {
  if (before_ == De(editor)) return;
  if (undo_.size() == kMost) undo_.erase(undo_.begin());
  undo_.push_back(before_);
  redo_.clear();
}

void Historial::Mover(std::vector<Dibujo>& from, std::vector<Dibujo>& to, BasEditor& editor) {
  if (from.empty()) return;
  to.push_back(De(editor));
  editor.Grid = from.back().grid;
  editor.Screen = from.back().screen;
  editor.Resto = from.back().rest;
  editor.Abierto = from.back().opened;
  editor.AllChanged = true;
  from.pop_back();
}

}  // namespace pixmosa
