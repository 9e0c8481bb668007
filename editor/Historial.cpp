#include "editor/Historial.h"

#include <utility>

namespace pixmosa {

void Historial::Empezar(BasEditor& editor) {
  before_ = editor.Abierto;
  editor.Grid.Anotar();
}

void Historial::Terminar(BasEditor& editor) {
  Diario log = editor.Grid.Anotado();
  if (log.Vacio() && before_ == editor.Abierto) return;
  undo_.push_back({std::move(log), std::move(before_)});
  redo_.clear();
  std::size_t bytes = 0;
  for (const Paso& step : undo_) bytes += step.diario.Bytes();
  while (undo_.size() > 1 && (undo_.size() > kPasos || bytes > kBytes)) {
    bytes -= undo_.front().diario.Bytes();
    undo_.pop_front();
  }
}

void Historial::Mover(std::deque<Paso>& from, std::deque<Paso>& to, BasEditor& editor) {
  if (from.empty()) return;
  Paso step = std::move(from.back());
  from.pop_back();
  editor.Grid.Anotar();
  editor.Grid.Devolver(step.diario);
  to.push_back({editor.Grid.Anotado(), std::exchange(editor.Abierto, std::move(step.abierto))});
}

}  // namespace pixmosa
