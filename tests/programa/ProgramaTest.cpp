// The program without a window: settings, loading, generating, animations.
#include <gtest/gtest.h>

#include "platform/AtomicFile.h"
#include "programa/Ajustes.h"
#include "programa/Animacion.h"
#include "programa/CargarImagen.h"
#include "programa/Comparacion.h"
#include "programa/Fotografia.h"
#include "programa/Generar.h"
#include "programa/Opciones.h"
#include "programa/Recetas.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/FakePictureCodec.h"
#include "tests/support/FakeTextSurface.h"
#include "tests/support/Gif.h"
#include "tests/support/Noise.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;
using test::Grays;

namespace {

class ProgramaTest : public testing::Test {
 protected:
  test::TestFolder folder;
  test::FakeTextSurface surface;  // cells of 4 x 5 on a screen of 1000 pixels: 250 columns
  test::FakePictureCodec codec;
  Programa p{surface, codec, folder.Path()};

  void SetUp() override {
    for (std::size_t c = '0'; c <= '9'; ++c) surface.ink[c] = static_cast<int>(c - '0');
    p.ajustes.palette = 3;
    Medir(p);
  }
};

}  // namespace

TEST_F(ProgramaTest, EachSettingMakesAgainWhatItLeavesStale) {
  EXPECT_EQ(p.basAscii.AsciiColumns, 250);
  EXPECT_EQ(p.basAscii.GrayToChar[0], '9');

  const std::size_t measured = surface.measured.size();
  PonerTamaño(p, 50);
  EXPECT_EQ(p.basAscii.AsciiColumns, 125);
  PonerLuminosidad(p, 20);
  EXPECT_EQ(surface.measured.size(), measured) << "neither needs the characters measured again";

  surface.cell = {8, 10};
  surface.ink['3'] = 60;  // in another font the 3 is the darkest
  PonerFuente(p, {"Otra", 9});
  EXPECT_EQ(surface.measured.back(), (Font{"Otra", 9}));
  EXPECT_EQ(p.basAscii.CellHeight, 10);
  EXPECT_EQ(p.basAscii.GrayToChar[0], '3');
  EXPECT_EQ(p.basAscii.AsciiColumns, 62) << "half of 125, rounded to even";

  PonerNegativo(p, true);
  EXPECT_EQ(p.basAscii.GrayToChar[255], '3');
  EXPECT_EQ(p.basAscii.GrayToChar[0], 31);
  PonerNegativo(p, false);
  surface.ink['m'] = 70;
  PonerPaleta(p, 2);
  EXPECT_EQ(p.basAscii.GrayToChar[0], 'm');
  EXPECT_EQ(p.basAscii.CharBrightness['3'], 0) << "the palette before is forgotten";
}

TEST_F(ProgramaTest, LoadingIsWholeOrNothing) {
  codec.files = {{"a.png", Grays({{1, 2}})}, {"b.GIF", Grays({{7}})}, {"mala.gif", Grays({{9}})}};
  p.basGif.carpeta = folder.Path();
  const auto load = [&](const char* name) { CargarImagen(p, folder.File(name)); };
  load("a.png");
  EXPECT_EQ(p.imagen.picMain.Pixels(), p.imagen.picUndo.Pixels());
  EXPECT_FALSE(p.animArtDisponible);
  EscribirArchivo(folder.File("b.GIF"), test::Gif({0, 1, 2}));
  load("b.GIF");
  EXPECT_TRUE(p.animArtDisponible);
  EXPECT_EQ(p.basGif.FramesList.size(), 3U);
  p.animArt = true;

  EXPECT_THROW(load("no-existe.png"), PictureError);
  EXPECT_EQ(p.imagen.picMain.ColourAt(0, 0), Rgb(7, 7, 7));
  EXPECT_TRUE(p.animArt && p.animArtDisponible);

  load("a.png");
  EXPECT_FALSE(p.animArt || p.animArtDisponible);
  EXPECT_EQ(p.basGif.FramesList.size(), 3U) << "the last GIF's frames stay";

  codec.files["c.gif"] = codec.files["b.GIF"];
  EscribirArchivo(folder.File("c.gif"), test::Gif({0, 1}).substr(0, 60));
  EXPECT_EQ(CargarImagen(p, folder.File("c.gif")), "El GIF está incompleto: se muestra lo que hay de él.");
  // A long start before the frames: their files together would be far larger than the GIF.
  std::string thick = test::GifHeader() + std::string(3'000'000, '\0');
  for (int i = 0; i < 40; ++i) thick += test::GifFrame(1);
  EscribirArchivo(folder.File("mala.gif"), thick + ";");
  EXPECT_NE(CargarImagen(p, folder.File("mala.gif")), "");
  EXPECT_EQ(p.imagen.picMain.ColourAt(0, 0), Rgb(9, 9, 9)) << "the picture loads all the same";
  EXPECT_FALSE(p.animArtDisponible);
}

