#include <gtest/gtest.h>
#include <random>

#include "editor/TextoDelEditor.h"
#include "tests/support/DrawingRows.h"

using namespace pixmosa;

namespace {

// 320 x 111, each line of its own length.
std::string Large() {
  std::string text;
  for (int i = 0; i < 111; ++i)
    text += (i ? "\r\n" : "") + std::string(static_cast<std::size_t>(320 - i), 'a' + i % 26);
  return text;
}

const std::string kShapes[] = {"",
                               " ",
                               "a",
                               "ab\r\nc",
                               "ab\r\n",
                               "\r\n",
                               "\r\n\r\n\r\n",
                               "a  \r\n  \r\n\r\n b \r\n\r\n",
                               "\nuno\ndos\n",
                               "a\rb\r\nc\r\r",
                               "a\r\n\nb\n\r\nc",
                               "a\tb\x1F\x01\r\n\u00A0\u00AD\u0081ÿ≠😀\uE0B0\xFF"};

// A row with a character in the last column, and one that leaves it free.
const std::string kWide = std::string(100, 'x') + "\r\n" + std::string(99, 'y');

std::string Opened(BasEditor& e, const std::string& text) {
  AbrirTexto(e, text);
  return DrawingText(e);
}

// Where the character of a cell stands in an opened text; its size for a cell that the text has not.
std::size_t Place(const std::string& text, Cell at) {
  std::size_t i = 0;
  for (Cell c{1, 1}; i < text.size() && !(c == at && text[i] != '\r'); ++i)
    c = text[i] == '\r' ? Cell{1, c.row + 1} : Cell{c.column + 1, c.row};
  return i;
}

}  // namespace

TEST(TextoDelEditor, WhatIsNotChangedComesBackByteForByte) {
  BasEditor e;  // one for all: nothing of the text before may stay
  for (const std::string& text : kShapes) EXPECT_EQ(Opened(e, text), text);
  for (const std::string& text : {Large(), Large() + "\r\n\r\n", kWide}) EXPECT_EQ(Opened(e, text), text);
  std::mt19937 random(1);
  for (int i = 0; i < 300; ++i) {
    std::string text;
    for (auto n = random() % 400; n > 0; --n) text += "\r\n\r\nab  \t"[random() % 9];
    ASSERT_EQ(Opened(e, text), text);
    const Cell c{2 + static_cast<int>(random() % 99), 1 + static_cast<int>(random() % 74)};
    const std::size_t at = Place(text, c);
    if (at == text.size() || text[at] == '\n') continue;
    PintarCaracter(e, c.column, c.row, '#');
    text[at] = '#';
    ASSERT_EQ(DrawingText(e), text) << "one cell: " << c.column << "," << c.row;
  }
}

TEST(TextoDelEditor, EditsReachTheirPlaceAndNoOther) {
  struct Row {
    std::string text;
    Cell cell;
    char32_t ch;
    std::string sent;
  };
  for (const Row& r : {Row{"ab\r\ncd", {3, 2}, '#', "ab\r\nc#"},
                       {"ab\r\ncd", {5, 2}, '#', "ab\r\ncd #"},
                       {"ab\r\ncd", {3, 4}, '#', "ab\r\ncd\r\n\r\n #"},
                       {"ab", {3, 3}, '#', "ab\r\n\r\n  #"},
                       {"ab\r\n", {2, 2}, '#', "ab\r\n#"},
                       {"ab\rcd", {1, 2}, '#', "ab\r#d"},
                       {"ab  \r\nc", {4, 1}, '#', "ab #\r\nc"},
                       {"abc\r\nd", {3, 1}, ' ', "ab \r\nd"},
                       {"ab\r\ncd", {9, 9}, ' ', "ab\r\ncd"},
                       {"ab\r\ncd", {1, 2}, ' ', "ab\r\ncd"},
                       {"ab\r\ncd\r\n\r\ne", {1, 2}, '#', " ab\r\n#cd\r\n\r\n e"},
                       {"", {2, 2}, 2, ""},
                       {"ab", {0, 0}, '#', "ab"}}) {
    BasEditor e;
    AbrirTexto(e, r.text);
    PintarCaracter(e, r.cell.column, r.cell.row, r.ch);
    EXPECT_EQ(DrawingText(e), r.sent) << r.text << " " << r.cell.column << "," << r.cell.row;
  }
}

