#include <gtest/gtest.h>

#include "platform/AtomicFile.h"
#include "platform/qt/QtPictureCodec.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/GuiApplication.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;
using test::Grays;
using test::Levels;

namespace {

std::string Hex(std::string_view digits) {
  const QByteArray bytes =
      QByteArray::fromHex(QByteArray(digits.data(), static_cast<qsizetype>(digits.size())));
  return bytes.toStdString();
}

// A placeable metafile of 1 x 1 inch: white, its left half black.
std::string Metafile() {
  std::string words;
  const auto add = [&](std::initializer_list<unsigned> list) {
    for (const unsigned w : list) {
      words += static_cast<char>(w & 0xFF);
      words += static_cast<char>(w >> 8 & 0xFF);
    }
  };
  const std::initializer_list<unsigned> placeable = {0xCDD7, 0x9AC6, 0, 0, 0, 960, 960, 960, 0, 0};
  unsigned sum = 0;
  for (const unsigned w : placeable) sum ^= w;
  add(placeable);
  add({sum});
  add({1, 9, 0x300, 63, 0, 2, 7, 0, 0});   // header: 63 words, two objects, longest record 7
  add({5, 0, 0x20B, 0, 0});                // window origin
  add({5, 0, 0x20C, 960, 960});            // window extent
  add({7, 0, 0x2FC, 0, 0xFFFF, 0xFF, 0});  // white brush
  add({7, 0, 0x2FC, 0, 0, 0, 0});          // black brush
  add({4, 0, 0x12D, 0});                   // white
  add({7, 0, 0x41B, 960, 960, 0, 0});      // rectangle: bottom, right, top, left
  add({4, 0, 0x12D, 1});                   // black
  add({7, 0, 0x41B, 960, 480, 0, 0});
  add({3, 0, 0});
  return words;
}

}  // namespace

class QtPictureCodecTest : public testing::Test {
 protected:
  QtPictureCodecTest() { test::NeedGuiApplication(); }
  QtPictureCodec codec;
  test::TestFolder folder;

  std::string Reason(const std::string& bytes) {
    try {
      codec.ReadBytes(bytes, "x");
      return "read";
    } catch (const PictureError& e) {
      return e.what();
    }
  }
};

TEST_F(QtPictureCodecTest, KindIsToldByContentAndPixelsAreKept) {
  const std::vector<std::vector<int>> levels = {{0, 50, 100}, {150, 200, 255}};
  for (const char* format : {"png", "bmp"}) {
    const std::string file = folder.File("sin-nombre.jpg");
    EscribirArchivo(file, codec.Encode(Grays(levels), format));
    EXPECT_EQ(Levels(codec.Read(file)), levels) << format;
    EXPECT_EQ(Levels(codec.ReadStretched(file, [](Extent) { return Extent{1, 1}; }))[0][0], 200) << format;
  }
}

TEST_F(QtPictureCodecTest, TransparentPixelsLieOnWhite) {
  // A GIF of 1 x 1 whose only pixel is the transparent colour 0 (black).
  const Picture p = codec.ReadBytes(
      Hex("47494638396101000100800000000000ffffff21f90401000000002c00000000010001000002024401003b"), "x");
  EXPECT_EQ(p.ColourAt(0, 0), kWhite);
}

TEST_F(QtPictureCodecTest, PhotographsTakenSidewaysAreUpright) {
  const std::string jpeg = codec.Encode(Picture::Filled(40, 24, kWhite), "jpg");
  const std::string exif(
      "\xFF\xE1\0\x22"
      "Exif\0\0"
      "MM\0\x2A\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0",
      36);
  const std::string file = folder.File("x.jpg");
  EscribirArchivo(file, jpeg.substr(0, 2) + exif + jpeg.substr(2));
  EXPECT_EQ(codec.Read(file).Size(), (Extent{24, 40}));
  Extent seen;
  codec.ReadStretched(file, [&](Extent size) {
    seen = size;
    return Extent{1, 1};
  });
  EXPECT_EQ(seen, (Extent{24, 40}));
}

TEST_F(QtPictureCodecTest, MetafilesAreDrawn) {
  const Picture p = codec.ReadBytes(Metafile(), "x");
  ASSERT_EQ(p.Size(), (Extent{96, 96}));
  EXPECT_EQ(p.ColourAt(20, 48), kBlack);
  EXPECT_EQ(p.ColourAt(70, 48), kWhite);
}

TEST_F(QtPictureCodecTest, SaysWhatIsWrong) {
  const std::string head = "No se ha podido leer la imagen \"x\": ";
  EXPECT_EQ(Reason(""), head + "el archivo está vacío.");
  EXPECT_EQ(Reason("hola"), head + "no es una imagen de un formato conocido.");
  for (const char* format : {"png", "bmp", "jpg"}) {
    const std::string whole = codec.Encode(Picture::Filled(300, 200, Rgb(9, 120, 40)), format);
    EXPECT_EQ(Reason(whole), "read") << format;
    for (const std::size_t keep : {whole.size() - 30, whole.size() * 2 / 3, std::size_t{60}})
      EXPECT_NE(Reason(whole.substr(0, keep)), "read") << format << " cut to " << keep;
  }
  EXPECT_EQ(Reason(Hex("474946383961ffffffff800000000000ffffff2c00000000ffffffff0002024401003b")),
            head + "sus 65535 x 65535 píxeles no caben en la memoria.");
}

TEST_F(QtPictureCodecTest, LargestPictureOfAnIcon) {
  // Two PNG pictures in one icon: 2 x 2 first, then 3 x 3.
  const std::string small = codec.Encode(Picture::Filled(2, 2, kWhite), "png");
  const std::string large = codec.Encode(Picture::Filled(3, 3, kBlack), "png");
  const auto entry = [](char side, std::size_t size, std::size_t at) {
    std::string e{side, side, 0, 0, 1, 0, 32, 0};
    for (std::size_t v : {size, at})
      for (int i = 0; i < 4; ++i) e += static_cast<char>(v >> (8 * i) & 0xFF);
    return e;
  };
  const std::string icon = std::string("\0\0\1\0\2\0", 6) + entry(2, small.size(), 38) +
                           entry(3, large.size(), 38 + small.size()) + small + large;
  EXPECT_EQ(codec.ReadBytes(icon, "x").Size(), (Extent{3, 3}));
}
