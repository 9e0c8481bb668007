// Fonts straight from their files, and what is done to a banner that is laid out.
#include <gtest/gtest.h>

#include "figlet/Letrero.h"
#include "figlet/Reescribir.h"
#include "platform/CodePage.h"
#include "tests/support/FigletFont.h"

using namespace pixmosa;

namespace {

std::string Finished(std::string_view art, const Acabado& finish) {
  std::string s;
  for (const char c : Utf8De(Acabar(DibujoDeUtf8(art), finish))) s += c == '\r' ? "" : std::string(1, c);
  return s;
}

// A font of one row whose "A" is `art`.
std::string FontOf(const std::string& art, const std::string& header) {
  std::string font = header + "\n";
  for (char c = 32; c < 127; ++c) font += (c == 'A' ? art : std::string(1, c)) + "@@\n";
  return font;
}

std::string Sentence(std::string_view bytes, const std::vector<ArchivoComprimido>& zip = {}) {
  try {
    AbrirFuente(bytes, "f.flf", [&](std::string_view) { return zip; });
    return "";
  } catch (const FuenteRechazada& e) {
    return e.what();
  }
}

}  // namespace

TEST(Letrero, AnyFontIsReadAsItIs) {
  for (const char* hardBlank : {"$", "\x7F", "\xC2\xA0"})
    for (const char* mark : {"@", "·"})
      for (const char* end : {"\n", "\r\n", "\r"}) {
        const std::string more = std::string("0x2603 snow") + end + "☃ █" + mark + end + hardBlank + "$" +
                                 mark + mark + end + "0 none" + end + "?" + mark + end + "?" + mark + mark +
                                 end;
        const FuenteEnUso font(
            LeerFuente(test::StandardFont(std::string("Ä") + mark + end + "Ä" + mark + mark + end + more,
                                          hardBlank, mark, end),
                       "f"));
        const std::string dollar = *hardBlank == '$' ? " " : "$";
        EXPECT_EQ(Utf8De(font.Dibujar("aÄ☃ñ", {})), "a Ä☃ █?\r\n _Ä " + dollar + " ?\r\n")
            << hardBlank << mark;
        EXPECT_EQ(font.Fuente().comentario, "\r\nHecha, para probar\r\n$ y @");
        EXPECT_EQ(font.Fuente().disposicion.reglas, 143);
      }
  const FuenteEnUso blocks(LeerFuente(FontOf("█▀ñ", "tlf2a$ 1 1 8 0 0 1"), "f"));
  EXPECT_EQ(Utf8De(blocks.Dibujar("AB", {})), "B█▀ñ\r\n") << "its header says that it runs to the left";
  EXPECT_EQ(BytesDe(blocks.Dibujar("AB", {})), "B#\"\xF1\r\n");
  EXPECT_EQ(Utf8De(FuenteEnUso(LeerFuente(test::OwnFont(), "f")).Dibujar("€ñ", {})), "€1ñ1\r\n€2ñ2\r\n");
  EXPECT_EQ(LeerFuente(FontOf(std::string(5000, 'x'), "flf2a$ 1 1 8 0 0"), "f").De(U'A')[0].size(),
            kMasColumnasDeLetra);
}

TEST(Letrero, HeadersSayHowLettersStand) {
  for (const auto& [header, rules] : {std::pair{"flf2a$ 1 1 8 -1 0", 0},
                                      {"flf2a$ 1 1 8 0 0", 64},
                                      {"flf2a$ 1 1 8 15 0", 143},
                                      {"flf2a$ 1 1 8 15 0 0", 143},
                                      {"flf2a$ 1 1 8 -1 0 0 16513 2", 16513}}) {
    const std::string font = FontOf("A", header);
    EXPECT_EQ(LeerFuente(font, "f").disposicion.reglas, rules) << header;
    // Rewritten for the specified reader it keeps them.
    BasFigLet own;
    const std::string rewritten = ReescribirFuente(font, "f").bytes;
    LoadFontBytes(own, rewritten, [](const std::string& f) { ADD_FAILURE() << f; });
    EXPECT_EQ(FuenteLeida(own).disposicion.reglas, rules) << header;
    EXPECT_EQ(ReescribirFuente(rewritten, "f").bytes, rewritten);
  }
}