TEST(TextoDelEditor, TheCanvasIsAsLargeAsItsText) {
  // A text, its canvas, and whether it has all of it.
  struct Row {
    std::string text;
    int columns, rows;
    bool fits;
  };
  for (const Row& r : {Row{"", 100, 74, true},
                       {kWide, 100, 74, true},
                       {"a\r\n" + std::string(100, 'x'), 101, 74, true},
                       {Large(), 320, 111, true},
                       {std::string(74, '\r') + "\nx", 100, 75, true},
                       {std::string(4097, 'x'), 4096, 74, false},
                       {std::string(4099, '\r') + "\nabc", 100, 4096, false}}) {
    BasEditor e;
    AbrirTexto(e, r.text);
    EXPECT_EQ(e.Grid.Columnas(), r.columns);
    EXPECT_EQ(e.Grid.Filas(), r.rows);
    EXPECT_EQ(e.Abierto->cabe, r.fits);
    PintarCaracter(e, 1, r.rows, '#');
    PintarCaracter(e, 1, r.rows, e.Abierto->lineas < r.rows || !r.fits ? U' ' : U'\n');
    EXPECT_EQ(DrawingText(e).size(), r.text.size());
  }
  BasEditor e;
  const std::string tall = "ab" + std::string(4098, '\r') + "\nabc";
  AbrirTexto(e, tall + "\r");
  PintarCaracter(e, 2, 1, '#');
  EXPECT_EQ(DrawingText(e), "a#" + tall.substr(2) + "\r") << "outside as it was";
  AbrirTexto(e, "a\r\n\r\nb" + std::string(4100, '\r') + "\nabc");
  PintarCaracter(e, 1, 3, '#');
  EXPECT_TRUE(DrawingText(e).starts_with(" a\r\n\r\n#b\r") && DrawingText(e).ends_with("\r\n abc"))
      << "outside as inside";
}

TEST(TextoDelEditor, AlignedLinesAreTheSameText) {
  for (const std::string& text : {std::string("ab\r\ncd\r\n\r\ne"), Large(), std::string("a\rb\r\nc\r\r")}) {
    BasEditor e;
    AbrirTexto(e, text);
    AlinearRenglones(e);
    EXPECT_EQ(DrawingText(e), text);
  }
  BasEditor e;
  AbrirTexto(e, "ab\r\ncd");
  AlinearRenglones(e);
  EXPECT_EQ(test::Rows(e.Grid, 1, 2, 3), (std::vector<std::string>{"ab ", "cd "}));
  PintarCaracter(e, 1, 2, '#');
  PintarCaracter(e, 2, 4, 0x2588);
  e.CurrentChar.tinta = 0xFF;
  PintarCaracter(e, 2, 1, 'b');
  EXPECT_EQ(DrawingText(e), "ab\r\n#d\r\n\r\n █");
  const Dibujo cells = DrawingCells(e);
  ASSERT_EQ(cells.filas.size(), 4U);
  EXPECT_EQ(cells.filas[0], (Fila{{U'a'}, {U'b', 0xFF}}));
  EXPECT_EQ(cells.filas[3], (Fila{{U' '}, {U'█'}}));
  const TextoDePagina page = EnPagina("ñ─╬│→█≠");
  EXPECT_EQ(page.bytes, "\xF1-+|>#?");
  EXPECT_EQ(page.cambiados, 6U);
}

TEST(TextoDelEditor, ErasedCharactersComeBack) {
  BasEditor e;
  AbrirTexto(e, "abc");
  EraseCell(e, {2, 1});
  EXPECT_EQ(DrawingText(e), "abc") << "erased characters are still in the grid";
}

TEST(TextoDelEditor, NewDrawingsHoldWhatIsSeen) {
  BasEditor e;
  AbrirTexto(e, kWide);
  BorrarTodo(e);
  EXPECT_EQ(e.Grid.Caracter({100, 1}), 'x') << "the last column stays in the grid, unseen";
  EXPECT_EQ(DrawingText(e), "");
  PaintText(e, "  a \r\nb\r\n\r\nc\037d");
  EXPECT_EQ(DrawingText(e), "  a\r\n b\r\n\r\n c d");
  PintarCaracter(e, 100, 2, 'z');
  EXPECT_EQ(DrawingText(e), "  a\r\n b" + std::string(97, ' ') + "z\r\n\r\n c d");
  BasEditor flipped;
  AbrirTexto(flipped, "ab\r\ncd");
  FlipHorizontal(flipped);  // row r lands on r + 1 behind a line feed, and what was in column 1 outside
  EXPECT_EQ(DrawingText(flipped), "  \r\n" + std::string(98, ' ') + "b\r\n" + std::string(97, ' ') + "dc");
}
