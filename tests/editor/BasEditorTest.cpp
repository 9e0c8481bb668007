#include <gtest/gtest.h>

#include "editor/basEditor.h"
#include "tests/support/DrawingRows.h"

using namespace pixmosa;
using test::Rows;

TEST(EditorCells, PointerPositionsRoundHalfToEven) {
  struct Row {
    Point p;
    Cell c;
  };
  for (const Row& r : {Row{{0, 0}, {0, 0}},
                       {{4, 6}, {1, 1}},
                       {{8, 12}, {2, 2}},
                       {{16, 24}, {2, 2}},
                       {{24, 36}, {4, 4}},
                       {{32, 48}, {4, 4}},
                       {{7, 11}, {1, 1}},
                       {{1, 1}, {1, 1}},
                       {{-1, -1}, {0, 0}},
                       {{-12, 899}, {-1, 75}},
                       {{799, 900}, {100, 76}}})
    EXPECT_EQ(CellFromPoint(r.p), r.c) << r.p.x << "," << r.p.y;
  EXPECT_EQ(PointFromCell({1, 1}), (Point{0, 0}));
  EXPECT_EQ(PointFromCell({100, 75}), (Point{792, 888}));
  EXPECT_EQ(SnapToLattice({4, 6}), (Point{0, 0})) << "halves go to the even corner";
  EXPECT_EQ(SnapToLattice({12, 18}), (Point{16, 24}));
  EXPECT_EQ(SnapToLattice({-5, 100}), (Point{-8, 96}));
}

TEST(EditorPainting, OnlyValidCells) {
  BasEditor e;
  for (const Cell c : {Cell{-1, 0}, {101, 0}, {0, -1}, {0, 75}, {5, 75}, {32767, 3}})
    PintarCaracter(e, c.column, c.row, 'x');
  EXPECT_EQ(e.Grid, Characters());
  PintarCaracter(e, 0, 0, 'a');
  PintarCaracter(e, 100, 74, 'b');
  EXPECT_EQ(e.Grid.At({0, 0}), 'a');
  EXPECT_EQ(e.Grid.At({100, 74}), 'b');
  EXPECT_EQ(e.Changed, (std::vector<Cell>{{0, 0}, {100, 74}}));
}

TEST(EditorPainting, EraserChangesTheScreenAlone) {
  BasEditor e;
  PaintText(e, "ab");
  EraseCell(e, {1, 1});
  EraseCell(e, {300, 300});
  EXPECT_EQ(Rows(e.Screen, 1, 1, 2), (std::vector<std::string>{" b"}));
  EXPECT_EQ(Rows(e.Grid, 1, 1, 2), (std::vector<std::string>{"ab"}));
  FlipVertical(e);  // row 1 lands on row 75, which cannot be painted; row 2 on row 74
  Clear(e);
  PaintText(e, "\rab");
  EraseCell(e, {1, 2});
  FlipVertical(e);
  EXPECT_EQ(e.Screen.At({3, 74}), 'a') << "erased characters come back";
}

TEST(EditorPainting, TextsKeepTheirLineFeedsAsCells) {
  BasEditor e;
  PaintText(e, "abc\r\nde\rf");
  EXPECT_EQ(Rows(e.Grid, 1, 3, 3), (std::vector<std::string>{"abc", "\nde", "f  "}));
  PaintText(e, std::string(1'000'000, 'x'));
  EXPECT_EQ(e.Grid.At({100, 1}), 'x');
  EXPECT_EQ(e.Grid.At({0, 1}), ' ');
  std::string deep;
  for (int i = 0; i < 200; ++i) deep += "y\r";
  PaintText(e, deep);
  EXPECT_EQ(e.Grid.At({1, 74}), 'y');
  EXPECT_EQ(e.Grid.At({1, 75}), ' ');
}

TEST(EditorPainting, ClearLeavesTheLastColumnInTheGrid) {
  BasEditor e;
  PintarCaracter(e, 100, 5, 'k');
  PintarCaracter(e, 99, 5, 'j');
  Clear(e);
  EXPECT_EQ(e.Grid.At({100, 5}), 'k');
  EXPECT_EQ(e.Grid.At({99, 5}), ' ');
  EXPECT_EQ(e.Screen, Characters());
}

