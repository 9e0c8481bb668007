// The frames of films, against a compositor that asks of every pixel what it shows.
#include <gtest/gtest.h>
#include <random>

#include <QBuffer>
#include <QImageWriter>

#include "platform/qt/QtPicture.h"
#include "platform/qt/QtPictureCodec.h"
#include "tests/support/Gif.h"
#include "tests/support/GuiApplication.h"
#include "tests/support/RunProgram.h"

using namespace pixmosa;
using test::Gif;
using test::GifDe;
using test::Recorte;

namespace {

constexpr Colour kTinta[] = {kBlack, kWhite, Rgb(255, 0, 0), Rgb(0, 255, 0)};

bool Cubre(const Recorte& f, int x, int y) {
  return x >= f.left && y >= f.top && x < f.left + f.width && y < f.top + f.height;
}

// What a pixel shows while frame n is drawn, and what lies under it.
Colour Debajo(const std::vector<Recorte>& frames, int n, int x, int y);
Colour Visto(const std::vector<Recorte>& frames, int n, int x, int y) {
  const Recorte& f = frames[static_cast<std::size_t>(n)];
  const int ink =
      Cubre(f, x, y) ? f.pixels[static_cast<std::size_t>((y - f.top) * f.width + x - f.left)] : f.transparent;
  return Cubre(f, x, y) && ink != f.transparent ? kTinta[ink] : Debajo(frames, n, x, y);
}
Colour Debajo(const std::vector<Recorte>& frames, int n, int x, int y) {
  if (n == 0) return kWhite;
  const Recorte& before = frames[static_cast<std::size_t>(n - 1)];
  if (before.disposal == 2 && Cubre(before, x, y)) return kWhite;
  return before.disposal == 3 ? Debajo(frames, n - 1, x, y) : Visto(frames, n - 1, x, y);
}

// Frames that lie anywhere, also partly beyond a screen of 9 x 7.
std::vector<Recorte> AlAzar(std::mt19937& random) {
  const auto upTo = [&](int n) { return static_cast<int>(random() % static_cast<unsigned>(n + 1)); };
  std::vector<Recorte> frames(5);
  for (Recorte& f : frames) {
    f = {upTo(8), upTo(6), 1 + upTo(8), 1 + upTo(11), {}, upTo(3), upTo(4) - 1, upTo(9), upTo(1) == 1};
    for (int i = 0; i < f.width * f.height; ++i) f.pixels.push_back(upTo(3));
  }
  return frames;
}

class FotogramasTest : public testing::Test {
 protected:
  FotogramasTest() { test::NeedGuiApplication(); }
  QtPictureCodec codec;

  std::vector<Fotograma> Todos(const std::string& bytes, std::string* warning = nullptr) {
    const auto reader = codec.AbrirAnimacion(bytes, "x");
    announced = reader->Cuantos();
    std::vector<Fotograma> all;
    while (std::optional<Fotograma> f = reader->Siguiente()) all.push_back(std::move(*f));
    EXPECT_FALSE(reader->Siguiente());
    if (warning) *warning = reader->Aviso();
    return all;
  }
  std::size_t announced = 0;
};

std::string Trozo(const std::string& name, std::string data) {
  const auto size = static_cast<std::uint32_t>(data.size());
  std::string s = name;
  for (int i = 0; i < 4; ++i) s += static_cast<char>(size >> (8 * i) & 0xFF);
  if (data.size() % 2) data += '\0';
  return s + data;
}

std::string TresBytes(int v) {
  return {static_cast<char>(v & 0xFF), static_cast<char>(v >> 8 & 0xFF), static_cast<char>(v >> 16)};
}

// The picture's own chunk of a lossless WebP file.
std::string Webp(const Picture& picture) {
  QByteArray data;
  QBuffer buffer(&data);
  buffer.open(QIODevice::WriteOnly);
  QImageWriter writer(&buffer, "webp");
  writer.setQuality(100);
  writer.write(ImageOf(picture));
  return data.toStdString().substr(12);
}

// An animated WebP of 4 x 2: red and whole; then a black pixel at (2, 0), laid over it.
std::string WebpQueSeMueve() {
  const auto frame = [](int x, int width, int height, int ms, const Picture& p) {
    return Trozo("ANMF", TresBytes(x / 2) + TresBytes(0) + TresBytes(width - 1) + TresBytes(height - 1) +
                             TresBytes(ms) + '\0' + Webp(p));
  };
  const std::string body = "WEBP" +
                           Trozo("VP8X", std::string("\x02\0\0\0", 4) + TresBytes(3) + TresBytes(1)) +
                           Trozo("ANIM", std::string("\xFF\xFF\xFF\xFF\0\0", 6)) +
                           frame(0, 4, 2, 250, Picture::Filled(4, 2, Rgb(255, 0, 0))) +
                           frame(2, 1, 1, 5, Picture::Filled(1, 1, kBlack));
  return Trozo("RIFF", body);
}

}  // namespace

