// The layout beside the specified one, by banners worked out by hand from the standard's rules.
#include <gtest/gtest.h>

#include "figlet/Composicion.h"
#include "figlet/Letrero.h"
#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "tests/support/FigletFont.h"

using namespace pixmosa;
using Filas = std::vector<std::u32string>;
using enum Composicion;

namespace {

// "|" between the rows, shown as "!"; hard blanks as "$".
std::string Shown(const Filas& rows) {
  std::string s;
  for (const std::u32string& row : rows) {
    if (&row != rows.data()) s += '!';
    for (const char32_t c : row) AppendUtf8(s, c);
  }
  return s;
}

Glifo Drawn(std::u32string_view rows) {
  Glifo letter(1);
  for (const char32_t c : rows) {
    if (c == U'!') {
      letter.emplace_back();
    } else {
      letter.back() += c == U'$' ? kBlancoDuro : c;
    }
  }
  return letter;
}

// A font of the letters "a" and "b" and a hard blank.
FuenteFiglet Font(std::u32string_view a, std::u32string_view b, std::int32_t rules, bool leftwards = false) {
  FuenteFiglet font;
  font.letras = {{U'a', Drawn(a)}, {U'b', Drawn(b)}};
  font.altura = font.letras.at(U'a').size();
  font.letras[U' '] = Glifo(font.altura, std::u32string(1, kBlancoDuro));
  font.disposicion = {rules, leftwards};
  return font;
}

std::string Laid(const FuenteFiglet& font, std::u32string_view text, const OpcionesDeComposicion& options) {
  return Shown(Componer(font, text, options));
}

}  // namespace

TEST(Composicion, EveryHorizontalRule) {
  for (const auto& [a, b, rules, banner] :
       std::vector<std::tuple<const char32_t*, const char32_t*, int, const char*>>{
           {U"x|", U"|y", kIguales, "x|y"},
           {U"x|", U"/y", kIguales, "x|/y"},
           {U"x_", U"{y", kSubrayado, "x{y"},
           {U"x)", U"_y", kSubrayado, "x)y"},
           {U"x_", U"_y", kSubrayado, "x__y"},
           {U"x|", U"/y", kJerarquia, "x/y"},
           {U"x>", U"(y", kJerarquia, "x>y"},
           {U"x[", U"]y", kJerarquia, "x[]y"},
           {U"x]", U"[y", kParejas, "x|y"},
           {U"x{", U"}y", kParejas, "x|y"},
           {U"x<", U">y", kParejas, "x<>y"},
           {U"x/", U"\\y", kEquis, "x|y"},
           {U"x\\", U"/y", kEquis, "xYy"},
           {U"x>", U"<y", kEquis, "xXy"},
           {U"x<", U">y", kEquis, "x<>y"},
           {U"x$", U"$y", kBlancosDuros, "x y"},
           {U"x$", U"$y", kIguales, "x  y"},
           {U"x$", U"|y", kReglasHorizontales, "x |y"},
           {U"x/", U"%y", kReglasHorizontales, "x/%y"},
           {U"x/", U"%y", 0, "x%y"},  // universal: the later one stands in front
           {U"x$", U"%y", 0, "x%y"},
           {U"x%", U"$y", 0, "x%y"},
           {U"x", U"|y", kReglasHorizontales, "x|y"}}) {  // one of a single column stays whole
    const FuenteFiglet font = Font(a, b, rules);
    EXPECT_EQ(Laid(font, U"ab", {Fundir}), banner) << banner << rules;
  }
  EXPECT_EQ(Laid(Font(U"x/", U"%y", 0, true), U"ab", {Fundir}), "%y/") << "the later one, at the left";
  EXPECT_EQ(Laid(Font(U"/x", U"y\\", kEquis, true), U"ab", {Fundir}), "yYx") << "\\ left of /";
}

TEST(Composicion, LettersMoveTogetherUntilTheyTouch) {
  const char32_t *a = U" xx !x   ", *b = U"  yy! y  ";
  for (const auto& [how, rules, banner] : {std::tuple{Completo, 0, " xx   yy!x    y  "},
                                           {Juntar, 129, " xxyy!x y  "},
                                           {Fuente, 0, " xx   yy!x    y  "},
                                           {Fuente, 64, " xxyy!x y  "},
                                           {Fuente, 128, " xyy!xy  "},
                                           {Fuente, 129, " xxyy!x y  "}})
    EXPECT_EQ(Laid(Font(a, b, rules), U"ab", {how}), banner) << rules;
  EXPECT_EQ(Laid(Font(a, b, 64, true), U"ab", {Fuente}), "  yyxx! y x  ") << "from the right, its blanks go";
  EXPECT_EQ(Laid(Font(U"  a", U"b", 0), U"a b", {Juntar}), "a b") << "a hard blank stays";
}

