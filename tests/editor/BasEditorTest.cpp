#include <gtest/gtest.h>

#include "editor/Historial.h"
#include "editor/Relleno.h"
#include "editor/TextoDelEditor.h"
#include "tests/support/DrawingRows.h"

using namespace pixmosa;
using test::Rows;
using test::Seen;
using Strings = std::vector<std::string>;

class BasEditorTest : public testing::Test {
 protected:
  BasEditor e;
};

TEST_F(BasEditorTest, PointerPositionsRoundHalfToEven) {
  // A point, its cell, its nearest corner of cells.
  constexpr int kPuntos[][6] = {
      {0, 0, 0, 0, 0, 0},           {4, 6, 1, 1, 0, 0},           {8, 12, 2, 2, 8, 12},
      {12, 18, 2, 2, 16, 24},       {16, 24, 2, 2, 16, 24},       {24, 36, 4, 4, 24, 36},
      {32, 48, 4, 4, 32, 48},       {7, 11, 1, 1, 8, 12},         {1, 1, 1, 1, 0, 0},
      {-12, 899, -1, 75, -16, 900}, {799, 900, 100, 76, 800, 900}};
  for (const auto& r : kPuntos) {
    EXPECT_EQ(CellFromPoint({r[0], r[1]}), (Cell{r[2], r[3]})) << r[0];
    EXPECT_EQ(SnapToLattice({r[0], r[1]}), (Point{r[4], r[5]})) << r[0];
  }
  EXPECT_EQ(PointFromCell({100, 75}), (Point{792, 888}));
}

TEST_F(BasEditorTest, OnlyValidCellsArePainted) {
  for (const Cell c : {Cell{-1, 0}, {101, 0}, {0, -1}, {0, 75}, {5, 75}, {32767, 3}})
    PintarCaracter(e, c.column, c.row, 'x');
  EXPECT_TRUE(e.Grid == Lienzo());
  PintarCaracter(e, 0, 0, 'a');
  PintarCaracter(e, 100, 74, 'b');
  EXPECT_EQ(e.Grid.Cambiadas(), (std::vector<ZonaDeCeldas>{{{0, 0}, {0, 0}}, {{100, 74}, {100, 74}}}));
  PaintText(e, "abc\r\nde\rf" + std::string(70, '\r') + "y\rz\rz");
  EXPECT_EQ(Rows(e.Grid, 1, 3, 3), (Strings{"abc", "\nde", "f  "})) << "LF is a character";
  EXPECT_EQ(Rows(e.Grid, 73, 75, 1), (Strings{"y", "z", " "}));
  EraseCell(e, {1, 2});
  EraseCell(e, {101, -1});
  EXPECT_EQ(e.Grid.Visto({0, 0}), 'a') << "the same place of the table";
  EXPECT_EQ(Seen(e.Grid, 2, 2, 3), Strings{" de"});
  EXPECT_EQ(Rows(e.Grid, 2, 2, 3), Strings{"\nde"}) << "the eraser leaves the grid";
  Clear(e);
  EXPECT_EQ(Seen(e.Grid, 0, 75, 100), Strings(76, std::string(100, ' ')));
  EXPECT_EQ(e.Grid.Caracter({100, 74}), 'b') << "Clear leaves the last column";
  EXPECT_EQ(e.Grid.Caracter({0, 0}), ' ');
  PaintText(e, std::string(1'000'000, 'x'));
  EXPECT_EQ(std::u32string({e.Grid.Caracter({100, 1}), e.Grid.Caracter({0, 1}), e.Grid.Caracter({1, 2})}),
            U"x  ");
}

TEST_F(BasEditorTest, BoxesHaveCornersSidesAndInside) {
  struct Row {
    Point a, b;
    bool filled;
    Strings rows;
  };
  for (const Row& r : {Row{{0, 0}, {8, 12}, false, {"+    ", "     ", "     "}},
                       {{0, 0}, {0, 36}, false, {"     ", "     ", "     "}},
                       {{0, 0}, {32, 0}, true, {"     ", "     ", "     "}},
                       {{0, 0}, {16, 36}, true, {"++   ", "||   ", "++   "}},
                       {{0, 0}, {32, 12}, false, {"+--+ ", "     ", "     "}},
                       {{40, 36}, {8, 0}, false, {" +--+", " |  |", " +--+"}},
                       {{8, 36}, {40, 0}, true, {" +--+", " |oo|", " +--+"}},
                       {{-80, -120}, {4000, 4000}, true, {"ooooo", "ooooo", "ooooo"}}}) {
    BasEditor box;
    box.CurrentChar.caracter = 'o';
    DrawBox(box, r.a, r.b, r.filled);
    EXPECT_EQ(Rows(box.Grid, 1, 3, 5), r.rows) << r.a.x << "," << r.a.y << " " << r.b.x << "," << r.b.y;
  }
}

