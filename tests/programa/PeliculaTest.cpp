// Films without a window: their order, their frames' texts, what ends them.
#include <gtest/gtest.h>

#include "platform/AtomicFile.h"
#include "programa/Ajustes.h"
#include "programa/Pelicula.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/FakePictureCodec.h"
#include "tests/support/FakeTextSurface.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;
using test::Grays;

namespace {

// Writes what it is given: each frame's text and delay.

class Recogedor final : public EscritorDePelicula {
 public:
  explicit Recogedor(Rodaje film) : o_(std::move(film)) {
    o_.salida("[" + o_.opciones.titulo + " " + std::to_string(o_.cuadro.width) + "x" +
              std::to_string(o_.cuadro.height) + "]");
  }
  void Poner(const Dibujo& drawing, int milliseconds) override {
    for (const Fila& row : drawing.filas)
      for (const Celda& cell : row) o_.salida(std::string(1, static_cast<char>(cell.caracter)));
    o_.salida(" " + std::to_string(milliseconds) + ";");
  }
  void Acabar() override { o_.salida("fin"); }

 private:
  Rodaje o_;
};

constexpr FormatoDePelicula kRecoger = {"x", "", [](Rodaje film) -> std::unique_ptr<EscritorDePelicula> {
                                          return std::make_unique<Recogedor>(std::move(film));
                                        }};

class PeliculaTest : public testing::Test {
 protected:
  test::TestFolder folder;
  test::FakeTextSurface surface;
  test::FakePictureCodec codec;
  Programa p{surface, codec, folder.Path()};
  Revelado how{
      kGrayscale, {}, {surface, {}, {4, 4}, {}, [](std::string_view text) { return std::string(text); }}};
  std::string file = folder.File("p.x");
  std::string failures;

  void SetUp() override {
    surface.cell = {4, 4};
    surface.ink['<'] = 12;
    p.ajustes.palette = 1;
    Medir(p);
    p.basAscii.AsciiColumns = 2;
  }
  bool Escribir(const Pelicula& film, std::size_t until = SIZE_MAX) {
    return EscribirPelicula(p, film, file, kRecoger, how, [&](std::size_t k, const std::string& failure) {
      failures += failure;
      return k < until;
    });
  }
};

}  // namespace

TEST(OrdenNatural, CountsAsPeopleDo) {
  const std::vector<std::string> sorted = {"1.png",
                                           "a.png",
                                           "A1.png",
                                           "a01.png",
                                           "b.png",
                                           "foto.png",
                                           "foto2.png",
                                           "Foto3.png",
                                           "foto10.png",
                                           "foto10b.png",
                                           "foto11.png",
                                           "foto99999999999999999999.png",
                                           "foto100000000000000000000.png"};
  for (std::size_t i = 0; i < sorted.size(); ++i)
    for (std::size_t j = 0; j < sorted.size(); ++j) {
      const bool same = (sorted[i] == "A1.png" && sorted[j] == "a01.png") ||
                        (sorted[j] == "A1.png" && sorted[i] == "a01.png");
      if (same) continue;
      EXPECT_EQ(OrdenNatural(sorted[i], sorted[j]), i < j) << sorted[i] << ' ' << sorted[j];
    }
  EXPECT_NE(OrdenNatural("A1.png", "a01.png"), OrdenNatural("a01.png", "A1.png"));
}

TEST_F(PeliculaTest, FolderGoesInOrderAndLeavesOutWhatCannotBeRead) {
  codec.files = {{"f2.png", Grays({{0, 255}})}, {"f10.PNG", Grays({{255, 0}})}, {"f1.png", Grays({{0, 0}})}};
  for (const char* name : {"f2.png", "f10.PNG", "f1.png", "f3.png", "f4.txt"})
    EscribirArchivo(folder.File(name), "");
  std::filesystem::create_directory(folder.File("f5.png"));
  p.basAscii.ProducedText = "antes";
  const Pelicula film = PeliculaDeCarpeta(codec, folder.Path(), 40);
  EXPECT_EQ(film.cuantas, 4U);
  how.hilos = 3;
  EXPECT_TRUE(Escribir(film));
  EXPECT_EQ(LeerArchivo(file), "[" + folder.Path().filename().string() + " 2x1] 40;<  40; < 40;fin")
      << "a dark row is dropped";
  EXPECT_EQ(failures, "No se ha podido leer \"f3.png\".");
  EXPECT_EQ(p.basAscii.ProducedText, "antes") << "the window's text is its own";

  const std::string written = LeerArchivo(file);
  EXPECT_FALSE(Escribir(PeliculaDeCarpeta(codec, folder.Path(), 40), 1));
  EXPECT_EQ(LeerArchivo(file), written) << "a cancelled film leaves the former one";
  codec.files.clear();
  EXPECT_THROW(Escribir(PeliculaDeCarpeta(codec, folder.Path(), 40)), PictureError);
  EXPECT_THROW(PeliculaDeCarpeta(codec, folder.File("no"), 40), FileError);
}

TEST_F(PeliculaTest, FramesOfAFileAreFilesOfTheirOwnOnAnyNumberOfThreads) {
  for (int k = 1; k <= 9; ++k) codec.files[std::to_string(k)] = Grays({{k % 2 * 255, k % 3 * 100}});
  for (const unsigned threads : {1U, 4U}) {
    const std::filesystem::path out = folder.Path() / std::to_string(threads);
    std::filesystem::create_directory(out);
    std::vector<std::size_t> order;
    how.hilos = threads;
    EXPECT_TRUE(EscribirFotogramas(p, PeliculaDeArchivo(codec, "", "cine/a.gif"), out, *FormatoDe("txt"), how,
                                   [&](std::size_t k, const std::string&) {
                                     order.push_back(k);
                                     return true;
                                   }));
    EXPECT_EQ(order, (std::vector<std::size_t>{0, 1, 2, 3, 4, 5, 6, 7, 8}));
    p.basAscii.ProducedText = "";
    for (int k = 1; k <= 9; ++k) {
      GenerateAscii(p.basAscii, p.ajustes, codec.files[std::to_string(k)], kGrayscale);
      EXPECT_EQ(LeerArchivo(out / ("a 00" + std::to_string(k) + ".txt")), p.basAscii.ProducedText) << k;
    }
  }
}

TEST_F(PeliculaTest, FilmsOfFarTooManyPixelsAreRefused) {
  for (int k = 1; k <= 41; ++k) codec.files[std::to_string(k)] = Picture(10000, 10000);
  try {
    PeliculaDeArchivo(codec, "", "a.gif");
    FAIL();
  } catch (const PictureError& e) {
    EXPECT_STREQ(e.what(),
                 "La película \"a.gif\" es demasiado grande: 41 fotogramas de 10000 x 10000 píxeles.");
  }
  codec.files.erase("41");
  EXPECT_EQ(PeliculaDeArchivo(codec, "", "a.gif").cuantas, 40U);
}
