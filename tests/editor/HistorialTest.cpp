#include <gtest/gtest.h>

#include "editor/Historial.h"
#include "editor/TextoDelEditor.h"

using namespace pixmosa;

TEST(Historial, UndoesAndRedoesWholeActions) {
  BasEditor e;
  Historial h;
  const auto act = [&](auto action) {
    h.Empezar(e);
    action();
    h.Terminar(e);
  };
  h.Deshacer(e);  // nothing to undo
  AbrirTexto(e, "ab\r\n" + std::string(99, 'z'));
  const std::string opened = DrawingText(e);
  act([&] { EraseCell(e, {1, 1}); });
  const Characters erased = e.Screen;
  act([&] { PintarCaracter(e, 2, 1, 'b'); });  // changes nothing
  h.Deshacer(e);
  EXPECT_EQ(e.Screen.At({1, 1}), 'a');
  h.Rehacer(e);
  EXPECT_EQ(e.Screen, erased);
  EXPECT_EQ(e.Grid.At({1, 1}), 'a');
  act([&] { BorrarTodo(e); });
  EXPECT_EQ(DrawingText(e), "");
  h.Deshacer(e);
  EXPECT_EQ(DrawingText(e), opened) << "with the text it came from, and the last column";
  h.Deshacer(e);
  EXPECT_FALSE(h.PuedeDeshacer());
  act([&] { PaintText(e, "z"); });
  EXPECT_FALSE(h.PuedeRehacer()) << "a new action ends the redo";
}
