#include <algorithm>
#include <fstream>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QBuffer>
#include <QImage>

#include "platform/AtomicFile.h"
#include "platform/qt/QtPicture.h"
#include "platform/qt/QtPictureCodec.h"
#include "tests/support/DrawnPicture.h"
#include "tests/support/Gif.h"
#include "tests/support/GuiApplication.h"
#include "tests/support/Metafile.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;
using test::Grays;
using test::Levels;

namespace {

std::string Hex(const char* digits) {
  return QByteArray::fromHex(digits).toStdString();
}

// A photograph with data that turns it by 90 degrees.
std::string Turned(const std::string& jpeg) {
  const std::string exif(
      "\xFF\xE1\0\x22"
      "Exif\0\0"
      "MM\0\x2A\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0",
      36);
  return jpeg.substr(0, 2) + exif + jpeg.substr(2);
}

// A vector picture of 20 x 10 with this content.
std::string Svg(const std::string& content, const std::string& size = R"(width="20" height="10")") {
  return R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:xlink="http://www.w3.org/1999/xlink" )" + size +
         ">" + content + "</svg>";
}

// An icon of these pictures, each with the side its list declares.
std::string Icon(const std::vector<std::pair<char, std::string>>& pictures) {
  std::string list("\0\0\1\0", 4), content;
  list += {static_cast<char>(pictures.size()), 0};
  for (const auto& [side, bytes] : pictures) {
    list += {side, side, 0, 0, 1, 0, 32, 0};
    for (const std::size_t v : {bytes.size(), 6 + 16 * pictures.size() + content.size()})
      for (int i = 0; i < 4; ++i) list += static_cast<char>(v >> (8 * i) & 0xFF);
    content += bytes;
  }
  return list + content;
}

// A GIF of 1 x 1 whose only pixel is the transparent colour 0 (black).
const std::string kGif =
    Hex("47494638396101000100800000000000ffffff21f90401000000002c00000000010001000002024401003b");