TEST(Composicion, EveryVerticalRule) {
  for (const auto& [a, b, rules, banner] :
       std::vector<std::tuple<const char32_t*, const char32_t*, int, const char*>>{
           {U"x!_", U"_!y", kIgualesVertical, "x!_!y"},
           {U"x!_", U"|!y", kSubrayadoVertical, "x!|!y"},
           {U"x!|", U"/!y", kJerarquiaVertical, "x!/!y"},
           {U"x!_", U"-!y", kLineaHorizontal, "x!=!y"},
           {U"x!-", U"-!y", kLineaHorizontal, "x!-!-!y"},
           {U"-!|!|", U"|!|!y", kLineaVertical, "-!|!|!y"},
           {U"|!|!|", U"|!|!|", kLineaVertical, "|!|!|"},
           {U"|!|!|", U"|!|!|", kIgualesVertical, "|!|!|!|!|"},
           {U"x!y", U"z!w", kFundirVertical, "x!z!w"},
           {U"x!$", U" !y", kJuntarVertical, "x!y"},
           {U"xx!x ", U" y!yy", kJuntarVertical, "xx!xy!yy"},
           {U"x!y", U"z!w", 0, "x!y!z!w"}})
    EXPECT_EQ(Laid(Font(a, b, rules), U"a\nb", {Fundir}), banner) << rules;
  const FuenteFiglet font = Font(U"x!$", U" !y", kJuntarVertical);
  EXPECT_EQ(Laid(font, U"a\nb", {Fuente}), "x!y");
  EXPECT_EQ(Laid(font, U"a\nb", {Juntar}), "x! ! !y");
  EXPECT_EQ(Laid(font, U"a\r\n\r\nb\n", {Fuente}), "x! !!! !y!!") << "nothing moves onto an empty line";
}

TEST(Composicion, WordsAreWrappedAndLinesAligned) {
  const FuenteFiglet font = Font(U"aa", U"b", 0), left = Font(U"aa", U"b", 0, true);
  using enum Lado;
  for (const auto& [text, width, side, banner] :
       std::vector<std::tuple<const char32_t*, int, std::optional<Lado>, const char*>>{
           {U"a b a", 4, {}, "aa b!aa"},
           {U"a b   a  ", 4, {}, "aa b!aa  "},
           {U"  b a", 4, {}, "  b!aa"},
           {U"b aaaa b", 5, {}, "b!aaaa!aaaa!b"},
           {U"b aaaa b", 0, {}, "b aaaaaaaa b"},
           {U"ab", 1, {}, "aa!b"},
           {U"a\nab", 0, Derecha, " aa!aab"},
           {U"a\nabb", 0, Centro, " aa!aabb"},
           {U"a\nab", 6, Derecha, "    aa!   aab"},
           {U"a b a", 5, Izquierda, "aa b!aa"}})
    EXPECT_EQ(Laid(font, text, {Completo, width, side}), banner);
  EXPECT_EQ(Laid(left, U"ab b", {Completo, 6}), " b baa");
  EXPECT_EQ(Laid(left, U"ab", {Completo, 6, Izquierda}), "baa");
}

TEST(Composicion, NoFontGrowsWhereItsLettersMove) {
  const std::filesystem::path folder = std::filesystem::path(PIXMOSA_SOURCE_DIR) / "data/Fonts";
  for (const auto& file : std::filesystem::directory_iterator(folder)) {
    if (file.path().extension() != ".flf") continue;
    BasFigLet read;
    LoadFontBytes(read, LeerArchivo(file.path()), [](const std::string& f) { ADD_FAILURE() << f; });
    const FuenteEnUso font(read);
    for (const std::u32string text : {U"Pixmosa", U"AVAW To//\\ |_|", U"¿Año?\nÑandú", U"il.,\n\nÁÉ"}) {
      SCOPED_TRACE(file.path());
      std::vector<Dibujo> drawn;
      std::string utf8;
      for (const char32_t c : text) AppendUtf8(utf8, c);
      std::size_t columns = SIZE_MAX, rows = SIZE_MAX;
      for (const Composicion how : {Completo, Juntar, Fundir}) {
        const Dibujo banner = font.Dibujar(utf8, {{how}, {}});
        EXPECT_LE(banner.Columnas(), columns);
        EXPECT_LE(banner.filas.size(), rows);
        columns = banner.Columnas();
        rows = banner.filas.size();
        drawn.push_back(banner);
      }
      EXPECT_EQ(Utf8De(drawn[0]), Utf8OfBytes(RenderBanner(read, TextoConCrLf(BytesOfUtf8(utf8)))));
      std::u32string all[2];
      for (const std::size_t i : {0U, 1U})
        for (const Fila& row : drawn[i].filas)
          for (const Celda& cell : row)
            all[i] += cell.caracter == U' ' ? U"" : std::u32string(1, cell.caracter);
      EXPECT_EQ(all[0].size(), all[1].size()) << "a fitted banner lacks nothing";
    }
  }
}
