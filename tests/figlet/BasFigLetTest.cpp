#include <gtest/gtest.h>

#include "figlet/basFigLet.h"
#include "tests/support/FigletFont.h"

using namespace pixmosa;

namespace {

// Loads a font; what it says, its height, its comment and every glyph, as " 33=row|row".
std::string Read(BasFigLet& font, const std::string& bytes) {
  std::string s;
  LoadFontBytes(font, bytes, [&](const std::string& text) { s += text; });
  s += font.Height + font.Comment;
  for (std::size_t code = 0; code < font.Glyphs.size(); ++code)
    for (std::size_t i = 0; i < font.Glyphs[code].size(); ++i)
      s += (i > 0 ? "|" : " " + std::to_string(code) + "=") + font.Glyphs[code][i];
  return s;
}

}  // namespace

TEST(BasFigLet, FilesAreReadByPosition) {
  const std::string error = "Error abriendo la fuente.";
  BasFigLet font;  // one for all: nothing of the font before may stay
  for (const auto& [file, read] : std::vector<std::pair<std::string, std::string>>{
           {"flf2a% 2 1 5 -1 2 0 64\r\nuno\r\ndos\r\n  x@\r\ny#@@\r\nab\rcd!!\r\n",
            "2\r\nuno\r\ndos 32=  x|y# 33=a|cd"},  // cut by count; CR ends a line too
           {"flf2a$ 1 1 5 -1 0\r\na@@\r\n196 nota\r\nb@@\r\n", "1 32=a 33=196 no 34=b"},
           {"holaca +1 1 1 -1 0\r\nz@@\r\n", "+1 32=z"},
           {"flf2a$ 2 1 5 -1 0\r\n\r\nb@@\r\nc@\r\n!\r\nd@\r\ne@@\r\n", "2 32=|b 33=c 34=d|e"},
           // Where LF alone ends the lines: one comment more; commas and the blanks behind them are lost.
           {"flf2a$ 1 1 5 -1 1\nnota\n$@@\n,!,@@\n  b@@\na,  b@@\nc@@\n",
            "1\r\nnota\r\n$@@ 32=! 33=  b 34=ab 35=c"},
           {"flf2a$\r\nx", error + "1\r\nx 32=! 33=  b 34=ab 35=c"},
           {"", "1 32=! 33=  b 34=ab 35=c"},
           {"flf2a$ 12\r\nx", error + "1\r\nx 32=! 33=  b 34=ab 35=c"},
           {"flf2a$ 0 1 1 1 1\r\nx", error + "0\r\nx 32=! 33=  b 34=ab 35=c"},
           {"flf2a$ doce 1 1 1 1\r\nx\r\ny\r\nz", error + "doce\r\nx\r\ny 32=! 33=  b 34=ab 35=c"},
           {"flf2a$ 3 2 1\r\nx\r\ny\r\nz@", error + "3\r\nx\r\ny 32=z"},
           {"flf2a$ -3 1 1 1 1\r\nx", error + "-3\r\nx 32=z"},
           {"flf2a$ 999999999 1 1 1 1\r\nx", error + "999999999\r\nx 32=z"},
           {"flf2a$ 99999999999 1 1 1 1\r\nx", error + "99999999999\r\nx 32=z"}}) {
    EXPECT_EQ(Read(font, file), read) << file;
    RenderBanner(font, "xy\r\n");
  }
  Read(font, "flf2a$ 2 1 5 -1 0\r\na@\r\nb%%\r\n");
  EXPECT_EQ(font.Height + font.Baseline + font.MaxLength + font.OldLayout + font.CommentLines + font.EndMark,
            "215-10@");
  LoadFont(font, "/no/such/font.flf", [](const std::string& text) { ADD_FAILURE() << text; });
  EXPECT_EQ(RenderBanner(font, " "), "a\r\n") << "only the first row of what is in place";
}

TEST(BasFigLet, BannersStandEdgeToEdge) {
  BasFigLet font;
  const std::string all = Read(font, test::OwnFont() + "uno de mas@\r\nX@@\r\n");
  EXPECT_TRUE(all.starts_with("2\r\nComentario 32=$1|$2 33=!1|!2") && all.ends_with(" 255=\377\61|\377\62"));
  for (const auto& [text, banner] :
       std::vector<std::pair<std::string, std::string>>{{"", ""},
                                                        {"a\r\n", "a1\r\na2\r\n\r\n\r\n"},
                                                        {"\r\n", "\r\n\r\n\r\n\r\n"},
                                                        {"a\r\nb", "a1\r\na2\r\nb1\r\nb2\r\n"},
                                                        {"a b", "a1 1b1\r\na2 2b2\r\n"},
                                                        {"$", " 1\r\n 2\r\n"},
                                                        {"a\tb\n", "a1b1\r\na2b2\r\n"},
                                                        {"\xF1", "\361\61\r\n\361\62\r\n"}})
    EXPECT_EQ(RenderBanner(font, text), banner) << text;
}