// Cells of 4 x 5: a text has (height x columns) / width / 1.25 rows.
TEST_F(ProgramaTest, TextsFarTooLargeAreRefusedBeforeTheyAreMade) {
  struct Row {
    Extent picture;
    int columns, method;
    const char* refused;  // or nothing
    Extent huge;
  };
  for (const Row& r : {Row{{1, 386547}, 20000, kGrayscale, "20000 x 6184752128", {}},
                       {{1, 1000000}, 250, kAntiAlias, "250 x 200000000", {}},
                       {{1, 10000}, 400, kEdges, "400 x 3200000", {}},
                       {{1, 10000}, 200, kEdges, nullptr, {200, 1600000}},
                       {{1, 10000}, 200, kAntiAlias, nullptr, {200, 1600000}},
                       {{4000, 3000}, 250, kGrayscale, nullptr, {}}}) {
    p.imagen.Cargar(Picture(r.picture.width, r.picture.height));
    p.basAscii.AsciiColumns = r.columns;
    p.basAscii.ProducedText = "antes";
    try {
      EXPECT_EQ(TextoEnorme(p, r.method).value_or(Extent{}), r.huge);
      EXPECT_FALSE(r.refused);
    } catch (const TextoExcesivo& e) {
      EXPECT_EQ(e.what(), "El texto sería demasiado grande: " + std::string(r.refused) + " caracteres.");
      EXPECT_THROW(Generar(p, r.method), TextoExcesivo);
      EXPECT_EQ(p.basAscii.ProducedText, "antes");
    }
  }
}

TEST_F(ProgramaTest, HistoryGoesBackAndForthAndIsBounded) {
  const auto now = [&] { return p.imagen.picMain.ColourAt(0, 0) & 0xFF; };
  AnotarPaso(p, "nada");
  EXPECT_TRUE(p.historial.pasos.empty()) << "there is no picture";
  p.imagen.Cargar(Grays({{10}}));
  AnotarPaso(p, "Cargar");
  AnotarPaso(p, "Cargar");
  EXPECT_FALSE(PuedeDeshacerPaso(p)) << "the same picture is no step";
  for (const int level : {20, 30, 40}) {
    p.imagen.SaveUndo();
    p.imagen.picMain = Grays({{level}});
    AnotarPaso(p, "Paso");
  }
  IrAlPaso(p, 1);
  EXPECT_EQ(now(), 20);
  EXPECT_EQ(p.imagen.picUndo.ColourAt(0, 0) & 0xFF, 10) << "with its own undo copy";
  EXPECT_EQ(p.imagen.picMainAsignada.ColourAt(0, 0) & 0xFF, 10) << "and its original";
  IrAlPaso(p, 3);
  EXPECT_EQ(now(), 40);
  EXPECT_FALSE(PuedeRehacerPaso(p));
  IrAlPaso(p, 0);
  p.imagen.picMain = Grays({{50}});
  AnotarPaso(p, "Otro");
  EXPECT_EQ(p.historial.pasos.size(), 2U) << "what was undone gives way";
  p.mFiltros.EffectBusy = true;
  IrAlPaso(p, 0);
  EXPECT_EQ(now(), 50) << "not while an effect runs";
  p.mFiltros.EffectBusy = false;
  // Three pictures of 4 bytes each at most: the oldest go.
  for (int i = 0; i < 5; ++i) {
    p.imagen.Cargar(Grays({{100 + i}}));
    AnotarPaso(p, "Cargar", {}, 12);
  }
  EXPECT_EQ(p.historial.pasos.size(), 3U);
  IrAlPaso(p, 0);
  EXPECT_EQ(now(), 102);
}

