#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <sstream>

#include <QImage>

#include "conversion/Palette3x2.h"
#include "platform/CodePage.h"
#include "platform/qt/QtPicture.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/RunProgram.h"

using namespace pixmosa;
using test::Cli;
using test::Resultado;

class OrdenAsciiTest : public testing::Test {
 protected:
  test::TestFolder folder;
  std::string picture = folder.File("cuadro.png");
  void SetUp() override { Save(picture, Picture::Filled(60, 60, kWhite)); }

  static void Save(const std::string& file, const Picture& p) {
    ImageOf(p).save(QString::fromStdString(file));
  }
  std::string Text(const std::string& columns, const std::vector<std::string>& more) {
    std::vector<std::string> words = {"ascii", picture, "--columnas", columns};
    words.insert(words.end(), more.begin(), more.end());
    const Resultado r = Cli(words);
    EXPECT_EQ(r.err, "");
    return r.out;
  }
};

TEST_F(OrdenAsciiTest, TextGoesToStandardOutputWithNothingAdded) {
  const Resultado r = Cli({"ascii", picture, "--columnas", "10"});
  EXPECT_EQ(r.status, 0);
  EXPECT_EQ(r.err, "");
  EXPECT_TRUE(r.out.starts_with("          \n          \n"));
  EXPECT_EQ(r.out.find('\r'), std::string::npos);
  EXPECT_TRUE(r.out.ends_with("\n          "));
  EXPECT_EQ(Cli({"ascii", "-", "--columnas", "10"}, LeerArchivo(picture)).out, r.out);
  EXPECT_EQ(Cli({"ascii", picture}).out.find('\n'), 80U) << "80 columns without a terminal";
}

TEST_F(OrdenAsciiTest, FileHoldsWhatTheWindowWouldSave) {
  const std::string file = folder.File("dibujo.txt");
  const Resultado shown = Cli({"ascii", picture, "--columnas=7", "--paleta", "3"});
  EXPECT_EQ(Cli({"ascii", "-o", file, picture, "--columnas=7", "--paleta", "3"}).out, "");
  std::string text = LeerArchivo(file);
  const std::string head = "Ascii Art generado por Pixmosa. Fuente: Lucida Console Tama\xF1o: 6\r\n";
  ASSERT_TRUE(text.starts_with(head)) << text;
  ASSERT_TRUE(text.ends_with("\r\n"));
  text = text.substr(head.size(), text.size() - head.size() - 2);
  EXPECT_EQ(text.size(),
            shown.out.size() + static_cast<std::size_t>(std::count(text.begin(), text.end(), '\r')));
  EXPECT_EQ(text.find_first_not_of("0123456789\r\n"), std::string::npos);
}

TEST_F(OrdenAsciiTest, OptionsReachTheConversion) {
  const auto with = [&](const std::vector<std::string>& more) { return Text("5", more); };
  Save(picture, Picture::Filled(50, 90, Rgb(60, 60, 60)));
  const std::string plain = with({});
  EXPECT_NE(with({"--negativo"}), plain);
  EXPECT_EQ(with({"--luminosidad", "100"}).substr(0, 5), "     ");
  EXPECT_EQ(with({"--luminosidad=-100"}).find_first_not_of('\n'), std::string::npos)
      << "dark rows are dropped";
  EXPECT_NE(with({"--puntos", "40"}), plain);
  EXPECT_EQ(with({"--fuente", "DejaVu Sans Mono"}), plain) << "the font that stands for the start-up font";
}

TEST_F(OrdenAsciiTest, EachMethodWithItsOptions) {
  // A black square with a white frame, wide enough for several characters.
  Picture p = Picture::Filled(200, 200, kWhite);
  for (int y = 50; y < 150; ++y) std::fill_n(p.Writable() + y * 200 + 50, 100, 0xFF000000U);
  Save(picture, p);
  const auto lines = [&](const std::vector<std::string>& more) { return Text("20", more); };
  EXPECT_EQ(lines({"--metodo", "grises"}), lines({}));
  const std::string edges = lines({"--metodo=bordes"}), filled = lines({"--metodo=bordes", "--relleno"});
  EXPECT_NE(edges.find("\n     |        |     \n"), std::string::npos) << edges;
  EXPECT_NE(filled.find("\n     |::::::::|     \n"), std::string::npos) << filled;
  const std::string full(10, LoadPalette3x2(ProgramFolder()).Characters[63].value());
  const std::string blocks = lines({"--metodo", "antialias"});
  EXPECT_NE(blocks.find("\n     " + full.substr(0, 9)), std::string::npos) << blocks;
  EXPECT_TRUE(blocks.starts_with(std::string(20, ' ') + "\n"));
}

