#include <gtest/gtest.h>

#include <QColor>
#include <QImage>

#include "platform/Dibujo.h"
#include "platform/qt/QtPicture.h"
#include "platform/qt/QtTextSurface.h"
#include "tests/support/GuiApplication.h"
#include "tests/support/RunProgram.h"

using namespace pixmosa;
using test::Cli;
using test::Resultado;

// The formats of the art through the real program.
class OrdenDibujoTest : public testing::Test {
 protected:
  test::TestFolder folder;
  std::string picture = folder.File("foto.png");

  // Bands of one colour, each as high as a row of cells is at 4 columns.
  void SetUp() override {
    const Resultado table = Cli({"tabla"});
    std::sscanf(table.out.c_str(), "celda\t%d\t%d\n", &cell.width, &cell.height);
    Save({kBlack, Rgb(90, 20, 20), kBlack, Rgb(20, 20, 140)});
  }
  void Save(const std::vector<Colour>& bands) {
    Picture p(4 * cell.width, static_cast<int>(bands.size()) * cell.height);
    std::uint32_t* to = p.Writable();
    for (const Colour c : bands) to = std::fill_n(to, p.Width() * cell.height, PixelOfColour(c));
    ImageOf(p).save(QString::fromStdString(picture));
  }
  // The file that an order on the picture writes.
  std::string Written(const std::string& name, std::vector<std::string> more = {}) {
    more.insert(more.begin(), {"ascii", picture, "--columnas", "4", "-o", folder.File(name)});
    const Resultado r = Cli(more);
    EXPECT_EQ(r.status, 0) << name;
    EXPECT_EQ(r.out + r.err, "") << name;
    return LeerArchivo(folder.File(name));
  }
  Extent cell;
};

TEST_F(OrdenDibujoTest, FormatComesFromTheOptionOrTheEnding) {
  const std::string text = Written("d.txt");
  const std::pair<const char*, const char*> starts[] = {
      {"d.html", "<!DOCTYPE html>"}, {"d.HTML", "<!DOCTYPE html>"}, {"d.Svg", "<?xml"},
      {"d.png", "\x89PNG"},          {"d.zzz", "Ascii Art gen"},    {"d", "Ascii Art gen"}};
  for (const auto& [name, start] : starts) EXPECT_TRUE(Written(name).starts_with(start)) << name;
  EXPECT_EQ(Written("e.html", {"--formato", "txt", "--color"}), text) << "the option comes first";
  const std::vector<std::string> words = {"ascii", picture, "--columnas", "4"};
  const auto shown = [&](std::vector<std::string> more) {
    more.insert(more.begin(), words.begin(), words.end());
    return Cli(more).out;
  };
  EXPECT_EQ(shown({"--formato", "ans"}), shown({})) << "no colour was asked for";
  EXPECT_EQ(shown({"--formato=html"}), Written("f.html"));
  Cli({"ascii", picture, "--carpeta", folder.File("c"), "--formato", "svg", "--columnas=4"});
  EXPECT_EQ(LeerArchivo(folder.File("c/foto.svg")), Written("g.svg"));
}

TEST_F(OrdenDibujoTest, ColoursStayWithTheRowsThatAreKept) {
  const std::string text = Cli({"ascii", picture, "--columnas=4"}).out;
  const std::size_t end = text.find('\n');
  const std::string first = text.substr(0, end),
                    second = text.substr(end + 1, text.find('\n', end + 1) - end - 1);
  ASSERT_TRUE(text.ends_with("\n\n")) << "the black rows are dropped: " << text;
  EXPECT_EQ(Written("d.ans", {"--color"}),
            "\x1b[38;2;90;20;20m" + first + "\x1b[0m\n\x1b[38;2;20;20;140m" + second + "\x1b[0m\n\n");
  EXPECT_EQ(Cli({"ascii", "-", "--columnas=4", "--color", "--formato=ans"}, LeerArchivo(picture)).out,
            LeerArchivo(folder.File("d.ans")));
  EXPECT_NE(Written("e.ans", {"--color", "--colores", "256"}).find("\x1b[38;5;"), std::string::npos);
}