// What a session with the picture has done is a recipe, and says so after undoing and reloading too.
TEST_F(ProgramaTest, RecipesHoldWhatMadeThePictureAndMakeItAgain) {
  using Words = std::vector<std::string>;
  NoProgress quiet;
  const auto step = [&](const std::string& word) {
    DarPaso(p.mFiltros, p.imagen, *PasoDe(word), quiet);
    AnotarPaso(p, word, {PalabraDe(*PasoDe(word))});
  };
  p.imagen.Cargar(Grays({{10, 20, 30}, {40, 50, 60}}));
  AnotarPaso(p, "Cargar");
  step("2");
  step("18=230");
  EXPECT_EQ(PasosDados(p), (Words{"negativo", "metodo-1=230"}));
  p.imagen.Deshacer();
  AnotarPaso(p, "Deshacer cambios");
  EXPECT_EQ(PasosDados(p), Words{"negativo"});
  step("girar-90");
  step("recortar=0,1,2,2");
  step("16=2");
  const Words all = {"negativo", "girar-90", "recortar=0,1,2,2", "intercambiar-rgb=2"};
  EXPECT_EQ(PasosDados(p), all);
  const std::filesystem::path recipes = folder.Path() / "aún no está";
  EXPECT_TRUE(RecetasGuardadas(recipes).empty());
  GuardarReceta(recipes, "receta 10", all);
  GuardarReceta(recipes, "receta 2", {"negativo"});
  EXPECT_EQ(RecetasGuardadas(recipes), (Words{"receta 2", "receta 10"}));
  for (const char* bad : {"", "a/b", ".oculta", "con\nsalto"})
    EXPECT_THROW(GuardarReceta(recipes, bad, all), ErrorDelPrograma) << bad;
  const Picture made = p.imagen.picMain;
  const Picture loaded = Grays({{10, 20, 30}, {40, 50, 60}});
  p.imagen.Cargar(loaded);
  AnotarPaso(p, "Cargar");
  EXPECT_TRUE(PasosDados(p).empty()) << "another picture, nothing done to it";
  DarPasos(p, LeerReceta(SitioDeReceta(recipes, "receta 10")), quiet);
  EXPECT_TRUE(test::Same(p.imagen.picMain, made));
  EXPECT_TRUE(test::Same(p.imagen.picUndo, loaded)) << "one undo for all of them";
  // A step that cannot be leaves everything.
  EXPECT_THROW(DarPasos(p, PasosDeReceta("negativo\nrecortar=9,9,9,9\n", "r"), quiet), ErrorDelPrograma);
  EXPECT_TRUE(test::Same(p.imagen.picMain, made));
}

TEST_F(ProgramaTest, OptionsComeBackFromTheirText) {
  p.ajustes.palette = 0;
  const std::string first = TextoDeOpciones(p);
  p.modo = kModoMosaico;
  p.ajustes.font = {"Una fuente", 11};
  p.columnas = 77;
  p.ajustes.formas.ajustarTono = false;
  p.basAscii.CountedColour = kBlack;
  p.fondoWeb = 0x030201;
  p.ajustesWeb.textoPaleta = "a\xF1o";
  PonerCaracteres(p, "áé#");
  PonerProporcion(p, 1.92);
  const std::string text = TextoDeOpciones(p);
  PonerOpcionesDeFabrica(p);
  EXPECT_EQ(TextoDeOpciones(p), first);
  LeerOpciones(p, text);
  EXPECT_EQ(TextoDeOpciones(p), text);
  EXPECT_EQ(p.basWeb.Fondo, "#010203");
  EXPECT_EQ(p.basAscii.Proporcion, 1.92);
  // What is wrong or unknown changes nothing.
  LeerOpciones(p, "modo=6\ntamaño=0\ntamaño\nproporcion=nan\nfuente=\nfondo=-1\n=3\notra=1\ncolumnas=1e9");
  EXPECT_EQ(TextoDeOpciones(p), text);
}

