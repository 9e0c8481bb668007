#include <gtest/gtest.h>

#include "platform/CodePage.h"

using namespace pixmosa;

TEST(CodePage, EveryByteIsKeptBothWays) {
  std::string all;
  for (int c = 0; c < 256; ++c) all += static_cast<char>(c);
  EXPECT_EQ(BytesOfUtf8(Utf8OfBytes(all)), all);
}

TEST(CodePage, KnownCharacters) {
  EXPECT_EQ(Utf8OfBytes("\x80\xF1\xAD\x9F"), "€ñ\u00ADŸ");
  EXPECT_EQ(BytesOfUtf8("¿Año? “a” ≠"),
            "\xBF"
            "A\xF1o? \x93"
            "a\x94 ?");
}

TEST(CodePage, MalformedSequencesBecomeOneQuestionMarkEach) {
  for (const char* bad :
       {"\xC3", "\xFF", "\xC0\xAF", "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\x80"})
    EXPECT_EQ(BytesOfUtf8(bad).substr(0, 1), "?") << bad;
  EXPECT_EQ(BytesOfUtf8("\xE2\x82"
                        "A"),
            "?A");
}
