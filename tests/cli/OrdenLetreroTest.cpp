#include <gtest/gtest.h>

#include "tests/support/FigletFont.h"
#include "tests/support/RunProgram.h"

using namespace pixmosa;
using test::Cli;

class OrdenLetreroTest : public testing::Test {
 protected:
  test::TestFolder folder;
  std::string font = folder.File("f.flf");

  void SetUp() override {
    ::setenv("XDG_DATA_HOME", folder.Path().c_str(), 1);
    EscribirArchivo(font, test::OwnFont());
  }
};

TEST_F(OrdenLetreroTest, BannersOfAFile) {
  EXPECT_EQ(Cli({"letrero", "añ\nb", "--figlet", font}).out, "a1ñ1\na2ñ2\nb1\nb2\n");
  EXPECT_EQ(Cli({"letrero", "-", "--figlet", font}, "x").out, "x1\nx2\n");
  EXPECT_EQ(Cli({"letrero", "a", "--figlet", font, "-o", folder.File("l.txt")}).out, "");
  EXPECT_EQ(LeerArchivo(folder.File("l.txt")),
            "Ascii Art generado por Pixmosa. Fuente: Lucida Console Tama\xF1o: 6\r\na1\r\na2\r\n\r\n");
}

TEST_F(OrdenLetreroTest, ShippedFontsAndAddedOnes) {
  const std::string before = Cli({"fuentes"}).out;
  EXPECT_GE(std::count(before.begin(), before.end(), '\n'), 24);
  EXPECT_NE(Cli({"letrero", "Hola"}).out, "");
  EscribirArchivo(folder.File("rota.flf"), "x");
  const test::Resultado refused = Cli({"fuentes", "--agregar", folder.File("rota.flf")});
  EXPECT_EQ(refused.status, 1);
  EXPECT_EQ(refused.err, "pixmosa-cli: No se ha añadido \"" + folder.File("rota.flf") +
                             "\": línea 1: no empieza como una fuente FIGlet (flf2).\n");
  EXPECT_EQ(Cli({"fuentes"}).out, before) << "nothing is written";
}