TEST(EditorBoxes, CornersSidesAndInside) {
  struct Row {
    Point a, b;
    bool filled;
    std::vector<std::string> rows;
  };
  for (const Row& r : {
           Row{{0, 0}, {8, 12}, false, {"+    ", "     ", "     "}},
           Row{{0, 0}, {0, 36}, false, {"     ", "     ", "     "}},
           Row{{0, 0}, {32, 0}, true, {"     ", "     ", "     "}},
           Row{{0, 0}, {16, 36}, true, {"++   ", "||   ", "++   "}},
           Row{{0, 0}, {32, 12}, false, {"+--+ ", "     ", "     "}},
           Row{{40, 36}, {8, 0}, false, {" +--+", " |  |", " +--+"}},
           Row{{8, 36}, {40, 0}, true, {" +--+", " |##|", " +--+"}},
       }) {
    BasEditor e;
    DrawBox(e, r.a, r.b, r.filled);
    EXPECT_EQ(Rows(e.Grid, 1, 3, 5), r.rows) << r.a.x << "," << r.a.y << " " << r.b.x << "," << r.b.y;
  }
  BasEditor e;
  DrawBox(e, {-80, -120}, {4000, 4000}, true);
  EXPECT_EQ(e.Grid.At({0, 0}), '#') << "what lies outside is cut off";
}

TEST(EditorFill, FillsTheRegionAndNothingElse) {
  BasEditor e;
  DrawBox(e, {8, 12}, {48, 60}, false);  // columns 2..6, rows 2..5
  FloodFill(e, {4, 3});
  EXPECT_EQ(Rows(e.Grid, 1, 6, 7),
            (std::vector<std::string>{"       ", " +---+ ", " |###| ", " |###| ", " +---+ ", "       "}));
  e.CurrentChar = 'o';
  FloodFill(e, {2, 3});  // the left side: two bars between corners
  EXPECT_EQ(Rows(e.Grid, 2, 5, 3), (std::vector<std::string>{" +-", " o#", " o#", " +-"}));
}

TEST(EditorFill, StartAloneStaysAndEveryFillEnds) {
  BasEditor e;
  PaintText(e, "xax");
  FloodFill(e, {2, 1});
  EXPECT_EQ(Rows(e.Grid, 1, 1, 3), (std::vector<std::string>{"xax"})) << "no matching neighbour";
  e.CurrentChar = ' ';
  const Characters before = e.Grid;
  FloodFill(e, {50, 50});
  EXPECT_EQ(e.Grid, before) << "the character that is already there";
  e.CurrentChar = '.';
  FloodFill(e, {50, 75});  // from a row that cannot be painted
  EXPECT_EQ(e.Grid.At({0, 0}), '.');
  EXPECT_EQ(e.Grid.At({100, 74}), '.');
  EXPECT_EQ(e.Grid.At({50, 75}), ' ');
  FloodFill(e, {-3, 900});
}

TEST(EditorTransformations, FlipsShiftTheDrawing) {
  BasEditor e;
  PintarCaracter(e, 1, 0, 'a');
  PintarCaracter(e, 1, 1, 'b');
  PintarCaracter(e, 100, 2, 'c');
  PintarCaracter(e, 0, 2, 'd');
  FlipHorizontal(e);
  EXPECT_EQ(e.Grid.At({100, 1}), 'a') << "the first line keeps column c at 101 - c";
  EXPECT_EQ(e.Grid.At({1, 2}), '\n');
  EXPECT_EQ(e.Grid.At({2, 3}), 'c') << "later lines begin with the LF";
  EXPECT_EQ(e.Grid.At({100, 2}), ' ') << "pushed past the last column";

  BasEditor v;
  PintarCaracter(v, 7, 2, 'a');
  PintarCaracter(v, 7, 1, 'b');
  FlipVertical(v);
  EXPECT_EQ(v.Grid.At({9, 74}), 'a') << "row r lands on row 76 - r: column 7 is the eighth, behind the LF";
  EXPECT_EQ(v.Grid.At({9, 75}), ' ');

  BasEditor empty;
  FlipVertical(empty);
  for (int row = 1; row <= 75; ++row)
    EXPECT_EQ(empty.Grid.At({1, row}), row >= 2 && row < 75 ? '\n' : ' ') << row;
}

TEST(EditorTransformations, CaseOfTheUnaccentedLetters) {
  BasEditor e;
  PaintText(e, "aZ[`{ \xF1\xD1");
  UpperToLower(e);
  EXPECT_EQ(Rows(e.Grid, 1, 1, 8), (std::vector<std::string>{"az[`{ \xF1\xD1"}));
  LowerToUpper(e);
  EXPECT_EQ(Rows(e.Grid, 1, 1, 8), (std::vector<std::string>{"AZ[`{ \xF1\xD1"}));
  e.Grid.At({3, 75}) = 'q';
  LowerToUpper(e);
  EXPECT_EQ(e.Grid.At({3, 75}), 'q');
}
