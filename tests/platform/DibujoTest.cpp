#include <gtest/gtest.h>

#include "platform/Dibujo.h"

using namespace pixmosa;

TEST(Dibujo, HasTheRowsOfATextWithEveryKindOfLineEnd) {
  const Dibujo d = DibujoDeTexto("a\x80\r\nbcd\n\re");
  ASSERT_EQ(d.filas.size(), 4U);
  EXPECT_EQ(d.filas[0], (Fila{{U'a'}, {U'€'}}));
  EXPECT_EQ(d.filas[1].size(), 3U);
  EXPECT_TRUE(d.filas[2].empty());
  EXPECT_EQ(d.filas[3], (Fila{{U'e'}}));
  EXPECT_EQ(d.Columnas(), 3U);
  EXPECT_TRUE(DibujoDeTexto("").filas.empty());
  EXPECT_EQ(DibujoDeTexto("x\r\n").filas.size(), 2U);
  EXPECT_EQ(DibujoDeUtf8("\u2588\u28FF\r\nñ").filas[0], (Fila{{U'\u2588'}, {U'\u28FF'}}));
}