TEST(Letrero, ZipsAndRefusals) {
  const std::string zip = "PK\x03\x04", font = test::StandardFont();
  EXPECT_EQ(Sentence(zip, {{"LEEME", "x", ""}, {"a.flf", font, ""}}), "");
  EXPECT_EQ(Sentence(zip, {{"a.flf", "", "está dañado"}}),
            "No se ha podido leer \"f.flf\": \"a.flf\" está dañado.");
  EXPECT_EQ(Sentence(zip),
            "No se ha podido leer \"f.flf\": el archivo zip no contiene ninguna fuente FIGlet.");
  EXPECT_EQ(Sentence("no"),
            "No se ha podido leer \"f.flf\": línea 1: no empieza como una fuente FIGlet (flf2).");
}

TEST(Letrero, SpanishIsCompleteWhereEverythingShows) {
  BasFigLet own;
  LoadFontBytes(own, test::OwnFont(), [](const std::string&) {});
  FuenteFiglet font = FuenteLeida(own);
  EXPECT_TRUE(CompletaParaEspanol(font));
  EXPECT_EQ(AnchoDeLetra(font), 2U);
  for (const char32_t c : {U'ñ', U'Ü', U'€', U'¿', U'w', U'W'}) {
    FuenteFiglet less = font;
    less.letras[c] = {{U' ', kBlancoDuro}, {U'\xA0'}};
    EXPECT_FALSE(CompletaParaEspanol(less));
    less.letras.erase(c);
    EXPECT_FALSE(CompletaParaEspanol(less));
  }
}

TEST(Letrero, Finishes) {
  const char* art = "    \n  /x \n >  \n\n";
  EXPECT_EQ(Finished(art, {.recortar = true}), " /x\n>\n");
  EXPECT_EQ(Finished(" (d\n<«/", {.espejo = true}), "b) \n\\»>\n");
  EXPECT_EQ(Finished("ab\nc", {.marco = MarcoDeLetrero::Linea}), "┌────┐\n│ ab │\n│ c  │\n└────┘\n");
  EXPECT_EQ(Finished("ab", {.marco = MarcoDeLetrero::Doble}), "╔════╗\n║ ab ║\n╚════╝\n");
  EXPECT_EQ(Finished("ab", {.marco = MarcoDeLetrero::Estrellas}), "******\n* ab *\n******\n");
  EXPECT_EQ(Finished("a \n\nb\\", {.comentario = Comentario::C}), "// a\n//\n// b\\ //\n");
  EXPECT_EQ(Finished("a\\", {.comentario = Comentario::Sh}), "# a\\\n");
  EXPECT_EQ(Finished("a", {.comentario = Comentario::Sql}), "-- a\n");
  EXPECT_EQ(Finished("a*/ /*\n", {.comentario = Comentario::Bloque}), "/*\n * a*| /|\n *\n */\n");
  EXPECT_EQ(Finished("", {.recortar = true, .marco = MarcoDeLetrero::Linea}), "┌──┐\n└──┘\n");
  EXPECT_EQ(BytesDe(Acabar(DibujoDeUtf8("a"), {.marco = MarcoDeLetrero::Linea})),
            "+---+\r\n| a |\r\n+---+\r\n");
}

TEST(Letrero, ColoursRunAcrossOrDown) {
  const auto inks = [](std::string_view art, const Acabado& finish) {
    std::vector<std::vector<Colour>> all;
    for (const Fila& row : Acabar(DibujoDeUtf8(art), finish).filas) {
      all.emplace_back();
      for (const Celda& cell : row) all.back().push_back(cell.tinta);
    }
    return all;
  };
  using Rows = std::vector<std::vector<Colour>>;
  const Degradado red{Rgb(255, 0, 10), Rgb(0, 100, 20)};
  EXPECT_EQ(inks("abc\nd", {.degradado = red}),
            (Rows{{Rgb(255, 0, 10), Rgb(128, 50, 15), Rgb(0, 100, 20)}, {Rgb(255, 0, 10)}}));
  Degradado down = red;
  down.haciaAbajo = true;
  EXPECT_EQ(inks("a\nb", {.comentario = Comentario::Sh, .degradado = down}),
            (Rows{{kNoColour, kNoColour, Rgb(255, 0, 10)}, {kNoColour, kNoColour, Rgb(0, 100, 20)}}));
  EXPECT_EQ(inks("abcdef", {.degradado = Degradado{.arcoiris = true}}),
            (Rows{{Rgb(230, 0, 0), Rgb(230, 230, 0), Rgb(0, 230, 0), Rgb(0, 230, 230), Rgb(0, 0, 230),
                   Rgb(230, 0, 230)}}));
}