TEST_F(FotogramasTest, GifFramesLieOnWhatTheOnesBeforeLeave) {
  std::mt19937 random(7);
  for (int round = 0; round < 60; ++round) {
    const std::vector<Recorte> frames = AlAzar(random);
    const std::vector<Fotograma> seen = Todos(GifDe(9, 7, frames));
    ASSERT_EQ(seen.size(), frames.size());
    for (int n = 0; n < static_cast<int>(frames.size()); ++n)
      for (int y = 0; y < 7; ++y)
        for (int x = 0; x < 9; ++x)
          ASSERT_EQ(seen[static_cast<std::size_t>(n)].imagen.ColourAt(x, y), Visto(frames, n, x, y))
              << "round " << round << ", frame " << n << ", " << x << ' ' << y;
  }
}

TEST_F(FotogramasTest, EveryFrameAndNoOther) {
  EXPECT_EQ(Todos(Gif(std::vector<int>(130, 2))).size(), 130U);
  EXPECT_EQ(announced, 130U);
  // What looks like a frame's start inside a remark is none.
  const std::string remark("\x21\xFE\x0A\x21\xF9\x04\0\0\0\0\0\x2C\0\0", 14);
  const std::vector<Recorte> one = {{.pixels = {2}}};
  EXPECT_EQ(Todos(GifDe(1, 1, one, remark)).size(), 1U);
  EXPECT_EQ(announced, 1U);
  const std::vector<Fotograma> still = Todos(codec.Encode(Picture::Filled(3, 2, kBlack), "png"));
  ASSERT_EQ(still.size(), 1U);
  EXPECT_EQ(still[0].imagen.Size(), (Extent{3, 2}));
}

TEST_F(FotogramasTest, DelaysAreTrueAndTheShortestCountAsAlways) {
  std::vector<Recorte> frames;
  for (const int hundredths : {0, 1, 2, 7, 65535})
    frames.push_back({.pixels = {1}, .hundredths = hundredths});
  std::vector<int> delays;
  for (const Fotograma& f : Todos(GifDe(1, 1, frames))) delays.push_back(f.milisegundos);
  EXPECT_EQ(delays, (std::vector<int>{100, 100, 20, 70, 655350}));
}

TEST_F(FotogramasTest, WhatIsCutShortIsShownAsFarAsItGoes) {
  const std::vector<Recorte> frames(3, {0, 0, 40, 40, std::vector<int>(1600, 2)});
  const std::string whole = GifDe(40, 40, frames);
  const std::size_t each = (whole.size() - test::GifHeader().size() - 1) / 3;
  std::string warning;
  EXPECT_EQ(Todos(whole, &warning).size(), 3U);
  EXPECT_EQ(warning, "");
  const std::size_t secondHalf = test::GifHeader().size() + each + each / 2;
  const std::vector<Fotograma> cut = Todos(whole.substr(0, secondHalf), &warning);
  EXPECT_EQ(warning, "La imagen \"x\" está incompleta.");
  ASSERT_EQ(cut.size(), 2U);
  EXPECT_EQ(cut[1].imagen.ColourAt(0, 0), kTinta[2]);
  EXPECT_EQ(Todos(whole.substr(0, test::GifHeader().size() + each + 18), &warning).size(), 1U)
      << "a frame without a row is none";
  EXPECT_THROW(Todos("GIF89a"), PictureError);
  EXPECT_THROW(Todos(""), PictureError);
}

TEST_F(FotogramasTest, TheOtherProcessAnswersFrameByFrame) {
  const std::vector<Fotograma> seen = Todos(WebpQueSeMueve());
  EXPECT_EQ(announced, 2U);
  ASSERT_EQ(seen.size(), 2U);
  EXPECT_EQ(seen[0].milisegundos, 250);
  EXPECT_EQ(seen[1].milisegundos, 100) << "5 ms";
  EXPECT_EQ(seen[0].imagen.ColourAt(2, 0), Rgb(255, 0, 0));
  EXPECT_EQ(seen[1].imagen.ColourAt(2, 0), kBlack);
  EXPECT_EQ(seen[1].imagen.ColourAt(1, 1), Rgb(255, 0, 0)) << "what was there before";
  EXPECT_THROW(Todos(WebpQueSeMueve().substr(0, 40)), PictureError);
  EXPECT_THROW(QtPictureCodec({}, "/bin/false").AbrirAnimacion(WebpQueSeMueve(), "x"), PictureError);
  EXPECT_THROW(QtPictureCodec({}, "/usr/bin/yes").AbrirAnimacion(WebpQueSeMueve(), "x"), PictureError);
}
