#include <gtest/gtest.h>

#include "platform/AtomicFile.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/TestFolder.h"
#include "web/basWeb.h"

using namespace pixmosa;
using test::Drawn;

class BasWebTest : public testing::Test {
 protected:
  test::TestFolder folder;
  BasWeb web;
  Random random{1};
  WebSettings settings{.tamaño = 5, .paleta = 1, .textoPaleta = "ab"};
  Picture picture = Drawn({"rrgg", "bbbk"},
                          {{'r', Rgb(255, 0, 0)}, {'g', Rgb(0, 10, 0)}, {'b', Rgb(1, 2, 3)}, {'k', kBlack}});

  std::string Page() {
    PrepararPaleta(web, settings, random);
    EscribirWebArt(web, settings, picture, folder.File("p.html"));
    return LeerArchivo(folder.File("p.html"));
  }

  // What stands between the page's head and its tail.
  std::string Cells() {
    const std::string page = Page(),
                      open = settings.exactCopy ? "<div align=\"center\">\r\n" : "size=\"1\">\r\n";
    const std::size_t begin = page.find(open) + open.size();
    return page.substr(begin, page.rfind("</div>") - begin);
  }
};

TEST_F(BasWebTest, MosaicPageByteForByte) {
  EXPECT_EQ(Page(),
            "<html>\r\n\r\n<head><body bgcolor=\"#000000\">\r\n<br>\r\n"
            "<div align=\"center\"><font face=\"Courier New \" size=\"1\">\r\n"
            "<font color=\"rgb(255,0,0)\">ab</font><font color=\"rgb(0,10,0)\">ab<br>\r\n"
            "</div>\r\n</body>\r\n\r\n</html>\r\n");
}

TEST_F(BasWebTest, ExactCopyPageByteForByte) {
  settings.exactCopy = true;
  web.Fondo = "#A00FF";
  EXPECT_EQ(Page(),
            "<html>\r\n\r\n<head><body bgcolor=\"#A00FF\">\r\n<style type=\"text/css\">\r\nbody {\r\n  "
            "font-size: 1pt;\r\n"
            "  line-height: 1px;\r\n}\r\n</style>\r\n\r\n<title>Pixmosa</title>\r\n</head>\r\n\r\n<body>\r\n"
            "<br><br><br><br><br><br>\r\n<br><br><br><br><br><br>\r\n<br><br><br><br><br><br>\r\n"
            "<div align=\"center\">\r\n"
            "<font color=\"rgb(255,0,0)\">00</font><font color=\"rgb(0,10,0)\">00<br>\r\n"
            "</font><font color=\"rgb(1,2,3)\">000</font><font color=\"rgb(0,0,0)\">0<br>\r\n"
            "</div>\r\n</body>\r\n\r\n</html>\r\n");
}

TEST_F(BasWebTest, RunsGoOnAcrossRows) {
  settings.exactCopy = true;
  picture = Picture::Filled(3, 2, Rgb(9, 99, 100));
  EXPECT_EQ(Cells(), "<font color=\"rgb(9,99,100)\">000<br>\r\n000<br>\r\n");
}

TEST_F(BasWebTest, BordersAreCellsOutsideThePicture) {
  picture = Picture::Filled(3, 2, kWhite);
  settings.bordeArriba = settings.bordeAbajo = settings.bordeDerecha = settings.bordeIzquierda = true;
  EXPECT_EQ(Cells(), "<font color=\"rgb(255,255,255)\">aba<br>\r\n") << "no borders in the mosaic";
  settings.exactCopy = true;
  const std::string edge = "</font><font color=\"rgb(-1,0,0)\">0",
                    row = "0</font><font color=\"rgb(255,255,255)\">000";
  EXPECT_EQ(Cells(), "<font color=\"rgb(-1,0,0)\">00000<br>\r\n" + row + edge + "<br>\r\n" + row + edge +
                         "<br>\r\n00000<br>\r\n");
  settings = {.exactCopy = true, .tamaño = 5, .bordeDerecha = true};
  EXPECT_EQ(Cells(), "<font color=\"rgb(255,255,255)\">000" + edge +
                         "<br>\r\n</font><font color=\"rgb(255,255,255)\">000" + edge + "<br>\r\n");
}

TEST_F(BasWebTest, StepsSampleFewerPixels) {
  picture = Picture::Filled(11, 11, kBlack);
  const auto rows = [&](int size, bool exact) {
    settings.tamaño = size;
    settings.exactCopy = exact;
    const std::string cells = Cells();
    return std::pair(std::count(cells.begin(), cells.end(), '\n'), cells.find("<br>") - cells.find(">") - 1);
  };
  EXPECT_EQ(rows(4, true), (std::pair{6L, 6UL}));
  EXPECT_EQ(rows(4, false), (std::pair{3L, 6UL}));
  EXPECT_EQ(rows(1, true), (std::pair{3L, 3UL}));
  EXPECT_EQ(rows(1, false), (std::pair{2L, 3UL}));
}

TEST_F(BasWebTest, PalettePositionIsNeverReset) {
  picture = Picture::Filled(3, 1, kBlack);
  EXPECT_EQ(Cells(), "<font color=\"rgb(0,0,0)\">aba<br>\r\n");
  EXPECT_EQ(Cells(), "<font color=\"rgb(0,0,0)\">bab<br>\r\n");
  settings.textoPaleta = "\xF1";
  EXPECT_EQ(Cells(), "<font color=\"rgb(0,0,0)\">\xF1\xF1\xF1<br>\r\n");
  settings.textoPaleta = "";
  EXPECT_EQ(Cells(), "<font color=\"rgb(0,0,0)\"><br>\r\n") << "an empty palette";
  settings.paleta = -1;
  web.Paleta = "x";
  EXPECT_EQ(Cells(), "<font color=\"rgb(0,0,0)\">xxx<br>\r\n") << "the last palette is kept";
}

TEST_F(BasWebTest, BinaryPaletteIsTwoHundredRandomDigits) {
  settings.paleta = 0;
  PrepararPaleta(web, settings, random);
  const std::string first = web.Paleta;
  EXPECT_EQ(first.size(), 200U);
  EXPECT_EQ(first.find_first_not_of("01"), std::string::npos);
  const auto ones = std::count(first.begin(), first.end(), '1');
  EXPECT_TRUE(ones > 60 && ones < 140);
  PrepararPaleta(web, settings, random);
  EXPECT_NE(web.Paleta, first);
  random.Seed(1);
  PrepararPaleta(web, settings, random);
  EXPECT_EQ(web.Paleta, first) << "a seed makes it again";
}

TEST(WebColours, SplitAndBackgroundText) {
  EXPECT_EQ(SplitCellColour(-1), (ColorDeCelda{-1, 0, 0}));
  EXPECT_EQ(SplitCellColour(Rgb(1, 2, 255)), (ColorDeCelda{1, 2, 255}));
  EXPECT_EQ(TextoDeFondo(Rgb(10, 0, 255)), "#A00FF");
  EXPECT_EQ(TextoDeFondo(Rgb(12, 9, 16)), "#C0910");
  EXPECT_EQ(TextoDeFondo(Rgb(255, 171, 15)), "#FFABF");
  EXPECT_EQ(TextoDeFondo(kBlack), "#000000");
}
