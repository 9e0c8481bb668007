#include <gtest/gtest.h>

#include <QImage>

#include "platform/qt/QtPicture.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/RunProgram.h"

using namespace pixmosa;
using test::Cli;
using test::Grays;
using test::Levels;
using test::Resultado;
using Rows = std::vector<std::vector<int>>;

class OrdenEfectoTest : public testing::Test {
 protected:
  test::TestFolder folder;
  std::string picture = folder.File("foto.png"), made = folder.File("nueva.png");

  void SetUp() override { Save(picture, Grays({{10, 20, 30}, {40, 50, 60}})); }

  static void Save(const std::string& file, const Picture& p) {
    ImageOf(p).save(QString::fromStdString(file));
  }
  static Picture Read(const std::string& file) { return PictureOf(QImage(QString::fromStdString(file))); }

  // The picture after these steps.
  Rows After(std::vector<std::string> steps) {
    std::vector<std::string> words = {"efecto", picture, "-o", made};
    words.insert(words.end(), steps.begin(), steps.end());
    const Resultado r = Cli(words);
    EXPECT_EQ(r.err, "");
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(r.status, 0);
    return Levels(Read(made));
  }
};

TEST_F(OrdenEfectoTest, StepsByNumberAndByNameFromLeftToRight) {
  EXPECT_EQ(After({"2"}), (Rows{{245, 235, 225}, {215, 205, 195}}));
  EXPECT_EQ(After({"negativo", "girar-horizontal", "14=-50"}), (Rows{{112, 118, 122}, {98, 102, 108}}));
  EXPECT_EQ(After({"14"}), (Rows{{11, 22, 33}, {44, 55, 66}})) << "the menu's own argument";
  EXPECT_EQ(After({"metodo-1=45"}), (Rows{{0, 0, 0}, {0, 255, 255}})) << "the slider's grey level";
  EXPECT_EQ(After({"pixelizar=20", "girar-vertical"}), (Rows{{35, 35, 35}, {35, 35, 35}}));
  EXPECT_EQ(After({"espejo-izquierda-derecha", "rgb-->-brg"}), (Rows{{10, 20, 30}, {40, 50, 60}}));
  EXPECT_EQ(After({"8=0"}), (Rows{{40, 40, 30}, {40, 50, 60}})) << "|10 - 50|, |20 - 60|";
  Save(picture, Picture::Filled(1, 1, Rgb(1, 2, 3)));
  for (const char* step : {"rgb-->-gbr", "rgb-a-gbr", "16=2"}) EXPECT_EQ(After({step}), (Rows{{2}})) << step;
}

TEST_F(OrdenEfectoTest, QuarterTurnsCropsAndRecipes) {
  EXPECT_EQ(After({"girar-90"}), (Rows{{40, 10}, {50, 20}, {60, 30}}));
  EXPECT_EQ(After({"girar-270"}), (Rows{{30, 60}, {20, 50}, {10, 40}}));
  EXPECT_EQ(After({"recortar=1,0,2,1", "negativo"}), (Rows{{235, 225}}));
  const std::string recipe = folder.File("suave.txt");
  EscribirArchivo(recipe, "\xEF\xBB\xBF# una receta\r\n girar-90  # al lado\r\n\r\nrecortar=0,0,2,1\n");
  EXPECT_EQ(After({"--receta", recipe}), (Rows{{40, 10}}));
  EXPECT_EQ(After({"negativo", "--receta", recipe}), (Rows{{215, 245}})) << "its steps come first";
  // A large one, turned back to what it was, over several squares.
  Picture p(70, 33);
  for (int i = 0; i < 70 * 33; ++i) p.Writable()[i] = PixelOfColour(Rgb(i % 251, i % 251, i % 251));
  Save(picture, p);
  EXPECT_EQ(After({"girar-90"})[3][5], Levels(p)[27][3]);
  EXPECT_EQ(After({"girar-90", "girar-270"}), Levels(p));

  struct Row {
    std::vector<std::string> words;
    int status;
    const char* says;
  };
  EscribirArchivo(recipe, "negativo\nno-existe\n");
  for (const Row& r :
       {Row{{"recortar=60,0,11,5"}, 1, "se sale de la imagen, que tiene 70 x 33."},
        Row{{"recortar=1,2,0,5"}, 2, "necesita cuatro enteros"},
        Row{{"recortar"}, 2, "necesita cuatro enteros"}, Row{{"girar-90=1"}, 2, "no lleva valor"},
        Row{{"--receta", recipe}, 2, "línea 2: no existe el paso \"no-existe\"."},
        Row{{"--receta", "ninguna"}, 1, "No hay ninguna receta ni ningún archivo \"ninguna\"."}}) {
    std::vector<std::string> words = {"efecto", picture, "-o", made};
    words.insert(words.end(), r.words.begin(), r.words.end());
    const Resultado result = Cli(words);
    EXPECT_EQ(result.status, r.status) << r.words[0];
    EXPECT_NE(result.err.find(r.says), std::string::npos) << result.err;
  }
}

TEST_F(OrdenEfectoTest, SeedRepeatsTheNoise) {
  Save(picture, Picture::Filled(40, 40, Rgb(128, 128, 128)));
  const Rows first = After({"29", "--semilla", "7"});
  EXPECT_EQ(After({"29", "--semilla=7"}), first);
  EXPECT_NE(After({"29", "--semilla=8"}), first);
  EXPECT_NE(After({"29"}), After({"29"})) << "each run differs";
}

TEST_F(OrdenEfectoTest, FolderAndFormats) {
  const std::string other = folder.File("otra.bmp"), out = folder.File("salida");
  Save(other, Grays({{100}}));
  const Resultado r = Cli({"efecto", "--carpeta", out, picture, folder.File("falta.png"), other, "2"});
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("falta.png"), std::string::npos);
  EXPECT_EQ(Levels(Read(out + "/foto.png")), (Rows{{245, 235, 225}, {215, 205, 195}}));
  EXPECT_EQ(Levels(Read(out + "/otra.png")), (Rows{{155}}));
  made = folder.File("nueva.BMP");
  EXPECT_EQ(After({"2"})[0][0], 245);
  EXPECT_TRUE(LeerArchivo(made).starts_with("BM"));
}

TEST_F(OrdenEfectoTest, HelpShowsAll32) {
  const std::string help = Cli({"efecto", "--help"}).out;
  for (const char* part :
       {"   1  nitidez                    \"Nitidez\"                  valor de 0 a 100; si falta, 2\n",
        "  28  mediana ", "\"Método 1\"                 valor de 0 a 255; si falta, 150\n",
        "valor de 1 a 100, obligatorio\n", "espejo-abajo-arriba", "  32  foto-antigua", "rgb-a-bgr",
        "rgb-->-bgr"})
    EXPECT_NE(help.find(part), std::string::npos) << part << " in\n" << help;
}