TEST_F(OrdenDibujoTest, OptionsReachTheWriters) {
  const struct {
    const char* name;
    std::vector<std::string> options;
    const char* part;
  } cases[] = {
      {"a.html", {}, "<title>foto</title>"},
      {"a.html", {"--titulo", "Mi <foto>"}, "<title>Mi &lt;foto&gt;</title>"},
      {"a.html", {}, "html{background:#ffffff;color:#000000}"},
      {"a.html", {"--negativo"}, "html{background:#000000;color:#ffffff}"},
      {"a.html", {"--fondo", "1,2,3", "--tinta=255,0,16"}, "html{background:#010203;color:#ff0010}"},
      {"a.html", {"--color"}, "data:image/png;base64,iVBOR"},
      {"a.html", {"--color", "--sin-imagenes"}, ".b{color:#5a1414}"},
      {"a.svg", {"--trazos"}, "<use "},
      {"a.svg", {"--color"}, "fill=\"#5a1414\""},
      {"a.ans", {"--fondo=1,2,3"}, "\x1b[48;2;1;2;3m"},
  };
  for (const auto& c : cases)
    EXPECT_NE(Written(c.name, c.options).find(c.part), std::string::npos) << c.name << ' ' << c.part;
  for (const int scale : {2, 5}) {
    Written("a.png", scale == 2 ? std::vector<std::string>{} : std::vector<std::string>{"--escala", "5"});
    const QImage shown(QString::fromStdString(folder.File("a.png")));
    EXPECT_EQ(shown.width(), 4 * cell.width * scale);
    EXPECT_EQ(shown.height(), 4 * cell.height * scale);
  }
}

TEST_F(OrdenDibujoTest, PictureIsTheTextDrawnAgain) {
  test::NeedGuiApplication();
  QtTextSurface surface;
  const std::string text = Cli({"ascii", picture, "--columnas=4"}).out;
  Written("a.png", {"--escala", "3", "--tinta", "200,0,100", "--fondo", "255,255,0"});
  const QImage shown(QString::fromStdString(folder.File("a.png")));
  const Dibujo drawing = DibujoDeUtf8(text);
  int drawn = 0;
  for (int row = 0; row < 4; ++row)
    for (int column = 0; column < static_cast<int>(drawing.filas[row].size()); ++column) {
      const char32_t c = drawing.filas[row][column].caracter;
      const std::vector<std::uint8_t> ink = surface.PrintSmooth({}, cell, 3, {&c, 1});
      for (int i = 0; i < static_cast<int>(ink.size()); ++i) {
        const QColor seen = shown.pixelColor(column * cell.width * 3 + i % (cell.width * 3),
                                             row * cell.height * 3 + i / (cell.width * 3));
        const double share = ink[i] / 255.0;
        ASSERT_NEAR(seen.red(), 255 - 55 * share, 1);
        ASSERT_NEAR(seen.green(), 255 - 255 * share, 1);
        ASSERT_NEAR(seen.blue(), 100 * share, 1);
        drawn += ink[i] == 255;
      }
    }
  EXPECT_GT(drawn, 100);
}

TEST_F(OrdenDibujoTest, BannersAreDrawingsToo) {
  const std::string banner = Cli({"letrero", "Sí"}).out;
  EXPECT_EQ(Cli({"letrero", "Sí", "--formato", "ans"}).out, banner);
  EXPECT_EQ(Cli({"letrero", "Sí", "-o", folder.File("l.html"), "--tinta", "9,9,9"}).status, 0);
  const std::string page = LeerArchivo(folder.File("l.html"));
  EXPECT_NE(page.find("<title>Sí</title>"), std::string::npos);
  EXPECT_NE(page.find("color:#090909"), std::string::npos);
  EXPECT_EQ(Cli({"letrero", "Sí", "--color"}).status, 2) << "there is no picture";
}

TEST_F(OrdenDibujoTest, WrongValuesAreSaid) {
  const std::pair<std::vector<std::string>, const char*> cases[] = {
      {{"--formato", "gif"}, "la opción --formato espera txt, html, svg, png o ans, no \"gif\"."},
      {{"--fondo", "1,2"}, "la opción --fondo espera tres números de 0 a 255, como 0,0,128, no \"1,2\"."},
      {{"--tinta", "1,2,256"},
       "la opción --tinta espera tres números de 0 a 255, como 0,0,128, no \"1,2,256\"."},
      {{"--escala", "9"}, "la opción --escala espera un número entero de 1 a 8, no \"9\"."},
      {{"--colores", "8"}, "la opción --colores espera todos, 256 o 16, no \"8\"."},
  };
  for (const auto& [words, sentence] : cases) {
    std::vector<std::string> all = {"ascii", "no-hay.png", "-o", folder.File("d.html")};
    all.insert(all.end(), words.begin(), words.end());
    const Resultado r = Cli(all);
    EXPECT_EQ(r.status, 2);
    EXPECT_EQ(r.err, std::string("pixmosa-cli: ") + sentence + "\n");
  }
  const Resultado r =
      Cli({"ascii", picture, "--columnas", "5000", "--escala", "8", "-o", folder.File("d.png")});
  EXPECT_EQ(r.status, 1);
  EXPECT_TRUE(r.err.starts_with("pixmosa-cli: \"" + picture + "\": La imagen sería demasiado grande: "))
      << r.err;
  EXPECT_FALSE(std::filesystem::exists(folder.File("d.png")));
}