TEST_F(ProgramaTest, WhatPlayRuns) {
  EXPECT_EQ(QueGenerar(p), Trabajo::PedirImagen);
  p.imagen.Cargar(Grays({{0}}));
  using enum Trabajo;
  const Trabajo expected[] = {Texto, Texto, Texto, Ninguno, WebArt, WebArt};
  for (int mode = 0; mode < 6; ++mode) {
    p.modo = static_cast<Modo>(mode);
    EXPECT_EQ(QueGenerar(p), expected[mode]) << mode;
    EXPECT_EQ(MetodoDe(p), mode < 3 ? mode : -1);
  }
  p.modo = kModoGrises;
  p.ajustes.conversion = kFormas;
  EXPECT_EQ(MetodoDe(p), kFormas) << "the grayscale mode has three conversions";
  p.modo = kModoCopiaExacta;
  p.animArt = true;
  EXPECT_EQ(QueGenerar(p), WebArt) << "only the grayscale mode animates";
  p.modo = kModoGrises;
  EXPECT_EQ(QueGenerar(p), AnimArt);
}

TEST_F(ProgramaTest, AnimationsOfFarTooManyPixelsAreRefused) {
  EXPECT_EQ(Exceso({.cuantos = 40, .cadaUna = {5000, 5000}}), "");
  EXPECT_EQ(Exceso({.cuantos = 41, .cadaUna = {5000, 5000}}), "41 fotogramas de 5000 x 5000 píxeles");
  EXPECT_EQ(Exceso({.cuantos = 1'000'000}), "") << "of no known size";
}

TEST_F(ProgramaTest, AnimationGoesThroughTheWorkingPicture) {
  codec.files = {{"1.bmp", Grays({{0, 255}})}, {"3.gif", Grays({{255, 0}})}};
  for (const char* name : {"1.bmp", "2.jpg", "3.gif"}) EscribirArchivo(folder.File(name), "");
  surface.cell = {4, 4};
  surface.ink.fill(0);
  surface.ink['<'] = 12;
  PonerPaleta(p, 1);
  p.basAscii.AsciiColumns = 2;

  const std::string page = folder.File("p.html");
  const Serie frames = SerieDeCarpeta(p, folder.Path());
  std::vector<std::string> texts;
  int unreadable = 0;
  EXPECT_TRUE(EscribirAnimacion(p, frames, page, [&](std::size_t, const std::string& failure) {
    unreadable += failure.empty() ? 0 : 1;
    texts.push_back(p.basAscii.ProducedText);
    return true;
  }));
  EXPECT_EQ(texts, (std::vector<std::string>{"< ", "< ", " <"}))
      << "an unreadable frame repeats the one before";
  EXPECT_EQ(unreadable, 1);
  EXPECT_EQ(p.basAscii.ProducedText, " &lt;");
  EXPECT_EQ(p.imagen.picMain.ColourAt(0, 0), kWhite) << "the last frame";
  const std::string written = LeerArchivo(page);
  EXPECT_NE(written.find("Size = 1 > \r\n &lt;\r\n  </font></pre>\r\n </div>\r\n</body>"), std::string::npos);

  EXPECT_FALSE(EscribirAnimacion(p, frames, page, [](std::size_t k, const std::string&) { return k == 0; }));
  EXPECT_EQ(LeerArchivo(page), written) << "a cancelled page leaves the former one";
}

