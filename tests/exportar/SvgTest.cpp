#include <gtest/gtest.h>

#include "tests/exportar/Taller.h"

using namespace pixmosa;
using test::Entintado;
using test::kRojo;
using test::kVerde;
using test::Taller;
using test::Veces;

TEST(Svg, ARowIsATextOfFixedLength) {
  Taller t;
  OpcionesDeExportar o;
  o.color = true;
  o.titulo = "<1>";
  Dibujo d = Entintado(" a<b\n\n\x01x", {{U'a', kRojo}, {U'<', kRojo}, {U'b', kVerde}});
  d.filas[2][1].papel = kVerde;
  const std::string svg = t.Escribir("svg", d, o);
  for (const char* part :
       {"width=\"16\" height=\"15\" viewBox=\"0 0 16 15\">\n<title>&lt;1&gt;</title>\n"
        "<rect width=\"16\" height=\"15\" fill=\"#ffffff\"/>\n"
        "<rect x=\"4\" y=\"10\" width=\"4\" height=\"5\" fill=\"#00ff00\"/>\n",
        "<g fill=\"#000000\" font-family=\"&quot;Mono \\3c 1\\3e &quot;,", " font-size=\"8\"",
        "<text transform=\"translate(0 0)\" y=\"5.00\" xml:space=\"preserve\" textLength=\"16\" "
        "lengthAdjust=\"spacingAndGlyphs\"><tspan x=\"0\" fill=\"#ff0000\"> a&lt;</tspan>"
        "<tspan x=\"12\" fill=\"#00ff00\">b</tspan></text>\n",
        "<text transform=\"translate(0 5)\" y=\"5.00\" xml:space=\"preserve\"></text>\n", "> x</text>"})
    EXPECT_NE(svg.find(part), std::string::npos) << part << "\n" << svg;
  EXPECT_EQ(Veces(svg, "<text "), 3U);
  EXPECT_NE(t.Escribir("svg", DibujoDeUtf8("ab\u28FF")).find("<tspan x=\"0 4 8\">ab\u28FF</tspan>"),
            std::string::npos)
      << "a braille cell is of any width";
  o.color = false;
  EXPECT_EQ(Veces(t.Escribir("svg", d, o), "<tspan"), 0U);
}

TEST(Svg, OutlinesAreThereOnce) {
  Taller t;
  OpcionesDeExportar o;
  o.color = o.trazos = true;
  const std::string svg = t.Escribir("svg", Entintado("aba\n a", {{U'a', kRojo}}), o);
  EXPECT_NE(
      svg.find("<defs>\n<path id=\"g97\" d=\"M0 0L4 0L4 5L0 5Z\"/>\n"
               "<path id=\"g98\" d=\"M0 0L4 0L4 5L0 5Z\"/>\n</defs>\n<g fill=\"#000000\">\n"
               "<g transform=\"translate(0 0)\"><use xlink:href=\"#g97\" x=\"0\" fill=\"#ff0000\"/>"
               "<use xlink:href=\"#g98\" x=\"4\"/><use xlink:href=\"#g97\" x=\"8\" fill=\"#ff0000\"/></g>\n"
               "<g transform=\"translate(0 5)\"><use xlink:href=\"#g97\" x=\"4\" fill=\"#ff0000\"/></g>\n"),
      std::string::npos)
      << svg;
  EXPECT_EQ(Veces(svg, "<text"), 0U);
}
