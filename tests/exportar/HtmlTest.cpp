#include <gtest/gtest.h>
#include <regex>
#include <set>

#include "tests/exportar/Taller.h"

using namespace pixmosa;
using test::Entintado;
using test::kRojo;
using test::kVerde;
using test::Taller;

namespace {

// What a reader of the page has between <pre> and </pre>.
std::string Dentro(const std::string& page) {
  const std::size_t from = page.find("<pre>") + 5;
  return page.substr(from, page.find("</pre>") - from);
}

// Its text content: the parser drops a line end right behind <pre>.
std::string Contenido(const std::string& page) {
  std::string s = std::regex_replace(Dentro(page), std::regex("<[^>]*>"), "");
  if (s.starts_with('\n')) s.erase(0, 1);
  for (const auto& [entity, character] :
       {std::pair{"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&amp;", "&"}})
    s = std::regex_replace(s, std::regex(entity), character);
  return s;
}

OpcionesDeExportar EnColor() {
  OpcionesDeExportar o;
  o.color = true;
  return o;
}

}  // namespace

TEST(Html, TextContentIsTheRows) {
  const std::pair<const char*, const char*> rows[] = {
      {"ab\ncd", "ab\ncd"},
      {"<a> & \"b\" &&lt;&#1&&9]]>", "<a> & \"b\" &&lt;&#1&&9]]>"},
      {"\n\nx\n", "\n\nx\n"},
      {"  \xC2\xA0 ", "  \xC2\xA0 "},
      {"\xC3\xB1\xE2\x96\x88", "ñ\u2588"},
      {"", ""},
      {"a\x1F"
       "b\xC2\xAD\xC2\x81.",
       "a b- ."},  // controls, a soft hyphen: one cell each
  };
  for (const auto& [given, wanted] : rows)
    for (const bool spans : {false, true}) {
      OpcionesDeExportar o = EnColor();
      o.sinImagenes = spans;
      Taller t;
      EXPECT_EQ(Contenido(t.Escribir("html", Entintado(given, {{U'a', kRojo}, {U'x', kVerde}}), o)), wanted);
    }
}

TEST(Html, WhatFontsLackHasABoxOfItsOwn) {
  Taller t;
  EXPECT_EQ(Dentro(t.Escribir("html", DibujoDeUtf8("a\u2588\u28FF\u2502\u2597"))),
            "a\u2588<i>\u28FF</i>\u2502<i>\u2597</i>");
}

TEST(Html, PageSaysWhatItIs) {
  Taller t;
  OpcionesDeExportar o;
  o.titulo = "</title> & \"ñ\"";
  o.papel = Rgb(0, 0, 60);
  const std::string page = t.Escribir("html", DibujoDeUtf8("abcdef\nx"), o);
  EXPECT_TRUE(page.starts_with("<!DOCTYPE html>\n<html lang=\"es\">\n<head>\n<meta charset=\"utf-8\">\n"));
  for (const char* part :
       {"<title>&lt;/title&gt; &amp; &quot;ñ&quot;</title>", "<meta name=\"color-scheme\" content=\"dark\">",
        "default-src 'none'; img-src data:; style-src 'unsafe-inline'",
        "html{background:#00003c;color:#000000}", "width:calc(6*1ch)", "line-height:calc(1ch*5/4)",
        "font-family:\"Mono \\3c 1\\3e \","})
    EXPECT_NE(page.find(part), std::string::npos) << part;
  EXPECT_EQ(page.find("url("), std::string::npos);
  EXPECT_EQ(page.find("<span"), std::string::npos);
}

TEST(Html, SpansAreRunsOfOneColour) {
  Taller t;
  OpcionesDeExportar o = EnColor();
  o.sinImagenes = true;
  Dibujo d = Entintado("  a a bc\n d a", {{U'a', kRojo}, {U'b', kVerde}});
  std::string page = t.Escribir("html", d, o);
  EXPECT_EQ(Dentro(page), "<span class=b>  a a </span><span class=c>b</span>c\n d <span class=b>a</span>");
  EXPECT_NE(page.find("\n.b{color:#ff0000}\n.c{color:#00ff00}\n"), std::string::npos);
  d.filas[0][0].papel = Rgb(1, 2, 3);
  page = t.Escribir("html", d, o);
  EXPECT_TRUE(Dentro(page).starts_with("<span class=b> </span><span class=c> a a </span>"));
  EXPECT_NE(page.find("\n.b{background:#010203}\n"), std::string::npos);
}

TEST(Html, EveryColourHasAClassOfItsOwn) {
  Taller t;
  OpcionesDeExportar o = EnColor();
  o.sinImagenes = true;
  Dibujo d;
  d.filas.emplace_back();
  for (int i = 0; i < 5000; ++i) d.filas[0].push_back({U'x', i});
  const std::string page = t.Escribir("html", d, o);
  std::set<std::string> names;
  const std::regex rule("\n[.]([a-zA-Z][a-zA-Z0-9]*)[{]color:");
  for (std::sregex_iterator at(page.begin(), page.end(), rule), end; at != end; ++at) names.insert((*at)[1]);
  EXPECT_EQ(names.size(), 5000U);
  EXPECT_FALSE(names.contains("ad"));
}

TEST(Html, PictureHasAPixelACell) {
  Taller t;
  t.bytesDePng = "abcd";
  OpcionesDeExportar o = EnColor();
  o.tinta = Rgb(9, 8, 7);
  const std::string page = t.Escribir("html", Entintado("a b\nc", {{U'a', kRojo}, {U'b', kVerde}}), o);
  EXPECT_NE(page.find("background-image:url(data:image/png;base64,YWJjZA==)"), std::string::npos);
  EXPECT_EQ(Dentro(page), "a b\nc");
  ASSERT_EQ(t.codificada.Size(), (Extent{3, 2}));
  const Colour wanted[] = {kRojo, kRojo, kVerde, Rgb(9, 8, 7), Rgb(9, 8, 7), Rgb(9, 8, 7)};
  for (int i = 0; i < 6; ++i) EXPECT_EQ(t.codificada.ColourAt(i % 3, i / 3), wanted[i]) << i;
}

TEST(Html, PapersAreAPictureBehindTheInks) {
  Taller t;
  Dibujo d = DibujoDeUtf8("ab");
  d.filas[0][1].papel = kVerde;
  const std::string page = t.Escribir("html", d);
  EXPECT_EQ(test::Veces(page, "url(data:image/png;base64,"), 2U);
  EXPECT_NE(page.find("background-clip:text,border-box"), std::string::npos);
}

TEST(Html, ColoursGiveWayBeforeThePageGrowsTooLarge) {
  // A picture takes few bytes only where every part is a multiple of `step`.
  for (const int step : {3, 5, 7}) {
    Taller t;
    t.medios.codificarPng = [&](const Picture& p) {
      t.codificada = p;
      bool coarse = true;
      for (int x = 0; x < p.Width(); ++x)
        coarse = coarse && ((p.ColourAt(x, 0) & 255) % step == 0 || (p.ColourAt(x, 0) & 255) == 255);
      return std::string(coarse ? 1000 : 100'000, 'x');
    };
    Dibujo d;
    d.filas.emplace_back();
    for (int level = 0; level < 256; ++level) d.filas[0].push_back({U'x', Rgb(level, level, level)});
    EXPECT_LT(t.Escribir("html", d, EnColor()).size(), 10'000U);
    for (int level = 0; level < 256; ++level)
      EXPECT_LE(std::abs((t.codificada.ColourAt(level, 0) & 255) - level), step / 2) << level;
  }
}