TEST_F(ProgramaTest, OwnCharactersAreMeasuredForEveryMethod) {
  PonerConversion(p, kFormas);
  EXPECT_EQ(MetodoDe(p), kFormas);
  PrepararRepertorio(p.basAscii, p.ajustes, p.superficie);
  PonerContrasteLocal(p, 10);
  PonerNitidez(p, 20);
  PonerAjusteDeTono(p, false);
  PonerProporcion(p, 2);
  EXPECT_EQ(p.ajustes.formas, (AjustesDeFormas{20, 10, false}));
  EXPECT_FALSE(p.basAscii.Medidos.caracteres.empty()) << "nothing to measure again";
  EXPECT_EQ(ResizedExtent(p.basAscii, {500, 500}, kFormas), (Extent{250, 125}));

  PonerCaracteres(p, "72");
  EXPECT_TRUE(p.basAscii.Medidos.caracteres.empty());
  EXPECT_EQ(p.basAscii.GrayToChar[0], '7');
  EXPECT_EQ(p.basAscii.GrayToChar[255], ' ');
  PonerCaracteres(p, "7\u2588");
  EXPECT_EQ(p.basAscii.GrayToChar[0], '9') << "the palette, where the code page has not all of them";
  PonerCaracteres(p, "");
  EXPECT_TRUE(p.ajustes.caracteres.empty());
}

TEST_F(ProgramaTest, AnimationsWriteWhatTheCodePageLacksAsReferences) {
  codec.files = {{"1.bmp", Grays({{0, 255}})}};
  EscribirArchivo(folder.File("1.bmp"), "");
  surface.cell = {4, 4};
  surface.smooth = [](char32_t c, int, int) { return c == U'\u2588' ? 255 : 0; };
  PonerCaracteres(p, "\u2588");
  PonerConversion(p, kTono);
  p.basAscii.AsciiColumns = 2;
  const std::string page = folder.File("p.html");
  EXPECT_TRUE(EscribirAnimacion(p, SerieDeCarpeta(p, folder.Path()), page, [](auto&&...) { return true; }));
  EXPECT_NE(LeerArchivo(page).find("Size = 1 > \r\n&#9608; \r\n"), std::string::npos);
  EXPECT_EQ(p.basAscii.ProducedUtf8, "\u2588 ") << "the text itself stays";
}

TEST_F(ProgramaTest, ATextIsDrawnCellByCell) {
  p.imagen.Asignar(Grays({{0, 0, 0}, {0, 0, 0}}));
  surface.cell = {1, 2};
  surface.smooth = [](char32_t c, int, int y) { return c == U'A' ? 255 : c == U'b' ? 100 * y : 0; };
  PonerNegativo(p, false);
  p.basAscii.AsciiColumns = 3;  // and one row
  const auto drawn = [&](std::string_view text) { return test::Levels(Dibujar(p, text)); };
  using Rows = std::vector<std::vector<int>>;
  EXPECT_EQ(drawn("Ab"), (Rows{{0, 255, 255}, {0, 155, 255}})) << "paper beside a short row";
  PonerNegativo(p, true);
  EXPECT_EQ(drawn("bAAAA\r\nA"), (Rows{{0, 255, 255}, {100, 255, 255}})) << "nothing beyond the grid";
  EXPECT_TRUE(SePuedeDibujar(p));
  p.basAscii.AsciiColumns = 10'000;  // and 3,333 rows of two pixels
  EXPECT_FALSE(SePuedeDibujar(p));
}

TEST(Fotografia, HasManyTonesAndIsNotSmall) {
  // Diagonal steps of `levels` tones.
  const auto steps = [](int side, int levels) {
    Picture picture(side, side);
    for (int i = 0; i < side * side; ++i) {
      const int g = 255 * ((i % side + i / side) % levels) / std::max(1, levels - 1);
      picture.Writable()[i] = PixelOfColour(Rgb(g, g, g));
    }
    return picture;
  };
  EXPECT_TRUE(EsFotografia(steps(100, 90)));
  EXPECT_FALSE(EsFotografia(steps(63, 90))) << "an icon";
  EXPECT_FALSE(EsFotografia(steps(100, 16))) << "a drawing";
  Picture framed = Picture::Filled(200, 200, kWhite);  // a quarter of it tones
  const Picture inside = steps(100, 90);
  for (int y = 0; y < 100; ++y) std::copy_n(inside.Row(y).data(), 100, framed.Writable() + y * 200);
  EXPECT_FALSE(EsFotografia(framed));
}
