#include <gtest/gtest.h>

#include "figlet/basFigLet.h"
#include "tests/support/FigletFont.h"

using namespace pixmosa;

class BasFigLetTest : public testing::Test {
 protected:
  BasFigLet font;
  std::string failures;

  void Load(const std::string& bytes) {
    LoadFontBytes(font, bytes, [&](const std::string& text) { failures += text; });
  }
  // A glyph's rows with "|" between.
  std::string Glyph(int code) {
    const auto& rows = font.Glyphs[static_cast<std::size_t>(code)];
    std::string s;
    for (std::size_t i = 0; i < rows.size(); ++i) s += (i == 0 ? "" : "|") + rows[i];
    return s;
  }
};

TEST_F(BasFigLetTest, RowsAreCutByCount) {
  Load("flf2a% 2 1 5 -1 2 0 64\r\nuno\r\ndos\r\n  x@\r\ny#@@\r\nab\rcd!!\r\n");
  EXPECT_EQ(font.Height + font.Baseline + font.MaxLength + font.OldLayout + font.CommentLines, "215-12");
  EXPECT_EQ(font.Comment, "\r\nuno\r\ndos");
  EXPECT_EQ(font.EndMark, "@");
  EXPECT_EQ(Glyph(32), "  x|y#");
  EXPECT_EQ(Glyph(33), "a|cd") << "whatever the last characters are; CR ends a line too";
  EXPECT_EQ(Glyph(34), "");
  EXPECT_EQ(failures, "");
}

TEST_F(BasFigLetTest, BlocksFillCodesInFileOrder) {
  Load(test::OwnFont() + "uno de mas@\r\nX@@\r\n");
  EXPECT_EQ(Glyph('A'), "A1|A2");
  EXPECT_EQ(Glyph(255),
            "\xFF"
            "1|\xFF"
            "2");
  EXPECT_EQ(font.NextCode, 256);
  for (int code = 0; code < 32; ++code) EXPECT_EQ(Glyph(code), "");
  Load("flf2a$ 1 1 5 -1 0\r\na@@\r\n196 nota\r\nb@@\r\n");
  EXPECT_EQ(Glyph(33), "196 no") << "a code tag is a row like any other";
  EXPECT_EQ(Glyph(34), "b");
  EXPECT_EQ(Glyph(255), "") << "a header empties the table";
}

TEST_F(BasFigLetTest, LineFeedFilesLoseCommasAndOneRow) {
  Load("flf2a$ 1 1 5 -1 1\nnota\n$@@\n,!,@@\n  b@@\nc@@\n");
  EXPECT_EQ(font.Comment, "\r\nnota\r\n$@@") << "one line more than the header says";
  EXPECT_EQ(Glyph(32), "!") << "commas are lost";
  EXPECT_EQ(Glyph(33), "  b") << "blanks are lost only where an item begins";
  EXPECT_EQ(Glyph(34), "c");
  Load("flf2a$ 1 1 5 -1 0\n-\na,  b@@\n");
  EXPECT_EQ(Glyph(32), "ab");
}

TEST_F(BasFigLetTest, WhatFailsIsLeftOut) {
  Load("flf2a$ 2 1 5 -1 0\r\n\r\nb@@\r\nc@\r\n!\r\nd@\r\ne@@\r\n");
  EXPECT_EQ(Glyph(32), "|b") << "an empty row cannot be cut, but counts";
  EXPECT_EQ(Glyph(33), "c") << "nor can one character lose two";
  EXPECT_EQ(Glyph(34), "d|e");
  EXPECT_EQ(failures, "");
  struct Row {
    const char* header;
    const char* height;
  };
  for (const Row& r : {Row{"", "1"},
                       {"flf2a$", "1"},
                       {"flf2a$ 12", "1"},
                       {"flf2a$ doce 1 1 1 1", "doce"},
                       {"flf2a$ 0 1 1 1 1", "0"},
                       {"flf2a$ -3 1 1 1 1", "-3"},
                       {"flf2a$ 999999999 1 1 1 1", "999999999"},
                       {"flf2a$ 99999999999999999999 1 1 1 1", "99999999999999999999"},
                       {"flf2a$ 3 2 1", "3"}}) {
    failures.clear();
    Load(std::string(r.header) + "\r\nx\r\ny\r\n");
    EXPECT_EQ(failures, "Error abriendo la fuente.") << r.header;
    EXPECT_EQ(font.Height, r.height);
    RenderBanner(font, "xy\r\n");
  }
  failures.clear();
  Load("holaca 1 1 1 -1 0\r\nz@@\r\n");
  EXPECT_EQ(failures + Glyph(32), "z") << "the signature is not looked at";
}

TEST_F(BasFigLetTest, UnreadableFilesKeepTheGlyphs) {
  Load("flf2a$ 2 1 5 -1 0\r\na@\r\nb@@\r\n");
  LoadFont(font, "/no/such/font.flf", [&](const std::string& text) { failures += text; });
  EXPECT_EQ(font.Height, "1");
  EXPECT_EQ(RenderBanner(font, " "), "a\r\n") << "only the first row of what is in place";
  EXPECT_EQ(failures, "");
}

TEST_F(BasFigLetTest, BannerRows) {
  Load(test::OwnFont());
  struct Row {
    const char* text;
    const char* banner;
  };
  for (const Row& r : {Row{"", ""},
                       {"ab", "a1b1\r\na2b2\r\n"},
                       {"a\r\n", "a1\r\na2\r\n\r\n\r\n"},
                       {"\r\n", "\r\n\r\n\r\n\r\n"},
                       {"a\r\nb", "a1\r\na2\r\nb1\r\nb2\r\n"},
                       {"a b", "a1 1b1\r\na2 2b2\r\n"},
                       {"$", " 1\r\n 2\r\n"},
                       {"a\tb\n", "a1b1\r\na2b2\r\n"},
                       {"\xF1",
                        "\xF1"
                        "1\r\n\xF1"
                        "2\r\n"}})
    EXPECT_EQ(RenderBanner(font, r.text), r.banner) << r.text;
}
