#include <gtest/gtest.h>

#include "editor/Historial.h"
#include "editor/TextoDelEditor.h"
#include "tests/support/DrawingRows.h"

using namespace pixmosa;
using test::Rows;
using Strings = std::vector<std::string>;

TEST(EditorCells, PointerPositionsRoundHalfToEven) {
  for (const auto& [p, c] : std::vector<std::pair<Point, Cell>>{{{0, 0}, {0, 0}},
                                                                {{4, 6}, {1, 1}},
                                                                {{8, 12}, {2, 2}},
                                                                {{16, 24}, {2, 2}},
                                                                {{24, 36}, {4, 4}},
                                                                {{32, 48}, {4, 4}},
                                                                {{7, 11}, {1, 1}},
                                                                {{1, 1}, {1, 1}},
                                                                {{-12, 899}, {-1, 75}},
                                                                {{799, 900}, {100, 76}}})
    EXPECT_EQ(CellFromPoint(p), c) << p.x << "," << p.y;
  EXPECT_EQ(PointFromCell({1, 1}), (Point{0, 0}));
  EXPECT_EQ(PointFromCell({100, 75}), (Point{792, 888}));
  for (const auto& [p, q] :
       std::vector<std::pair<Point, Point>>{{{4, 6}, {0, 0}}, {{12, 18}, {16, 24}}, {{-5, 100}, {-8, 96}}})
    EXPECT_EQ(SnapToLattice(p), q) << "halves go to the even corner";
}

TEST(EditorPainting, OnlyValidCells) {
  BasEditor e;
  for (const Cell c : {Cell{-1, 0}, {101, 0}, {0, -1}, {0, 75}, {5, 75}, {32767, 3}})
    PintarCaracter(e, c.column, c.row, 'x');
  EXPECT_EQ(e.Grid, Characters());
  PintarCaracter(e, 0, 0, 'a');
  PintarCaracter(e, 100, 74, 'b');
  EXPECT_EQ(e.Changed, (std::vector<Cell>{{0, 0}, {100, 74}}));
  PaintText(e, "\rab");
  EraseCell(e, {1, 2});
  EraseCell(e, {300, 300});
  EXPECT_EQ(Rows(e.Screen, 2, 2, 2), Strings{" b"});
  EXPECT_EQ(Rows(e.Grid, 2, 2, 2), Strings{"ab"}) << "the eraser leaves the grid";
  Clear(e);
  EXPECT_EQ(e.Screen, Characters());
  EXPECT_EQ(e.Grid.At({100, 74}), 'b') << "Clear leaves the last column";
  EXPECT_EQ(e.Grid.At({0, 0}), ' ');
}

TEST(EditorPainting, TextsKeepTheirLineFeedsAsCells) {
  BasEditor e;
  PaintText(e, "abc\r\nde\rf");
  EXPECT_EQ(Rows(e.Grid, 1, 3, 3), (Strings{"abc", "\nde", "f  "}));
  PaintText(e, std::string(1'000'000, 'x'));
  EXPECT_EQ(e.Grid.At({100, 1}), 'x');
  EXPECT_EQ(e.Grid.At({0, 1}), ' ');
  PaintText(e, std::string(73, '\r') + "y\rz\rz");
  EXPECT_EQ(e.Grid.At({1, 74}), 'y');
  EXPECT_EQ(e.Grid.At({1, 75}), ' ');
}

TEST(EditorBoxes, CornersSidesAndInside) {
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
                       {{8, 36}, {40, 0}, true, {" +--+", " |##|", " +--+"}},
                       {{-80, -120}, {4000, 4000}, true, {"#####", "#####", "#####"}}}) {
    BasEditor e;
    DrawBox(e, r.a, r.b, r.filled);
    EXPECT_EQ(Rows(e.Grid, 1, 3, 5), r.rows) << r.a.x << "," << r.a.y << " " << r.b.x << "," << r.b.y;
  }
}

