#include <gtest/gtest.h>
#include <sstream>

#include "platform/CodePage.h"
#include "tests/exportar/Taller.h"

using namespace pixmosa;
using test::Entintado;
using test::kAzul;
using test::kRojo;
using test::kVerde;
using test::Taller;

namespace {

// A terminal of 24 bits: the cells that a text shows. kNoColour is its own colour.
Dibujo Leer(std::string_view text) {
  Dibujo d;
  d.filas.emplace_back();
  Celda pen;
  while (!text.empty()) {
    if (text.starts_with("\x1b[")) {
      const std::size_t end = text.find('m');
      std::istringstream parameters{std::string(text.substr(2, end - 2))};
      text.remove_prefix(end + 1);
      std::vector<int> n;
      for (std::string word; std::getline(parameters, word, ';');) n.push_back(std::stoi(word));
      for (std::size_t i = 0; i < n.size(); ++i) {
        if (n[i] == 0) pen = {};
        if (n[i] == 39) pen.tinta = kNoColour;
        if (n[i] == 49) pen.papel = kNoColour;
        if (n[i] != 38 && n[i] != 48) continue;
        (n[i] == 38 ? pen.tinta : pen.papel) = Rgb(n.at(i + 2), n.at(i + 3), n.at(i + 4));
        i += 4;
      }
      continue;
    }
    pen.caracter = NextUtf8(text);
    if (pen.caracter == U'\n') {
      EXPECT_TRUE(pen.tinta == kNoColour && pen.papel == kNoColour) << "a colour runs over a line's end";
      d.filas.emplace_back();
    } else {
      d.filas.back().push_back(pen);
    }
  }
  return d;
}

OpcionesDeExportar Con(ColoresDeTerminal colours) {
  OpcionesDeExportar o;
  o.color = true;
  o.colores = colours;
  return o;
}

}  // namespace

TEST(Ans, ReadsBackAsTheSameCells) {
  Taller t;
  Dibujo d = Entintado("abcñ\n\naab\u2588", {{U'a', Rgb(1, 20, 255)}, {U'b', kRojo}, {U'ñ', kVerde}});
  d.filas[0][2].papel = kAzul;
  d.filas[2][3].papel = kVerde;
  const Dibujo seen = Leer(t.Escribir("ans", d, Con(ColoresDeTerminal::Todos)));
  EXPECT_EQ(seen.filas, d.filas);
  EXPECT_EQ(t.Escribir("ans", d).find("38;"), std::string::npos) << "no ink unless asked for";
}

TEST(Ans, EscapesOnlyWhereAColourChanges) {
  Taller t;
  const auto written = [&](const char* rows, const OpcionesDeExportar& o) {
    return t.Escribir("ans", Entintado(rows, {{U'a', kRojo}, {U'b', kVerde}}), o);
  };
  OpcionesDeExportar o = Con(ColoresDeTerminal::Todos);
  const std::string red = "\x1b[38;2;255;0;0m", green = "\x1b[38;2;0;255;0m", reset = "\x1b[0m";
  EXPECT_EQ(written(" a aa b\n  \nxa", o),
            red + " a aa " + green + "b" + reset + "\n  \nx" + red + "a" + reset);
  EXPECT_EQ(written("\x1b[a", o), " [" + red + "a" + reset) << "nothing of the text acts on the terminal";
  o.papelPedido = o.tintaPedida = true;
  o.papel = Rgb(0, 0, 9);
  o.tinta = kAzul;
  EXPECT_EQ(written(" \nxa", o),
            "\x1b[48;2;0;0;9m \x1b[0m\n\x1b[38;2;0;0;255;48;2;0;0;9mx" + red + "a" + reset);
}

TEST(Ans, FewColoursAreTheNearest) {
  const struct {
    Colour ink;
    const char *of256, *of16;
  } cases[] = {
      {Rgb(255, 0, 0), "38;5;196", "91"},     {Rgb(95, 135, 175), "38;5;67", "90"},
      {Rgb(128, 128, 128), "38;5;244", "90"}, {Rgb(8, 8, 8), "38;5;232", "30"},
      {Rgb(0, 0, 0), "38;5;16", "30"},        {Rgb(254, 255, 255), "38;5;231", "97"},
      {Rgb(0, 0, 230), "38;5;20", "34"},      {Rgb(0, 210, 10), "38;5;40", "32"},
  };
  Taller t;
  for (const auto& c : cases) {
    const Dibujo d = Entintado("a", {{U'a', c.ink}});
    const std::string end = "ma\x1b[0m";
    EXPECT_EQ(t.Escribir("ans", d, Con(ColoresDeTerminal::Doscientos)), std::string("\x1b[") + c.of256 + end);
    EXPECT_EQ(t.Escribir("ans", d, Con(ColoresDeTerminal::Dieciseis)), std::string("\x1b[") + c.of16 + end);
  }
}
