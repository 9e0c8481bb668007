#include <gtest/gtest.h>

#include "platform/AtomicFile.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/TestFolder.h"
#include "web/basWeb.h"

using namespace pixmosa;

class BasWebTest : public testing::Test {
 protected:
  test::TestFolder folder;
  BasWeb web;
  Random random{1};
  WebSettings settings{.tamaño = 5, .paleta = 1, .textoPaleta = "ab"};
  Picture picture = test::Drawn(
      {"rrgg", "bbbk"}, {{'r', Rgb(255, 0, 0)}, {'g', Rgb(0, 10, 0)}, {'b', Rgb(1, 2, 3)}, {'k', kBlack}});

  std::string Page() {
    PrepararPaleta(web, settings, random);
    EscribirWebArt(web, settings, picture, folder.File("p.html"));
    return LeerArchivo(folder.File("p.html"));
  }

  // What stands between the page's head and its tail, tags of black and white shortened.
  std::string Cells() {
    std::string page = Page();
    const std::string open = settings.exactCopy ? "<div align=\"center\">\r\n" : "size=\"1\">\r\n";
    page = page.substr(page.find(open) + open.size());
    page.resize(page.rfind("</div>"));
    for (const auto& [tag, mark] : {std::pair<std::string, char>{"<font color=\"rgb(255,255,255)\">", 'W'},
                                    {"<font color=\"rgb(0,0,0)\">", 'K'},
                                    {"<font color=\"rgb(-1,0,0)\">", 'E'},
                                    {"<br>\r\n", '|'},
                                    {"</font>", '/'}})
      for (std::size_t at; (at = page.find(tag)) != std::string::npos;) page.replace(at, tag.size(), 1, mark);
    return page;
  }
};

TEST_F(BasWebTest, PagesByteForByte) {
  const std::string tail = "</div>\r\n</body>\r\n\r\n</html>\r\n";
  EXPECT_EQ(Page(),
            "<html>\r\n\r\n<head><body bgcolor=\"#000000\">\r\n<br>\r\n"
            "<div align=\"center\"><font face=\"Courier New \" size=\"1\">\r\n"
            "<font color=\"rgb(255,0,0)\">ab</font><font color=\"rgb(0,10,0)\">ab<br>\r\n" +
                tail);
  settings.exactCopy = true;
  web.Fondo = "#A00FF";
  EXPECT_EQ(Page(),
            "<html>\r\n\r\n<head><body bgcolor=\"#A00FF\">\r\n<style type=\"text/css\">\r\nbody {\r\n  "
            "font-size: 1pt;\r\n"
            "  line-height: 1px;\r\n}\r\n</style>\r\n\r\n<title>Pixmosa</title>\r\n</head>\r\n\r\n<body>\r\n"
            "<br><br><br><br><br><br>\r\n<br><br><br><br><br><br>\r\n<br><br><br><br><br><br>\r\n"
            "<div align=\"center\">\r\n"
            "<font color=\"rgb(255,0,0)\">00</font><font color=\"rgb(0,10,0)\">00<br>\r\n"
            "</font><font color=\"rgb(1,2,3)\">000</font><font color=\"rgb(0,0,0)\">0<br>\r\n" +
                tail);
}

TEST_F(BasWebTest, BordersStepsAndRuns) {
  struct Row {
    int size;
    bool exact;
    const char* borders;  // top, bottom, right, left
    Extent picture;
    const char* cells;
  };
  for (const Row& r : {Row{5, true, "....", {3, 2}, "W000|000|"},  // the run goes on in the next row
                       {5, false, "xxxx", {3, 2}, "Waba|"},        // no borders in the mosaic
                       {5, true, "xxxx", {3, 2}, "E00000|0/W000/E0|0/W000/E0|00000|"},
                       {5, true, "..x.", {3, 2}, "W000/E0|/W000/E0|"},
                       {5, true, "...x", {3, 1}, "E0/W000|"},
                       {5, true, ".x..", {3, 1}, "W000|/E000|"},
                       {5, true, "x...", {3, 1}, "E000|/W000|"},
                       {4, true, "....", {7, 5}, "W0000|0000|0000|"},
                       {1, true, "....", {11, 6}, "W000|000|"},
                       {1, true, "....", {6, 5}, "W00|"}}) {
    settings = {r.exact,
                r.size,
                1,
                "ab",
                r.borders[0] == 'x',
                r.borders[1] == 'x',
                r.borders[2] == 'x',
                r.borders[3] == 'x'};
    picture = Picture::Filled(r.picture.width, r.picture.height, kWhite);
    EXPECT_EQ(Cells(), r.cells) << r.size << r.borders;
  }
}

TEST_F(BasWebTest, PalettePositionIsNeverReset) {
  struct Row {
    int palette;
    const char *text, *cells;
  };
  picture = Picture::Filled(3, 1, kBlack);
  for (const Row& r : {Row{1, "ab", "Kaba|"},
                       {1, "ab", "Kbab|"},
                       {1, "\xF1", "K\xF1\xF1\xF1|"},
                       {1, "", "K|"},
                       {1, "x", "Kxxx|"},
                       {-1, "y", "Kxxx|"}}) {  // the last palette is kept
    settings.paleta = r.palette;
    settings.textoPaleta = r.text;
    EXPECT_EQ(Cells(), r.cells);
  }
}

TEST_F(BasWebTest, BinaryPaletteIsTwoHundredRandomDigits) {
  const auto digits = [&] {
    PrepararPaleta(web, {.paleta = 0}, random);
    return web.Paleta;
  };
  const std::string first = digits();
  EXPECT_EQ(first.size(), 200U);
  const auto ones = std::count(first.begin(), first.end(), '1');
  EXPECT_TRUE(ones > 60 && ones < 140 && first.find_first_not_of("01") == std::string::npos);
  EXPECT_NE(digits(), first);
  random.Seed(1);
  EXPECT_EQ(digits(), first) << "a seed makes it again";
}

TEST(WebColours, SplitAndBackgroundText) {
  EXPECT_EQ(SplitCellColour(-1), (ColorDeCelda{-1, 0, 0}));
  EXPECT_EQ(TextoDeFondo(Rgb(10, 0, 255)), "#A00FF");
  EXPECT_EQ(TextoDeFondo(Rgb(12, 9, 16)), "#C0910");
  EXPECT_EQ(TextoDeFondo(Rgb(255, 171, 15)), "#FFABF");
}