TEST_F(OrdenAsciiTest, OnlyBlocksNeedThePatternFile) {
  const std::string program = folder.File("pixmosa-cli");
  std::filesystem::copy_file(ProgramFolder() / "pixmosa-cli", program);
  for (const std::string method : {"grises", "bordes"})
    EXPECT_EQ(test::RunProgram(program, {"ascii", picture, "--metodo", method}).status, 0) << method;
  EXPECT_EQ(test::RunProgram(program, {"--version"}).status, 0);
  const std::string twice = "..\r\n..\r\n..\r\na\r\n\r\n";
  for (const bool there : {false, true}) {
    if (there) EscribirArchivo(folder.File("Paleta 3x2.txt"), twice + twice);
    const Resultado r = test::RunProgram(program, {"ascii", picture, "--metodo", "antialias"});
    EXPECT_EQ(r.status, 1);
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(r.err,
              "pixmosa-cli: No se ha encontrado el archivo con la paleta 3x2. Restaurelo, o instale "
              "nuevamente la aplicación.\n");
  }
}

TEST_F(OrdenAsciiTest, MethodsNearerToThePictureKeepEveryRow) {
  const auto rows = [](const std::string& text) { return std::count(text.begin(), text.end(), '\n') + 1; };
  const auto expected = rows(Text("10", {}));
  Save(picture, Picture::Filled(60, 60, kBlack));
  for (const char* method : {"tono", "formas"}) {
    const std::string dark = Text("10", {"--metodo", method, "--paleta", "1"});
    EXPECT_EQ(rows(dark), expected) << method;
    EXPECT_EQ(dark.find_first_not_of(std::string("\n") + dark[0]), std::string::npos)
        << "a flat picture, one character";
  }
  EXPECT_EQ(rows(Text("10", {"--proporcion", "1", "--metodo", "formas"})), 10);
  EXPECT_EQ(rows(Text("10", {"--proporcion=0,5"})), 20) << "for every method, with a comma as well";
  EXPECT_EQ(Text("4", {"--caracteres", "ab"}).find_first_not_of("ab \n"), std::string::npos);

  Picture ramp(256, 64);
  for (int i = 0; i < 256 * 64; ++i) ramp.Writable()[i] = PixelOfColour(Rgb(i % 256, i % 256, i % 256));
  Save(picture, ramp);
  const std::string plain = Text("30", {"--metodo", "formas"});
  for (const std::vector<std::string>& change : {std::vector<std::string>{"--nitidez", "100"},
                                                 {"--contraste-local", "0"},
                                                 {"--sin-ajuste"},
                                                 {"--negativo"},
                                                 {"--luminosidad", "40"},
                                                 {"--metodo", "tono"}}) {
    std::vector<std::string> words = {"--metodo", "formas"};
    words.insert(words.end(), change.begin(), change.end());
    if (change[0] == "--metodo") words.erase(words.begin(), words.begin() + 2);
    EXPECT_NE(Text("30", words), plain) << change[0];
  }
}

TEST_F(OrdenAsciiTest, CharactersBeyondTheCodePageAreUtf8) {
  Save(picture, Picture::Filled(60, 60, kBlack));
  const Resultado r =
      Cli({"ascii", picture, "--columnas", "3", "--caracteres", "braille", "--metodo", "formas"});
  EXPECT_EQ(r.out.substr(0, 2), "\xE2\xA3") << "U+28C0 to U+28FF";
  for (const std::vector<std::string>& wrong : {std::vector<std::string>{"--caracteres", "cajas"},
                                                {"--caracteres", " "},
                                                {"--proporcion", "0"},
                                                {"--proporcion", "2x"},
                                                {"--nitidez", "101"},
                                                {"--metodo", "otro"}}) {
    std::vector<std::string> words = {"ascii", picture};
    words.insert(words.end(), wrong.begin(), wrong.end());
    EXPECT_EQ(Cli(words).status, 2) << wrong[0];
  }
}

TEST_F(OrdenAsciiTest, CompararPutsTheNearestFirst) {
  Picture p(300, 200);
  for (int y = 0; y < 200; ++y)
    for (int x = 0; x < 300; ++x) {
      const int v = (x - 150) * (x - 150) + (y - 100) * (y - 100) < 6400 ? 220 - x / 3 : 40 + y / 2;
      p.Writable()[y * 300 + x] = PixelOfColour(Rgb(v, v, v));
    }
  Save(picture, p);
  const std::string text = folder.File("formas.txt");
  EscribirArchivo(text, Text("60", {"--metodo", "formas"}));
  const Resultado r = Cli({"comparar", picture, "--columnas", "60", "--texto", text});
  std::istringstream lines(r.out);
  std::map<std::string, double> scores;
  double before = 100;
  for (std::string line; std::getline(lines, line);) {
    EXPECT_EQ(std::count(line.begin(), line.end(), '\t'), 5) << line;
    const double score = std::stod(line.substr(line.find('\t') + 1));
    EXPECT_LE(score, before);
    scores[line.substr(0, line.find('\t'))] = before = score;
  }
  EXPECT_EQ(scores.size(), 4U);
  EXPECT_EQ(scores["formas"], scores[text]);
  EXPECT_GT(scores["formas"], scores["tono"]);
  EXPECT_GT(scores["tono"], scores["grises"]);
}
