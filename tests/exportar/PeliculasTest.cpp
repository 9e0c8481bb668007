// The writers of films: what they write is read again.
#include <gtest/gtest.h>
#include <sstream>

#include "exportar/Peliculas.h"
#include "tests/exportar/Taller.h"

using namespace pixmosa;
using test::Entintado;
using test::kAzul;
using test::kRojo;
using test::Taller;
using test::Veces;

namespace {

struct Sala : Taller {
  std::string escrito;

  // Each drawing with its delay.
  std::string Rodar(const char* ending, const std::vector<std::pair<Dibujo, int>>& frames,
                    const OpcionesDeExportar& options = {}) {
    escrito.clear();
    const Dibujo& first = frames[0].first;
    const auto writer = FormatoDePeliculaDe(ending)->abrir(
        {options,
         medios,
         {static_cast<int>(first.Columnas()), static_cast<int>(first.filas.size())},
         [this](std::string_view bytes) { escrito += bytes; }});
    for (const auto& [drawing, ms] : frames) writer->Poner(drawing, ms);
    writer->Acabar();
    return escrito;
  }
};

// A screen on which the parts of a GIF are put.
struct Pantalla final : CodificadorDeAnimacion {
  Extent size;
  std::vector<Colour> colours, shown;
  std::vector<std::string> parts;
  bool ended = false;

  void Poner(int left, int top, Extent part, std::span<const std::uint8_t> numbers, int hundredths) override {
    for (int i = 0; i < part.width * part.height; ++i)
      shown[static_cast<std::size_t>((top + i / part.width) * size.width + left + i % part.width)] =
          colours[numbers[static_cast<std::size_t>(i)]];
    parts.push_back(std::to_string(left) + "," + std::to_string(top) + " " + std::to_string(part.width) +
                    "x" + std::to_string(part.height) + " " + std::to_string(hundredths));
  }
  void Poner(int left, int top, const Picture& p, int hundredths) override {
    colours.clear();
    std::vector<std::uint8_t> numbers;
    for (std::size_t i = 0; i < p.PixelCount(); ++i) {
      colours.push_back(ColourOfPixel(p.Pixels()[i]));
      numbers.push_back(static_cast<std::uint8_t>(i));
    }
    Poner(left, top, p.Size(), numbers, hundredths);
  }
  void Acabar() override { ended = true; }
};

}  // namespace

TEST(Cast, IsARecordingOfTheFrames) {
  Sala room;
  OpcionesDeExportar o;
  o.color = true;
  o.titulo = "la \"uno\"\\";
  const Dibujo red = Entintado("a\"\nb ", {{U'a', kRojo}}), brief = Entintado("c", {});
  std::istringstream lines(room.Rodar("cast", {{red, 70}, {brief, 1500}, {red, 100}}, o));
  std::vector<std::string> all;
  for (std::string line; std::getline(lines, line);) all.push_back(line);
  const std::string esc = "\\u001b[";
  const std::string first = esc + "H" + esc + "38;2;255;0;0ma" + esc + "39m";
  EXPECT_EQ(all[0], R"({"version": 2, "width": 2, "height": 2, "title": "la \"uno\"\\"})");
  EXPECT_EQ(all[1], "[0.000, \"o\", \"" + esc + "?25l" + esc + "2J" + first + "\\\"\\u000d\\u000ab \"]");
  EXPECT_EQ(all[2], "[0.070, \"o\", \"" + esc + "Hc" + esc + "K\\u000d\\u000a" + esc + "J\"]")
      << "what the frame before left is wiped";
  EXPECT_TRUE(all[3].starts_with("[1.570, ")) << all[3];
  EXPECT_EQ(all.at(4), "[1.670, \"o\", \"" + esc + "?25h\"]") << "the last frame lasts too";
}

