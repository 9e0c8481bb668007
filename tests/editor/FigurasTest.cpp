#include <gtest/gtest.h>

#include "editor/Bloque.h"
#include "editor/Figuras.h"
#include "editor/TextoDelEditor.h"
#include "tests/support/DrawingRows.h"

using namespace pixmosa;
using test::Rows;
using Strings = std::vector<std::string>;

namespace {

Strings Drawn(const std::vector<Pintada>& cells, int rows, int columns) {
  BasEditor e;
  Pintar(e, cells);
  return Rows(e.Grid, 1, rows, columns);
}

}  // namespace

TEST(Figuras, LinesArrowsAndEllipses) {
  EXPECT_EQ(Drawn(Linea({1, 1}, {5, 3}, TrazoDeLinea::Caracter, U'*'), 3, 5),
            (Strings{"*    ", " **  ", "   **"}));
  EXPECT_EQ(Drawn(Linea({1, 3}, {5, 1}, TrazoDeLinea::Pendiente, U'*'), 3, 5),
            (Strings{"   --", " -/  ", "/    "}));
  EXPECT_EQ(Drawn(Flecha({5, 1}, {1, 1}), 1, 5), (Strings{"<----"}));
  EXPECT_EQ(Drawn(Flecha({2, 1}, {2, 3}), 3, 3), (Strings{" | ", " | ", " v "}));
  EXPECT_EQ(Drawn(Flecha({4, 4}, {1, 1}), 4, 4), (Strings{"^   ", " \\  ", "  \\ ", "   \\"}));
  EXPECT_EQ(Enderezada({1, 1}, {9, 3}), (Cell{9, 1}));
  EXPECT_EQ(Enderezada({9, 9}, {2, 4}), (Cell{2, 2}));
  const Lienzo canvas;
  EXPECT_EQ(Drawn(Elipse(canvas, {7, 5}, {1, 1}, false, U'o'), 5, 7),
            (Strings{" ooooo ", "o     o", "o     o", "o     o", " ooooo "}));
  EXPECT_EQ(Drawn(Elipse(canvas, {1, 1}, {4, 3}, true, U'o'), 3, 4), (Strings{" oo ", "oooo", " oo "}));
  EXPECT_EQ(Elipse(canvas, {3, 3}, {3, 3}, false, U'o').size(), 1U);
  EXPECT_TRUE(Elipse(canvas, {-3000, -3000}, {3000, 3000}, false, U'o').empty()) << "around the canvas";
}

TEST(Figuras, BoxesJoin) {
  const auto box = [](BasEditor& e, Cell a, Cell b, EstiloDeMarco style) {
    Pintar(e, Marco(e.Grid, a, b, style));
  };
  struct Row {
    EstiloDeMarco first, second;
    Strings rows;
  };
  using enum EstiloDeMarco;
  for (const Row& r : {Row{Ascii, Ascii, {"+---+ ", "| +-++", "| | ||", "+-+-+|", "  +--+"}},
                       {Simple, Simple, {"┌───┐ ", "│ ┌─┼┐", "│ │ ││", "└─┼─┘│", "  └──┘"}},
                       {Simple, Doble, {"┌───┐ ", "│ ╔═╪╗", "│ ║ │║", "└─╫─┘║", "  ╚══╝"}},
                       {Redondo, Redondo, {"╭───╮ ", "│ ╭─┼╮", "│ │ ││", "╰─┼─╯│", "  ╰──╯"}},
                       {Grueso, Simple, {"┏━━━┓ ", "┃ ┌─╂┐", "┃ │ ┃│", "┗━┿━┛│", "  └──┘"}},
                       {Grueso, Doble, {"┏━━━┓ ", "┃ ╔═╬╗", "┃ ║ ┃║", "┗━╬━┛║", "  ╚══╝"}}}) {
    BasEditor e;
    box(e, {1, 1}, {5, 4}, r.first);
    box(e, {6, 5}, {3, 2}, r.second);
    EXPECT_EQ(Rows(e.Grid, 1, 5, 6), r.rows);
  }
  BasEditor e;
  box(e, {1, 1}, {5, 3}, Simple);
  box(e, {1, 2}, {5, 2}, Simple);  // a line: an arm each way
  box(e, {3, 1}, {3, 3}, Simple);
  EXPECT_EQ(Rows(e.Grid, 1, 3, 5), (Strings{"┌─┼─┐", "┼─┼─┼", "└─┼─┘"}));
}

TEST(Bloque, CopiesMirrorsAndPutsDown) {
  BasEditor e;
  AbrirTexto(e, "(/b>d\r┌╭▌'\r⠁ pq");
  const ZonaDeCeldas all{{1, 1}, {5, 3}};
  EXPECT_EQ(TextoDe(Copiado(e.Grid, all)), "(/b>d\r\n┌╭▌'\r\n⠁ pq");
  EXPECT_EQ(TextoDe(Volteado(Copiado(e.Grid, all), Eje::Horizontal)), "b<d\\)\r\n '▐╮┐\r\n pq ⠈");
  EXPECT_EQ(TextoDe(Volteado(Copiado(e.Grid, all), Eje::Vertical)), "⡀ bd\r\n└╰▌.\r\n(\\p>q");
  for (char32_t c = 32; c < 0x2900; ++c)
    for (const Eje axis : {Eje::Horizontal, Eje::Vertical})
      ASSERT_EQ(Reflejado(Reflejado(c, axis), axis), c) << static_cast<std::uint32_t>(c);
  Poner(e, BloqueDe("xy\n z\n"), {4, 2}, true);
  EXPECT_EQ(Rows(e.Grid, 2, 3, 5), (Strings{"┌╭▌xy", "⠁ pqz"}));
  Poner(e, BloqueDe("xy\r\n z"), {0, 2}, false);
  EXPECT_EQ(Rows(e.Grid, 2, 3, 5), (Strings{"y╭▌xy", "z pqz"}));
  EXPECT_EQ(Reemplazar(e, {{2, 1}, {5, 3}}, U'z', U'Z'), 1);
  EXPECT_EQ(ZonaUsada(e.Grid), all);
  EXPECT_EQ(ZonaUsada(Lienzo()), (ZonaDeCeldas{{1, 1}, {1, 1}}));
}

TEST(Bloque, OtherSizesKeepOrCutTheText) {
  BasEditor e;
  AbrirTexto(e, "abc\r\ndef");
  Redimensionar(e, 500, 4096);
  EXPECT_EQ(DrawingText(e), "abc\r\ndef");
  PintarCaracter(e, 500, 2, 'x');
  EXPECT_EQ(DrawingText(e).size(), 8 + 496U);
  Redimensionar(e, 2, 9, {2, 1});
  EXPECT_EQ(DrawingText(e), "bc\r\nef") << "cut, all lines from one column";
}
