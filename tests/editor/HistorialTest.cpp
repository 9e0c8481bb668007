#include <gtest/gtest.h>

#include "editor/Historial.h"

using namespace pixmosa;

namespace {

template <typename Action>
void Do(BasEditor& e, Historial& h, Action action) {
  h.Empezar(e);
  action();
  h.Terminar(e);
}

}  // namespace

TEST(Historial, UndoesAndRedoesWholeActions) {
  BasEditor e;
  Historial h;
  h.Deshacer(e);  // nothing to undo
  Do(e, h, [&] { PaintText(e, "ab"); });
  Do(e, h, [&] { EraseCell(e, {1, 1}); });
  const Characters erased = e.Screen;
  Do(e, h, [&] { PintarCaracter(e, 2, 1, 'b'); });  // changes nothing
  h.Deshacer(e);
  EXPECT_EQ(e.Screen.At({1, 1}), 'a');
  h.Rehacer(e);
  EXPECT_EQ(e.Screen, erased);
  EXPECT_EQ(e.Grid.At({1, 1}), 'a');
  h.Deshacer(e);
  h.Deshacer(e);
  EXPECT_EQ(e.Grid, Characters());
  EXPECT_FALSE(h.PuedeDeshacer());
  Do(e, h, [&] { PaintText(e, "z"); });
  EXPECT_FALSE(h.PuedeRehacer()) << "a new action ends the redo";
}