TEST(GifDePelicula, WritesOnlyWhatChangesAtTheTrueTimes) {
  for (const bool colour : {false, true}) {
    Sala room;
    Pantalla* screen = nullptr;
    room.medios.abrirGif = [&](Extent size, std::span<const Colour> colours, const Salida&) {
      auto made = std::make_unique<Pantalla>();
      made->size = size;
      made->colours.assign(colours.begin(), colours.end());
      made->shown.resize(static_cast<std::size_t>(size.width * size.height));
      screen = made.get();
      return made;
    };
    room.medios.celda = {2, 3};
    room.superficie.smooth = [](char32_t c, int x, int y) { return c == U'm' ? 255 : x + y == 0 ? 119 : 0; };
    OpcionesDeExportar o;
    o.escala = 2;
    o.color = colour;
    o.papel = Rgb(15, 15, 15);
    o.tinta = Rgb(165, 15, 30);
    const Dibujo m = Entintado(" m\n  ", {{U'm', kAzul}}), moved = Entintado("  \n.m", {{U'm', kAzul}});
    const auto writer = AbrirGifDePelicula({o, room.medios, {2, 2}, {}});
    writer->Poner(m, 25);
    writer->Poner(moved, 25);
    // Cells of 4 x 6 pixels; the dot's ink is its four first pixels: 119 of 255, 7 of 15 shades.
    const auto at = [&](int x, int y) { return screen->shown[static_cast<std::size_t>(y * 8 + x)]; };
    EXPECT_EQ(screen->size, (Extent{8, 12}));
    EXPECT_EQ(at(4, 0), o.papel);
    EXPECT_EQ(at(7, 11), colour ? kAzul : o.tinta);
    EXPECT_EQ(at(1, 7), Rgb(85, 15, 22)) << SplitColour(at(1, 7)).red;
    EXPECT_EQ(at(2, 7), o.papel);
    writer->Poner(moved, 25);
    writer->Poner(m, 25);
    writer->Acabar();
    EXPECT_EQ(screen->parts,
              (std::vector<std::string>{"0,0 8x12 3", "0,0 8x12 2", "0,0 1x1 3", "0,0 8x12 2"}))
        << "ten hundredths for four times 25 ms";
    EXPECT_TRUE(screen->ended);
    const Dibujo wide = Entintado(std::string(20'000, 'm'), {});
    EXPECT_THROW(AbrirGifDePelicula({o, room.medios, {20'000, 1}, {}}), DibujoExcesivo);
  }
}

TEST(Reproductor, HoldsEachFrameOnceAndNothingThatEndsItsScript) {
  Sala room;
  const Dibujo a = Entintado("</script>\n&amp;\"\\", {}), b = Entintado("<!--", {});
  const std::string page = room.Rodar("html", {{a, 100}, {a, 50}, {b, 20}, {a, 30}});
  EXPECT_EQ(Veces(page, "</script"), 1U);
  EXPECT_EQ(Veces(page, "<!--"), 0U);
  EXPECT_NE(page.find("[150,\"&lt;/script>\\n&amp;amp;\\\"\\\\\",\"\"],\n[20,"), std::string::npos) << page;
  EXPECT_NE(page.find("\n[30,"), std::string::npos);
  EXPECT_EQ(Veces(page, "src="), 0U);
  EXPECT_NE(page.find("default-src 'none'; img-src data:; script-src 'unsafe-inline'; "), std::string::npos);

  OpcionesDeExportar o;
  o.color = true;
  room.bytesDePng = "abc";
  const Dibujo red = Entintado("a \n", {{U'a', Rgb(101, 7, 250)}}), none = Entintado("\n", {});
  EXPECT_EQ(Veces(room.Rodar("html", {{red, 100}, {none, 100}}, o), "YWJj"), 3U)
      << "in the style and for both frames: a frame without letters is no other page";
  EXPECT_EQ(room.codificada.Size(), (Extent{2, 2}));
  room.Rodar("html", {{red, 100}}, o);
  EXPECT_EQ(room.codificada.ColourAt(0, 0), Rgb(100, 5, 250)) << "off by 2 levels at most";
  o.sinImagenes = true;
  const std::string spans = room.Rodar("html", {{red, 100}}, o);
  EXPECT_EQ(Veces(spans, "YWJj"), 0U);
  EXPECT_NE(spans.find("<style>\n.b{color:#6507fa}\n"), std::string::npos);
}

TEST(Peliculas, FormatIsFoundByItsEnding) {
  EXPECT_STREQ(FormatoDePeliculaDe("GIF")->terminacion, "gif");
  EXPECT_EQ(FormatoDePeliculaDe("png"), nullptr);
  EXPECT_EQ(FormatoDePeliculaDe(""), nullptr);
}
