#include <cstdint>
#include <gtest/gtest.h>

#include "tests/support/TestFolder.h"
#include "web/AnimArt.h"

using namespace pixmosa;

namespace {

// 64-bit FNV-1a digest of the fixed lines, made from the written page and not by the program.
constexpr std::uint64_t kDigest = 0x5dd3890d40577d7f;

std::uint64_t Digest(std::string_view bytes) {
  std::uint64_t h = 0xcbf29ce484222325;
  for (const char c : bytes) h = (h ^ static_cast<std::uint8_t>(c)) * 0x100000001b3;
  return h;
}

class AnimArtTest : public testing::Test {
 protected:
  test::TestFolder folder;
  std::string file = folder.File("a.html");
  std::vector<std::string> texts;

  std::string Page() {
    EscribirAnimArt(file, texts.size(), "Lucida Console",
                    [&](std::size_t k) -> std::string& { return texts[k]; });
    return LeerArchivo(file);
  }
};

}  // namespace

TEST_F(AnimArtTest, PageOfTwoFrames) {
  texts = {"a\r\nb", "<c>&\"<&lt;"};
  const std::string page = Page();
  const std::string head =
      "<html>\r\n<head>\r\n <title>Animacion</title>\r\n <script>\r\n  <!-- DHTML -->\r\n  var "
      "max_pics=2;\r\n";
  const std::size_t frames = page.find(" <div id=\"text1\">");
  ASSERT_TRUE(page.starts_with(head) && frames != std::string::npos);
  EXPECT_EQ(Digest(std::string_view(page).substr(head.size(), frames - head.size())), kDigest);
  EXPECT_EQ(page.substr(frames),
            " <div id=\"text1\">\r\n  <pre><font face=Lucida Console; Size = 1 > \r\na\r\nb\r\n  "
            "</font></pre>\r\n </div>\r\n"
            " <div id=\"text2\">\r\n  <pre><font face=Lucida Console; Size = 1 > \r\n"
            "&lt;c&gt;&\"&lt;&lt;\r\n  </font></pre>\r\n </div>\r\n"
            "</body>\r\n</html>\r\n");
  EXPECT_EQ(texts[1], "&lt;c&gt;&\"&lt;&lt;") << "the produced text itself is changed";
  EXPECT_EQ(Page(), page) << "a text that comes again is not escaped twice";
}

TEST_F(AnimArtTest, NoFrameAndAFailureInTheMiddle) {
  const std::string page = Page();
  EXPECT_NE(page.find("var max_pics=0;"), std::string::npos);
  EXPECT_EQ(page.find("<div id="), std::string::npos);
  std::string text = "x";
  EXPECT_THROW(
      EscribirAnimArt(file, 3, "F", [&](std::size_t k) -> std::string& { return k < 2 ? text : throw 1; }),
      int);
  EXPECT_EQ(LeerArchivo(file), page) << "the earlier page is whole";
}
