#include <gtest/gtest.h>

#include <QImage>

#include "platform/qt/QtPicture.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/Gif.h"
#include "tests/support/RunProgram.h"

using namespace pixmosa;
using test::Cli;
using test::Gif;

class OrdenWebTest : public testing::Test {
 protected:
  test::TestFolder folder;
  std::string picture = folder.File("i.png"), page = folder.File("p.html"), gif = folder.File("a.gif");

  void SetUp() override {
    ImageOf(Picture::Filled(4, 2, Rgb(1, 2, 3))).save(QString::fromStdString(picture));
    EscribirArchivo(gif, Gif({1, 0, 1}));
  }

  std::string Page(std::vector<std::string> words) {
    words.insert(words.end(), {"-o", page});
    const test::Resultado r = Cli(words);
    EXPECT_EQ(r.err, "");
    EXPECT_EQ(r.status, 0);
    return LeerArchivo(page);
  }
};

TEST_F(OrdenWebTest, MosaicAndExactCopy) {
  EXPECT_EQ(Page({"web", picture, "--detalle", "5", "--texto", "ñb", "--fondo", "10,0,255"}),
            "<html>\r\n\r\n<head><body bgcolor=\"#A00FF\">\r\n<br>\r\n"
            "<div align=\"center\"><font face=\"Courier New \" size=\"1\">\r\n"
            "<font color=\"rgb(1,2,3)\">\xF1"
            "b\xF1"
            "b<br>\r\n</div>\r\n</body>\r\n\r\n</html>\r\n");
  const std::string copy =
      Page({"web", picture, "--copia-exacta", "--detalle=5", "--bordes", "abajo,izquierda"});
  EXPECT_NE(copy.find("<font color=\"rgb(-1,0,0)\">0</font><font color=\"rgb(1,2,3)\">0000<br>\r\n"),
            std::string::npos);
  EXPECT_EQ(Page({"web", picture, "--semilla", "5"}), Page({"web", picture, "--semilla", "5"}));
  EXPECT_NE(Page({"web", picture, "--detalle=5", "--semilla", "5"}),
            Page({"web", picture, "--detalle=5", "--semilla", "6"}));
}

TEST_F(OrdenWebTest, FramesOfAGif) {
  const test::Resultado r = Cli({"fotogramas", gif, "-o", folder.File("f/g")});
  EXPECT_EQ(r.out, "01\t26\n02\t49\n03\t72\n");
  EXPECT_EQ(LeerArchivo(folder.File("f/g/Fotograma 03.bmp")), test::GifHeader() + test::GifFrame(1));
}

TEST_F(OrdenWebTest, AnimationsOfAGifAndAFolder) {
  const std::string all = Page({"anim", gif, "--columnas", "2"});
  EXPECT_NE(all.find("var max_pics=3;"), std::string::npos);
  EXPECT_NE(all.find("<div id=\"text3\">"), std::string::npos);
  EXPECT_NE(Page({"anim", gif, "--columnas=2", "--fotogramas", "3,1,3"}).find("var max_pics=2;"),
            std::string::npos);
  std::filesystem::create_directory(folder.File("serie"));
  std::filesystem::copy(picture, folder.File("serie/b.jpg"));
  EscribirArchivo(folder.File("serie/a.BMP"), "rota");
  // A picture that cannot be read repeats the one before, and is named; where none can, nothing is written.
  const std::vector<std::string> series = {"anim", folder.File("serie"), "--columnas=2", "-o", page};
  const std::string named = "pixmosa-cli: No se ha podido leer la imagen \"" + folder.File("serie/a.BMP") +
                            "\": no es una imagen de un formato conocido.\n";
  test::Resultado r = Cli(series);
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.err, named);
  const std::string before = LeerArchivo(page);
  EXPECT_NE(before.find("var max_pics=2;"), std::string::npos);
  std::filesystem::remove(folder.File("serie/b.jpg"));
  r = Cli(series);
  EXPECT_EQ(r.status, 1);
  EXPECT_EQ(r.err, named + "pixmosa-cli: No se ha podido leer ningún fotograma de \"" + folder.File("serie") +
                       "\".\n");
  EXPECT_EQ(LeerArchivo(page), before);
}
