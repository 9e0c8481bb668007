#include <array>
#include <cstdint>
#include <gtest/gtest.h>

#include "tests/support/TestFolder.h"
#include "web/AnimArt.h"

using namespace pixmosa;

namespace {

// 64-bit FNV-1a digests of the fixed lines, eleven at a time, made from the written page and not by the
// program.
constexpr std::array<std::uint64_t, 7> kDigests = {0x937686fc33402264, 0x13b2e2ba496aa8cd, 0x31241466091d5c88,
                                                   0x84280626d5d6a6ef, 0x2ce929432794ea79, 0x02ac9856333d7e7e,
                                                   0x6b3e1041ce11e943};
constexpr std::size_t kLinesOfADigest = 11;

std::uint64_t Digest(std::string_view bytes) {
  std::uint64_t h = 0xcbf29ce484222325;
  for (const char c : bytes) h = (h ^ static_cast<std::uint8_t>(c)) * 0x100000001b3;
  return h;
}

// Takes so many lines from the front; without the last one's line end.
std::string_view Lines(std::string_view& page, std::size_t count) {
  std::size_t end = 0;
  for (std::size_t i = 0; i < count && end != std::string_view::npos; ++i)
    end = page.find("\r\n", end + (i > 0 ? 2 : 0));
  const std::string_view lines = page.substr(0, end);
  page.remove_prefix(std::min(page.size(), lines.size() + 2));
  return lines;
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
  std::string_view rest = page;
  EXPECT_EQ(
      Lines(rest, 6),
      "<html>\r\n<head>\r\n <title>Animacion</title>\r\n <script>\r\n  <!-- DHTML -->\r\n  var max_pics=2;");
  for (std::size_t i = 0; i < kDigests.size(); ++i) {
    const std::string_view lines = Lines(rest, kLinesOfADigest);
    EXPECT_EQ(Digest(lines), kDigests[i]) << "one of these lines is not as it must be:\n" << lines;
  }
  EXPECT_EQ(rest,
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
