#include <gtest/gtest.h>

#include "tests/support/TestFolder.h"
#include "web/AnimArt.h"
#include "web/PlantillaAnimArt.h"

using namespace pixmosa;

TEST(AnimArt, PageOfTwoFrames) {
  const test::TestFolder folder;
  const std::string file = folder.File("a.html");
  EscribirAnimArt(file, 2, "Lucida Console", [](std::size_t k) { return k == 0 ? "a\r\nb" : "&lt;c"; });
  const std::string page = LeerArchivo(file);
  std::string middle;
  for (const std::string_view line : kPlantillaAnimArt) middle += std::string(line) + "\r\n";
  EXPECT_EQ(page,
            "<html>\r\n<head>\r\n <title>Animacion</title>\r\n <script>\r\n  <!-- DHTML -->\r\n  var "
            "max_pics=2;\r\n" +
                middle +
                " <div id=\"text1\">\r\n  <pre><font face=Lucida Console; Size = 1 > \r\na\r\nb\r\n  "
                "</font></pre>\r\n </div>\r\n"
                " <div id=\"text2\">\r\n  <pre><font face=Lucida Console; Size = 1 > \r\n&lt;c\r\n  "
                "</font></pre>\r\n </div>\r\n"
                "</body>\r\n</html>\r\n");
}

TEST(AnimArt, NoFrameAndAFailureInTheMiddle) {
  const test::TestFolder folder;
  const std::string file = folder.File("a.html");
  EscribirAnimArt(file, 0, "F", [](std::size_t) { return ""; });
  const std::string page = LeerArchivo(file);
  EXPECT_NE(page.find("var max_pics=0;"), std::string::npos);
  EXPECT_EQ(page.find("<div id="), std::string::npos);
  EXPECT_THROW(
      EscribirAnimArt(file, 3, "F", [](std::size_t k) -> std::string { return k < 2 ? "x" : throw 1; }), int);
  EXPECT_EQ(LeerArchivo(file), page) << "the earlier page is whole";
}

TEST(AnimArt, OnlyAngleBracketsAreEscaped) {
  EXPECT_EQ(EscaparTexto("a<b>&\"<<"), "a&lt;b&gt;&\"&lt;&lt;");
}

TEST(AnimArt, TemplateLinesWithTheirBlanks) {
  std::vector<int> blanks;
  for (std::size_t i = 0; i < kPlantillaAnimArt.size(); ++i)
    if (kPlantillaAnimArt[i].ends_with(' ')) blanks.push_back(static_cast<int>(i) + 1);
  EXPECT_EQ(blanks, (std::vector<int>{10, 55, 58, 59, 60, 63, 64, 65, 68, 69}));
  EXPECT_EQ(kPlantillaAnimArt[29], "   var doc = 'document.getElementById(\\\"';");
  EXPECT_EQ(kPlantillaAnimArt[76], " </div>");
}