TEST(EditorFill, FillsTheRegionAndNothingElse) {
  BasEditor e;
  DrawBox(e, {8, 12}, {48, 60}, false);  // columns 2..6, rows 2..5
  FloodFill(e, {4, 3});
  EXPECT_EQ(Rows(e.Grid, 1, 6, 7),
            (Strings{"       ", " +---+ ", " |###| ", " |###| ", " +---+ ", "       "}));
  e.CurrentChar = 'o';
  FloodFill(e, {2, 3});  // the left side: two bars between corners
  EXPECT_EQ(Rows(e.Grid, 2, 5, 3), (Strings{" +-", " o#", " o#", " +-"}));
  const Characters before = e.Grid;
  for (const auto& [c, ch] : {std::pair{Cell{2, 2}, 'o'}, {Cell{50, 50}, ' '}, {Cell{-3, 900}, 'o'}}) {
    e.CurrentChar = ch;
    FloodFill(e, c);
    EXPECT_EQ(e.Grid, before) << "alone among others, the character that is there, outside";
  }
  e.CurrentChar = '.';
  FloodFill(e, {50, 75});  // from a row that cannot be painted
  EXPECT_EQ(std::string({e.Grid.At({0, 0}), e.Grid.At({100, 74}), e.Grid.At({50, 75})}), ".. ");
}

TEST(EditorTransformations, FlipsShiftTheDrawing) {
  const auto drawn = [](std::initializer_list<std::pair<Cell, char>> cells) {
    BasEditor e;
    for (const auto& [c, ch] : cells) PintarCaracter(e, c.column, c.row, ch);
    return e;
  };
  BasEditor h = drawn({{{1, 0}, 'a'}, {{1, 1}, 'b'}, {{100, 2}, 'c'}, {{0, 2}, 'd'}});
  FlipHorizontal(h);
  EXPECT_EQ(h.Grid.At({100, 1}), 'a') << "the first line keeps column c at 101 - c";
  EXPECT_EQ(h.Grid.At({1, 2}), '\n');
  EXPECT_EQ(h.Grid.At({2, 3}), 'c') << "later lines begin with the LF";
  EXPECT_EQ(h.Grid.At({100, 2}), ' ') << "pushed past the last column";
  BasEditor v = drawn({{{7, 2}, 'a'}, {{7, 1}, 'b'}});
  EraseCell(v, {7, 2});
  FlipVertical(v);
  EXPECT_EQ(v.Screen.At({9, 74}), 'a')
      << "row r lands on 76 - r; column 7 is the eighth, behind the LF; erased ones come back";
  EXPECT_EQ(v.Grid.At({9, 75}), ' ');
  BasEditor empty;
  FlipVertical(empty);
  for (int row = 1; row <= 75; ++row)
    EXPECT_EQ(empty.Grid.At({1, row}), row >= 2 && row < 75 ? '\n' : ' ') << row;
}

TEST(EditorTransformations, CaseOfTheUnaccentedLetters) {
  BasEditor e;
  PaintText(e, "aZ[`{ \xF1\xD1");
  e.Grid.At({3, 75}) = 'q';
  UpperToLower(e);
  EXPECT_EQ(Rows(e.Grid, 1, 1, 8), (Strings{"az[`{ \xF1\xD1"}));
  LowerToUpper(e);
  EXPECT_EQ(Rows(e.Grid, 1, 1, 8), (Strings{"AZ[`{ \xF1\xD1"}));
  EXPECT_EQ(e.Grid.At({3, 75}), 'q');
}

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
  act([&] { BorrarTodo(e); });
  EXPECT_EQ(DrawingText(e), "");
  h.Deshacer(e);
  EXPECT_EQ(DrawingText(e), opened) << "with the text it came from, and the last column";
  h.Deshacer(e);
  EXPECT_FALSE(h.PuedeDeshacer());
  act([&] { PaintText(e, "z"); });
  EXPECT_FALSE(h.PuedeRehacer()) << "a new action ends the redo";
}
