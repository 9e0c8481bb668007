#include <gtest/gtest.h>

#include "figlet/Parecidos.h"
#include "figlet/Reescribir.h"
#include "platform/CodePage.h"
#include "tests/support/FigletFont.h"

using namespace pixmosa;
using test::Shown;
using test::StandardFont;

namespace {

// The seven additional characters and four tagged ones.
std::string More(const std::string& hardBlank, const std::string& mark, const std::string& end) {
  constexpr const char* kMore[][2] = {{"", "a0"},
                                      {"", "a1"},
                                      {"", "a2"},
                                      {"", "a3"},
                                      {"", "a4"},
                                      {"", "a5"},
                                      {"", "a6"},
                                      {"0x00F1 LATIN SMALL LETTER N WITH TILDE", "n~"},
                                      {"8364  EURO SIGN", "E="},
                                      {"-5 nothing", "??"},
                                      {"0277 octal", "?%"}};
  std::string more;
  for (const auto& [tag, art] : kMore)
    more += (*tag ? tag + end : "") + art + mark + end + hardBlank + "_" + mark + mark + end;
  return more;
}

// A standard font of one row whose "A" is `art`; what is shown for it and how many characters became others.
std::string Redrawn(const std::string& art, const std::string& signature = "flf2a# ") {
  std::string font = signature + "1 1 8 15 0\n";
  for (char c = 32; c < 127; ++c) font += (c == 'A' ? art : "-") + "@@\n";
  const FuenteReescrita own = ReescribirFuente(font, "f");
  return Shown(own.bytes, "A") + std::to_string(own.reemplazados);
}

}  // namespace

TEST(Reescribir, EveryAwkwardVariantIsReadWhole) {
  for (const char* hardBlank : {"$", "#", "\x7F", "\xC2\xA0"})
    for (const char* mark : {"@", "!", "@@", "\xC2\xB7"})
      for (const char* end : {"\n", "\r\n", "\r"}) {
        const std::string bare = StandardFont(More(hardBlank, mark, end), hardBlank, mark, end);
        for (const std::string& font :
             {bare, "\xEF\xBB\xBF" + bare, bare + "\x1A", bare + end + end + "\x1A" + end}) {
          const FuenteReescrita read = ReescribirFuente(font, "f");
          const std::string own = read.bytes;
          // What the font has not is empty; additional characters; tags in hexadecimal, decimal, octal.
          EXPECT_EQ(Shown(own, "a\xE1\xC4\xDC\xDF\xF1\x80\xBF"), "aa0a2a6n~E=?%\r\n _ _ _ _ _ _ _\r\n")
              << hardBlank << mark;
          EXPECT_TRUE(own.starts_with("flf2a$ 2 1 4 -1 2 0 143\r\nHecha, para probar\r\n$ y @\r\n"));
          EXPECT_EQ(read.lineasDeMas, 0U);
          EXPECT_EQ(ReescribirFuente(own, "f").bytes, own) << "the own form stays";
        }
      }
}

TEST(Reescribir, ArtworkOfOtherPagesBecomesWhatLooksLikeIt) {
  EXPECT_EQ(Redrawn("█▀▄▌▐▖▗▘▝▙▛▜▟▚▞░▒▓"), "#\"o[],.`'LF7J\\/:x%\r\n18");
  EXPECT_EQ(Redrawn("┌─┐│└┘┼┃━┏╔═╗║╬╪╭╮╯╰╱╲╳╎"), "+-+|+++|-++=+|++..'`/\\X\xA6\r\n24");
  EXPECT_EQ(Redrawn("\xE3\x80\x80☃ñ€"), " #\xF1\x80\r\n2") << "a wide blank, a stranger, two of the page";
  EXPECT_EQ(Redrawn("$a\t"), "Sa \r\n0") << "a dollar would be shown as a blank";
  EXPECT_EQ(Redrawn("\xDB\xB0\xDB\xDB"), "\xDB\xB0\xDB\xDB\r\n0") << "bytes of an old page are no UTF-8";
  EXPECT_EQ(Redrawn("█\x7F", "tlf2a\x7F "), "# \r\n1");
  for (char32_t c = 0x2500; c < 0x25A0; ++c)
    EXPECT_GT(static_cast<unsigned char>(Parecido(c)), 32) << std::uint32_t{c};
}

TEST(Reescribir, WhatOtherReadersAccept) {
  const std::string full = StandardFont();
  const FuenteReescrita shorter = ReescribirFuente(full.substr(0, full.rfind("#_@@")), "f");
  EXPECT_EQ(Shown(shorter.bytes, "}~"), "}~\r\n _\r\n") << "the last character lacks its last row";
  for (const auto& [more, lines] : {std::pair{"Hecha por mí\n\nen casa", 3},
                                    {"a@\nb@@\nfin", 1},
                                    {"0x41 sin dibujo", 1},
                                    {"c@\n", 0},
                                    {"0xF1 N\nn@\nn@@", 0}}) {
    const FuenteReescrita read = ReescribirFuente(StandardFont(more), "f");
    EXPECT_EQ(static_cast<int>(read.lineasDeMas), lines) << more;
    EXPECT_EQ(Shown(read.bytes, "z~"), "z~\r\n _ _\r\n") << more;
  }
}

TEST(Reescribir, RefusalsNameTheLineAndTheFault) {
  const std::string head = "No se ha añadido \"f.flf\": línea ";
  for (const auto& [font, fault] : {
           std::pair{std::string(), "1: el archivo termina antes de la cabecera."},
           {"hola\n", "1: no empieza como una fuente FIGlet (flf2)."},
           {"flf2a$ 2 1 8\n", "1: a la cabecera le faltan números."},
           {"flf2a$ 999999999 1 8 15 0\n", "1: la altura 999999999 no está entre 1 y 256."},
           {"flf2a$ 1 1 8 15 -2\n", "1: el número de líneas de comentario es negativo."},
           {"flf2a$ 1 1 8 15 900000\nx\n", "3: el archivo termina antes de acabar los comentarios."},
           {"flf2a$ 1 1 8 15 0\na@@\n\nb@@", "3: falta la marca de fin de fila."},
           {"flf2a$ 1 1 8 15 0\na@@\nb@@\n", "4: el archivo termina antes de acabar un carácter."},
           {"flf2a$ 3 1 8 15 0\na@\n", "3: el archivo termina antes de acabar un carácter."},
       })
    try {
      ReescribirFuente(font, "f.flf");
      ADD_FAILURE() << font;
    } catch (const FuenteRechazada& e) {
      EXPECT_EQ(e.what(), head + fault);
    }
}
