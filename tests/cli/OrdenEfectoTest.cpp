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
  made = folder.File("nueva.bmp");
  EXPECT_EQ(After({"2"})[0][0], 245);
  EXPECT_TRUE(LeerArchivo(made).starts_with("BM"));
}

TEST_F(OrdenEfectoTest, WrongUseSaysWhatIsWrong) {
  struct Case {
    std::vector<std::string> words;
    std::string sentence;  // a part of it
  };
  const Case cases[] = {
      {{"2", "-o", made}, "falta la imagen antes del paso \"2\""},
      {{picture, "-o", made}, "falta algún paso"},
      {{picture, "2"}, "falta la opción -o"},
      {{picture, "0", "-o", made}, "no existe el efecto \"0\""},
      {{picture, "33", "-o", made}, "no existe el efecto \"33\""},
      {{picture, "desenfoca", "-o", made}, "no existe el paso \"desenfoca\""},
      {{picture, "2", "humos", "-o", made}, "no existe el paso \"humos\""},
      {{picture, "2=1", "-o", made}, "el paso \"2=1\" no lleva valor"},
      {{picture, "girar-vertical=1", "-o", made}, "no lleva valor"},
      {{picture, "14=101", "-o", made}, "debe ser un entero de -100 a 100"},
      {{picture, "15=0", "-o", made}, "de 1 a 20"},
      {{picture, "14=", "-o", made}, "de -100 a 100"},
      {{picture, "16=6", "-o", made}, "de 1 a 5"},
      {{picture, "21=0", "-o", made}, "de 1 a 1000"},
      {{picture, "31", "-o", made}, "el paso \"31\" necesita un valor"},
      {{picture, "correccion-gamma", "-o", made}, "necesita un valor"},
      {{picture, "2", "-o", folder.File("nueva.gif")}, "debe terminar en .png, .bmp o .jpg"},
      {{picture, picture, "2", "-o", made}, "varias imágenes necesitan la opción --carpeta"},
      {{picture, "2", "-o", made, "--carpeta", "x"}, "no van juntas"},
  };
  for (const Case& c : cases) {
    std::vector<std::string> words = {"efecto"};
    words.insert(words.end(), c.words.begin(), c.words.end());
    const Resultado r = Cli(words);
    EXPECT_EQ(r.status, 2) << c.sentence;
    EXPECT_NE(r.err.find(c.sentence), std::string::npos) << r.err;
    EXPECT_EQ(std::count(r.err.begin(), r.err.end(), '\n'), 1) << r.err;
  }
  EXPECT_FALSE(std::filesystem::exists(made));
}

TEST_F(OrdenEfectoTest, UnreadablePictureIsAFailure) {
  const Resultado r = Cli({"efecto", folder.File("falta.png"), "2", "-o", made});
  EXPECT_EQ(r.status, 1);
  EXPECT_NE(r.err.find("falta.png"), std::string::npos);
}

TEST_F(OrdenEfectoTest, HelpShowsAll32) {
  const std::string help = Cli({"efecto", "--help"}).out;
  for (const char* part :
       {"   1  nitidez                    \"Nitidez\"                  valor de 0 a 100; si falta, 2\n",
        "  28  mediana ", "\"Método 1\"                 valor de 0 a 255; si falta, 150\n",
        "valor de 1 a 100, obligatorio\n", "espejo-abajo-arriba", "  32  foto-antigua"})
    EXPECT_NE(help.find(part), std::string::npos) << part << " in\n" << help;
}
