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
                               "a\tb\x1F\x01\r\n\xA0\xAD\xFF"};

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
    char ch;
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
                       {"", {2, 2}, '\x02', ""},
                       {"ab", {0, 0}, '#', "ab"}}) {
    BasEditor e;
    AbrirTexto(e, r.text);
    PintarCaracter(e, r.cell.column, r.cell.row, r.ch);
    EXPECT_EQ(DrawingText(e), r.sent) << r.text << " " << r.cell.column << "," << r.cell.row;
  }
  BasEditor e;
  AbrirTexto(e, Large());
  PintarCaracter(e, 1, 2, '#');
  const std::string sent = DrawingText(e);
  EXPECT_TRUE(sent.starts_with(" aaa") && sent.ends_with("\r\n " + std::string(210, 'g')))
      << "outside as inside";
}

TEST(TextoDelEditor, WhatTheSurfaceDoesNotShowStays) {
  BasEditor e;
  AbrirTexto(e, Large());
  EXPECT_EQ(e.Abierto->columnas, 320);
  EXPECT_EQ(e.Abierto->lineas, 111);
  for (const auto& [text, fits] : {std::pair{Large(), false},
                                   {kWide, true},
                                   {"a\r\n" + std::string(100, 'x'), false},
                                   {std::string(74, '\r') + "\n\r\n", true},
                                   {std::string(74, '\r') + "\nx", false}}) {
    AbrirTexto(e, text);
    EXPECT_EQ(e.Abierto->cabe, fits) << text;
  }
  AbrirTexto(e, "abc");
  EraseCell(e, {2, 1});
  EXPECT_EQ(DrawingText(e), "abc") << "erased characters are still in the grid";
}

TEST(TextoDelEditor, NewDrawingsHoldWhatIsSeen) {
  BasEditor e;
  AbrirTexto(e, kWide);
  BorrarTodo(e);
  EXPECT_EQ(e.Grid.At({100, 1}), 'x') << "the last column stays in the grid, unseen";
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