std::string JpegInGray(int width, int height) {
  QImage image(width, height, QImage::Format_Grayscale8);
  image.fill(90);
  QByteArray data;
  QBuffer buffer(&data);
  image.save(&buffer, "jpg");
  return data.toStdString();
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

TEST_F(QtPictureCodecTest, PhotographsTakenSidewaysAreUpright) {
  const std::string file = folder.File("x.jpg");
  EscribirArchivo(file, Turned(codec.Encode(Picture::Filled(40, 24, kWhite), "jpg")));
  EXPECT_EQ(codec.Read(file).Size(), (Extent{24, 40}));
  codec.ReadStretched(file, [](Extent size) {
    EXPECT_EQ(size, (Extent{24, 40}));
    return Extent{1, 1};
  });
}

TEST_F(QtPictureCodecTest, MetafilesIconsAndTransparentPixelsAreDrawn) {
  const Picture p = codec.ReadBytes(test::HalfBlackMetafile(), "x");
  ASSERT_EQ(p.Size(), (Extent{96, 96}));
  EXPECT_EQ(p.ColourAt(20, 48), kBlack);
  EXPECT_EQ(p.ColourAt(70, 48), kWhite);
  EXPECT_EQ(codec.ReadBytes(kGif, "x").ColourAt(0, 0), kWhite);
  const std::string icon = Icon({{2, codec.Encode(Picture::Filled(2, 2, kWhite), "png")},
                                 {3, codec.Encode(Picture::Filled(3, 3, kBlack), "png")}});
  EXPECT_EQ(codec.Size(icon), (Extent{3, 3}));
  EXPECT_EQ(codec.ReadBytes(icon, "x").Size(), (Extent{3, 3})) << "the largest";
}

// A GIF whose screen of 4 x 3 its first picture covers with one red pixel, at 2, 1.
TEST_F(QtPictureCodecTest, AroundAGifsFirstPictureIsWhite) {
  std::string gif = test::Gif({2, 0}).replace(6, 4, std::string("\4\0\3\0", 4));
  gif.replace(test::GifHeader().size() + 8 + 1, 4, std::string("\2\0\1\0", 4));
  const Picture p = codec.ReadBytes(gif, "x");
  ASSERT_EQ(p.Size(), (Extent{4, 3}));
  for (int y = 0; y < 3; ++y)
    for (int x = 0; x < 4; ++x)
      EXPECT_EQ(p.ColourAt(x, y), x == 2 && y == 1 ? Rgb(255, 0, 0) : kWhite) << x << ' ' << y;
}

TEST_F(QtPictureCodecTest, VectorPicturesReachNoFileButFonts) {
  std::string notice;
  const auto inked = [&](const std::string& content) {
    const Picture p = codec.ReadBytes(Svg(content), "x", &notice);
    EXPECT_EQ(p.Size(), (Extent{20, 10}));
    return std::any_of(p.Pixels(), p.Pixels() + p.PixelCount(),
                       [](std::uint32_t v) { return v != 0xFFFFFFFF; });
  };
  const std::string png = codec.Encode(Picture::Filled(4, 4, kBlack), "png"), file = folder.File("negra.png");
  EscribirArchivo(file, png);
  const auto image = [](const std::string& href) {
    return R"(<image width="20" height="10" xlink:href=")" + href + R"("/>)";
  };
  // So large that the library draws it by threads.
  EXPECT_EQ(codec.Read(PIXMOSA_SOURCE_DIR "/tests/qt/faro.svg").Size(), (Extent{960, 720}));
  EXPECT_TRUE(inked(R"(<text y="9">M</text>)"));
  EXPECT_TRUE(
      inked(image("data:image/png;base64," + QByteArray::fromStdString(png).toBase64().toStdString())));
  EXPECT_EQ(notice, "");
  const std::string torn = QByteArray::fromStdString(png.substr(0, 50)).toBase64().toStdString();
  for (const std::string& href :
       {file, "file://" + file, "/usr/share/fonts/../../.." + file, "data:image/png;base64," + torn}) {
    EXPECT_FALSE(inked(image(href))) << href;
    EXPECT_EQ(notice, "No se ha podido dibujar todo lo que contiene la imagen \"x\".");
  }
}

TEST_F(QtPictureCodecTest, SaysWhatIsWrong) {
  const std::string head = "No se ha podido leer la imagen \"x\": ", room = " píxeles no caben en la memoria";
  // A PNG that says 46000 x 46000.
  const std::string wide =
      Hex("89504e470d0a1a0a0000000d494844520000b3b00000b3b0080000000000000000000000000000000000");
  testing::internal::CaptureStderr();
  for (const auto& [bytes, reason] : std::vector<std::pair<std::string, std::string>>{
           {"", "el archivo está vacío"},
           {"hola", "no es una imagen de un formato conocido"},
           {R"(<?xml version="1.0"?><html/>)", "el archivo está dañado o incompleto"},
           {R"(<svg xmlns="http://www.w3.org/2000/svg"/>)", "la imagen está vacía"},
           {Svg("", R"(width="30000" height="30000")"), "sus 30000 x 30000" + room},
           {wide, "sus 46000 x 46000" + room},
           {Icon({{16, wide}}), "sus 46000 x 46000" + room},
           {Hex("474946383961ffffffff800000000000ffffff2c00000000ffffffff0002024401003b"),
            "sus 65535 x 65535" + room},
           {test::HalfBlackMetafile().substr(0, 90), "el archivo está dañado o incompleto"}})
    EXPECT_EQ(Reason(bytes), head + reason + ".");
  for (const char* format : {"png", "bmp", "jpg"}) {
    const std::string whole = codec.Encode(Picture::Filled(300, 200, Rgb(9, 120, 40)), format);
    EXPECT_EQ(Reason(whole), "read") << format;
    for (const std::size_t keep : {whole.size() - 30, whole.size() * 2 / 3, std::size_t{60}})
      EXPECT_NE(Reason(whole.substr(0, keep)), "read") << format << " cut to " << keep;
    for (std::size_t at = 20; at < whole.size(); at += whole.size() / 19) {
      std::string damaged = whole;
      damaged[at] = static_cast<char>(damaged[at] ^ 0x55);
      Reason(damaged);
    }
  }
  EXPECT_EQ(testing::internal::GetCapturedStderr(), "") << "an error is the whole message";
  codec = QtPictureCodec({}, "/no-existe");
  EXPECT_THAT(codec.FormatosLegibles(), testing::IsSupersetOf({"wmf", "svg", "gif"}));
  EXPECT_THAT(Reason(Svg("")), testing::HasSubstr("falta el programa pixmosa-decodificador"));
  std::string notice = "old";
  codec.ReadBytes(kGif, "x", &notice);
  EXPECT_EQ(notice, "");
  codec.ReadBytes(kGif.substr(0, kGif.size() - 3), "x", &notice);
  EXPECT_EQ(notice, "La imagen \"x\" está incompleta.") << "what can be shown of it is";
}

// A child that may take 30 MB more reads a picture of 80: first the block, then only the conversion lacks
// room.
TEST_F(QtPictureCodecTest, LackOfMemoryIsNotTheFilesFault) {
  for (const std::string& bytes :
       {codec.Encode(Picture::Filled(5000, 4000, kWhite), "png"),
        codec.Encode(Picture::Filled(5000, 4000, kWhite), "jpg"), JpegInGray(5000, 4000)}) {
    codec.ReadBytes(kGif, "x");
    const pid_t child = ::fork();
    if (child == 0) {
      std::ifstream sizes("/proc/self/statm");
      rlim_t pages = 0;
      sizes >> pages;
      const rlim_t most = pages * static_cast<rlim_t>(::getpagesize()) + (30U << 20);
      const rlimit limit{most, most};
      ::setrlimit(RLIMIT_AS, &limit);
      ::_exit(Reason(bytes) != "No se ha podido leer la imagen \"x\": no hay memoria suficiente para ella.");
    }
    int status = -1;
    ::waitpid(child, &status, 0);
    EXPECT_EQ(status, 0);
  }
}

TEST_F(QtPictureCodecTest, SizesAreToldBeforeDecoding) {
  const std::string jpeg = codec.Encode(Picture::Filled(40, 24, kWhite), "jpg");
  for (const auto& [bytes, size] : std::vector<std::pair<std::string, Extent>>{
           {jpeg.substr(0, 700), {40, 24}},
           {Turned(jpeg), {24, 40}},
           {codec.Encode(Picture::Filled(40, 24, kWhite), "png").substr(0, 30), {40, 24}},
           {codec.Encode(Picture::Filled(40, 24, kWhite), "bmp").substr(0, 60), {40, 24}},
           {Hex("474946383961401f401f800000"), {8000, 8000}},
           {Svg(""), {}},
           {"", {}},
           {"hola", {}}})
    EXPECT_EQ(codec.Size(bytes), size) << size.width;
}

TEST_F(QtPictureCodecTest, WritesEveryFormatItNames) {
  const Picture picture = Grays({{0, 255, 60}, {10, 20, 30}});
  EXPECT_THAT(codec.Formatos(), testing::IsSupersetOf({"png", "bmp", "jpg", "jpeg"}));
  for (std::string format : codec.Formatos()) {
    format[0] = static_cast<char>(std::toupper(format[0]));
    EXPECT_EQ(codec.ReadBytes(codec.Encode(picture, format), "x").Size(), (Extent{3, 2})) << format;
  }
  EXPECT_THROW(codec.Encode(picture, "svg"), PictureError);
  EXPECT_THROW(codec.Encode(Picture(), "png"), PictureError);
}

// The PNG reader against the platform's, for every kind of pixel that it writes.
TEST_F(QtPictureCodecTest, PngPixelsOfEveryKind) {
  QImage colours(37, 23, QImage::Format_RGBA64);
  for (int y = 0; y < 23; ++y)
    for (int x = 0; x < 37; ++x)
      colours.setPixelColor(x, y,
                            QColor::fromRgba64(static_cast<quint16>(x * 1771), static_cast<quint16>(y * 2979),
                                               static_cast<quint16>((x * y * 77) % 65536), 65535));
  for (const auto format :
       {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_Grayscale8, QImage::Format_Grayscale16,
        QImage::Format_RGB32, QImage::Format_ARGB32, QImage::Format_RGBX64}) {
    QImage image = colours.convertToFormat(format);
    if (format == QImage::Format_Indexed8) image.setColor(image.pixelIndex(3, 4), qRgba(9, 8, 200, 77));
    if (format == QImage::Format_ARGB32)
      for (int x = 0; x < 37; ++x) image.setPixel(x, x % 23, qRgba(7 * x, 250 - x, 40, 6 * x));
    QByteArray data;
    QBuffer buffer(&data);
    image.save(&buffer, "png");
    const Picture expected = PictureOf(QImage::fromData(data)), p = codec.ReadBytes(data.toStdString(), "x");
    ASSERT_EQ(p.Size(), expected.Size());
    EXPECT_TRUE(std::equal(p.Pixels(), p.Pixels() + p.PixelCount(), expected.Pixels())) << format;
  }
}