TEST_F(BasEditorTest, FillsTheRegionAndNothingElse) {
  DrawBox(e, {8, 12}, {48, 60}, false);  // columns 2..6, rows 2..5
  // From a place of the drawing with a character, and what rows 1..6 then show.
  struct Row {
    Cell from;
    char32_t with;
    Strings rows;
  };
  const Strings filled{"       ", " +---+ ", " |###| ", " |###| ", " +---+ ", "       "},
      side{"       ", " +---+ ", " o###| ", " o###| ", " +---+ ", "       "};
  for (const auto& [from, with, rows] :
       {Row{{4, 3}, '#', filled},
        {{2, 3}, 'o', side},    // two bars between corners
        {{2, 2}, 'o', side},    // alone among others
        {{50, 50}, ' ', side},  // the character that is there
        {{101, 3}, 'o', side},  // outside
        {{50, 75}, '.', {".......", ".+---+.", ".o###|.", ".o###|.", ".+---+.", "......."}}}) {
    e.CurrentChar.caracter = with;
    FloodFill(e, from);
    EXPECT_EQ(Rows(e.Grid, 1, 6, 7), rows) << from.column;
  }
  EXPECT_EQ(std::u32string({e.Grid.Caracter({0, 0}), e.Grid.Caracter({100, 74}), e.Grid.Caracter({50, 75})}),
            U".. ");
}

TEST_F(BasEditorTest, FlipsShiftTheDrawing) {
  PintarCaracter(e, 1, 0, 'a');
  PintarCaracter(e, 1, 1, 'b');
  PintarCaracter(e, 100, 2, 'c');
  FlipHorizontal(e);
  EXPECT_EQ(e.Grid.Caracter({100, 1}), 'a') << "the first line keeps column c at 101 - c";
  EXPECT_EQ(Rows(e.Grid, 2, 3, 3), (Strings{"\n  ", "\nc "})) << "later lines begin with the LF";
  EXPECT_EQ(e.Grid.Caracter({100, 2}), ' ') << "pushed past the last column";
  EraseCell(e, {2, 3});
  FlipVertical(e);
  EXPECT_EQ(Seen(e.Grid, 72, 75, 5), (Strings{"\n \n  ", "\n \nc ", "\n \n  ", "     "}))
      << "row r lands on 76 - r, its first column on the third; what was erased comes back";
  BasEditor empty;
  FlipVertical(empty);
  for (int row = 1; row <= 75; ++row)
    EXPECT_EQ(empty.Grid.Caracter({1, row}), row >= 2 && row < 75 ? '\n' : ' ') << row;
}

TEST_F(BasEditorTest, CaseOfTheUnaccentedLetters) {
  PaintText(e, "aZ[`{ ñÑ");
  e.Grid.Poner({3, 75}, {U'q'});
  UpperToLower(e);
  EXPECT_EQ(Rows(e.Grid, 1, 1, 8), (Strings{"az[`{ ñÑ"}));
  LowerToUpper(e);
  EXPECT_EQ(Rows(e.Grid, 1, 1, 8), (Strings{"AZ[`{ ñÑ"}));
  EXPECT_EQ(e.Grid.Caracter({3, 75}), 'q');
}

TEST_F(BasEditorTest, HistoryUndoesAndRedoesWholeActions) {
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
  const Lienzo erased = e.Grid;
  act([&] { PintarCaracter(e, 2, 1, 'b'); });  // changes nothing
  h.Deshacer(e);
  EXPECT_EQ(e.Grid.Visto({1, 1}), 'a');
  h.Rehacer(e);
  EXPECT_TRUE(e.Grid == erased);
  act([&] { BorrarTodo(e); });
  EXPECT_EQ(DrawingText(e), "");
  h.Deshacer(e);
  EXPECT_EQ(DrawingText(e), opened) << "with the text it came from, and the last column";
  h.Deshacer(e);
  EXPECT_FALSE(h.PuedeDeshacer());
  act([&] { PaintText(e, "z"); });
  EXPECT_FALSE(h.PuedeRehacer()) << "a new action ends the redo";
  for (int i = 0; i < 1010; ++i)
    act([&] { PintarCelda(e, {1 + i % 100, 1 + i / 100}, U'*', i % 3 ? kNoColour : i); });
  act([&] { e.Grid.Sustituir(Lienzo(4096, 4096)); });
  act([&] { FloodFill(e, {9, 9}); });
  int steps = 0;
  for (; h.PuedeDeshacer(); ++steps) h.Deshacer(e);
  EXPECT_EQ(steps, 1000);
  EXPECT_EQ(Rows(e.Grid, 1, 1, 14), Strings{"************  "}) << "the oldest are forgotten";
  for (; h.PuedeRehacer(); --steps) h.Rehacer(e);
  EXPECT_EQ(steps, 0);
  EXPECT_EQ(e.Grid.Caracter({4096, 4096}), e.CurrentChar.caracter);
}
