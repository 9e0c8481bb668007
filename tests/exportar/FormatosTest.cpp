#include <gtest/gtest.h>
#include <set>

#include "tests/exportar/Taller.h"

using namespace pixmosa;
using test::Taller;

TEST(Formatos, AreFoundByTheirEnding) {
  for (const char* ending : {"html", "HTML", "Svg", "png", "ANS", "txt"})
    EXPECT_TRUE(FormatoDe(ending)) << ending;
  for (const char* ending : {"", "htm", "html ", "jpg"}) EXPECT_FALSE(FormatoDe(ending)) << ending;
  std::set<std::string_view> endings;
  for (const Formato& f : Formatos()) EXPECT_TRUE(endings.insert(f.terminacion).second);
}

TEST(Formatos, EveryOneTakesADrawingWithoutCells) {
  for (const Formato& f : Formatos())
    for (const char* rows : {"", "\n", " \n\n"})
      for (const bool options : {false, true}) {
        Taller t;
        OpcionesDeExportar o;
        o.color = o.sinImagenes = o.trazos = options;
        EXPECT_NO_THROW(t.Escribir(f.terminacion, DibujoDeUtf8(rows), o)) << f.terminacion;
      }
}

TEST(Formatos, TextIsTheSavedOneWhereTheCodePageHasIt) {
  Taller t;
  EXPECT_EQ(t.Escribir("txt", DibujoDeUtf8("a\u20AC\n\n\x1F")), "[a\x80\r\n\r\n\x1F]");
  EXPECT_EQ(t.Escribir("txt", DibujoDeUtf8("a\u2588\nñ")), "a\u2588\nñ\n");
}
