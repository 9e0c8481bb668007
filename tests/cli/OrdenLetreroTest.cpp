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

TEST_F(OrdenLetreroTest, LayoutAndFinish) {
  const auto banner = [&](std::vector<std::string> more) {
    more.insert(more.begin(), {"letrero", "--figlet", font});
    return Cli(more).out;
  };
  EXPECT_EQ(banner({"a b", "--composicion", "completo", "--ancho", "0"}), "a1 1b1\na2 2b2\n");
  EXPECT_EQ(banner({"a b", "--composicion=fundir"}), "a1b1\na2b2\n");
  EXPECT_EQ(banner({"a bc\nd", "--ancho", "5", "--alinear", "derecha"}),
            "   a1\n   a2\n b1c1\n b2c2\n   d1\n   d2\n");
  EXPECT_EQ(banner({"(", "--espejo", "--marco", "linea", "--comentario", "sh"}),
            "# ┌────┐\n# │ 1) │\n# │ 2) │\n# └────┘\n");
  EXPECT_EQ(banner({" ", "--recortar"}), "1\n2\n");
  const std::string page =
                        banner({"a", "--degradado", "255,0,0:0,0,255", "--formato=html", "--sin-imagenes"}),
                    rows = banner({"a", "--degradado", "arcoiris:filas", "--formato=ans"});
  EXPECT_NE(page.find("#ff0000"), std::string::npos);
  EXPECT_NE(page.find("#0000ff"), std::string::npos);
  EXPECT_EQ(rows, "\x1B[38;2;230;0;0ma1\x1B[0m\n\x1B[38;2;230;0;230ma2\x1B[0m");
  for (const char* wrong : {"1,2,3", "1,2,3:4,5", "0,0,0:0,0,256", "filas", ""}) {
    const test::Resultado r = Cli({"letrero", "a", "--degradado", wrong});
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.err, std::string("pixmosa-cli: la opción --degradado espera dos colores, como "
                                 "255,0,0:0,0,255, o arcoiris, no \"") +
                         wrong + "\".\n");
  }
}

TEST_F(OrdenLetreroTest, FontsStraightFromTheirFiles) {
  const std::string flf = folder.File("d.flf"), tlf = folder.File("d.TLF"), text = folder.File("t.txt");
  EscribirArchivo(flf, test::StandardFont("Ä@\n█@@\n0x2603 snow\n▀@\n█@@\n", "\x7F"));
  EscribirArchivo(tlf, LeerArchivo(flf));
  EXPECT_EQ(Cli({"letrero", "Ä☃", "--figlet", flf, "--directo"}).out, "Ä▀\n██\n");
  EXPECT_EQ(Cli({"letrero", "☃", "--figlet", tlf, "-o", text}).status, 0);
  EXPECT_TRUE(LeerArchivo(text).ends_with("\r\n\"\r\n#\r\n\r\n")) << "the code page's likeness";
  EXPECT_NE(Cli({"letrero", "☃", "--figlet", tlf, "--formato=html"}).out.find("▀\n█"), std::string::npos);
  const test::Resultado bad = Cli({"letrero", "a", "--figlet", text, "--directo"});
  EXPECT_EQ(bad.status, 1);
  EXPECT_EQ(bad.err, "pixmosa-cli: No se ha podido leer \"" + text +
                         "\": línea 1: no empieza como una fuente FIGlet (flf2).\n");
}

TEST_F(OrdenLetreroTest, FontsAreShownAndSieved) {
  const std::string own = folder.File("pixmosa/Fonts/");
  std::filesystem::create_directories(own);
  EscribirArchivo(own + "Zeta.flf", test::StandardFont("", "$", "@", "\r\n"));  // no Spanish letter
  EscribirArchivo(own + "Zzz.flf", test::OwnFont());
  const std::string shown = Cli({"fuentes", "--muestra", "ñ\na"}).out, all = Cli({"fuentes"}).out,
                    spanish = Cli({"fuentes", "--espanol"}).out;
  EXPECT_TRUE(shown.ends_with("\n\nZeta\n\n\na\n _\n\nZzz\nñ1\nñ2\na1\na2\n\n"))
      << shown.substr(shown.size() - 60);
  EXPECT_NE(all.find("\t\tZeta\n"), std::string::npos);
  EXPECT_EQ(spanish.find("Zeta"), std::string::npos);
  EXPECT_NE(spanish.find("\t\tZzz\n"), std::string::npos);
  EXPECT_TRUE(Cli({"fuentes", "--espanol", "--muestra", "a"}).out.ends_with("\n\nZzz\na1\na2\n\n"));
  EXPECT_EQ(Cli({"fuentes", "--fijas", "--muestra", "a"}).status, 2);
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
