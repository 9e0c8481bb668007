// The quick reader against the platform's: the same pixels for every subsampling, size and kind it takes.
#include <gtest/gtest.h>
#include <jpeglib.h>

#include <QImage>

#include "platform/Pixel.h"
#include "platform/Random.h"
#include "platform/Stretch.h"
#include "platform/jpeg/JpegRows.h"
#include "platform/jpeg/Segmentos.h"
#include "platform/qt/QtPicture.h"
#include "tests/support/GuiApplication.h"

using namespace pixmosa;

namespace {

struct Kind {
  int horizontal, vertical;  // sampling factors of the first component
  bool gray = false, progressive = false;
};

// A noisy picture with soft areas as a JPEG of this kind.
std::string Compress(int width, int height, const Kind& kind) {
  jpeg_compress_struct c{};
  jpeg_error_mgr errors{};
  c.err = jpeg_std_error(&errors);
  jpeg_create_compress(&c);
  unsigned char* out = nullptr;
  unsigned long size = 0;
  jpeg_mem_dest(&c, &out, &size);
  c.image_width = static_cast<JDIMENSION>(width);
  c.image_height = static_cast<JDIMENSION>(height);
  c.input_components = kind.gray ? 1 : 3;
  c.in_color_space = kind.gray ? JCS_GRAYSCALE : JCS_RGB;
  jpeg_set_defaults(&c);
  jpeg_set_quality(&c, 85, TRUE);
  c.comp_info[0].h_samp_factor = kind.horizontal;
  c.comp_info[0].v_samp_factor = kind.vertical;
  if (kind.progressive) jpeg_simple_progression(&c);
  jpeg_start_compress(&c, TRUE);
  Random random(7);
  std::vector<unsigned char> row(static_cast<std::size_t>(width * c.input_components));
  for (int y = 0; y < height; ++y) {
    for (std::size_t x = 0; x < row.size(); ++x)
      row[x] =
          static_cast<unsigned char>((x * 3 + static_cast<std::size_t>(y) * 2 + random.Bits() % 90) % 256);
    JSAMPROW line = row.data();
    jpeg_write_scanlines(&c, &line, 1);
  }
  jpeg_finish_compress(&c);
  std::string bytes(reinterpret_cast<char*>(out), size);
  jpeg_destroy_compress(&c);
  std::free(out);
  return bytes;
}

// An EXIF block that turns the photograph by 90 degrees.
const std::string kExif(
    "\xFF\xE1\0\x22"
    "Exif\0\0"
    "MM\0\x2A\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0\0\0\0\0",
    36);

Picture Whole(const std::string& bytes) {
  test::NeedGuiApplication();
  return PictureOf(QImage::fromData(QByteArray::fromStdString(bytes)));
}

}  // namespace

TEST(JpegRows, SamePixelsAsDecodingTheWhole) {
  for (const Kind& kind : {Kind{1, 1}, {2, 1}, {2, 2}, {1, 2}, {2, 2, false, true}, {1, 1, true}}) {
    for (const Extent source : {Extent{1, 1}, {17, 33}, {200, 311}, {640, 97}}) {
      const std::string bytes = Compress(source.width, source.height, kind);
      const Picture whole = Whole(bytes);
      for (const Extent wanted :
           {Extent{1, 1}, {7, 5}, {40, 31}, source, {source.width + 3, 2 * source.height}}) {
        const auto quick = ReadJpegStretched(bytes, [&](Extent size) {
          EXPECT_EQ(size, source);
          return wanted;
        });
        const Picture slow = Stretch(whole, wanted);
        ASSERT_TRUE(quick && std::equal(slow.Pixels(), slow.Pixels() + slow.PixelCount(), quick->Pixels()))
            << kind.horizontal << kind.vertical << kind.gray << kind.progressive << " " << source.width << "x"
            << source.height << " to " << wanted.width << "x" << wanted.height;
      }
    }
  }
}

TEST(JpegRows, ReducedByTheDecoderAsFarAsAsked) {
  const std::string bytes = Compress(203, 98, {2, 2});
  const Picture whole = Whole(bytes);
  struct Row {
    Extent wanted, got;
  };
  for (const Row& r : {Row{{25, 12}, {26, 13}},
                       {{26, 12}, {51, 25}},
                       {{25, 13}, {51, 25}},
                       {{51, 2}, {102, 49}},
                       {{102, 2}, {203, 98}},
                       {{900, 900}, {203, 98}}}) {
    const auto picture = ReadJpegReduced(bytes, [&](Extent) { return r.wanted; });
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->Size(), r.got) << r.wanted.width << " x " << r.wanted.height;
    double sum = 0, expected = 0;
    for (std::size_t i = 0; i < picture->PixelCount(); ++i) sum += SumaRGB(picture->Pixels()[i]);
    for (std::size_t i = 0; i < whole.PixelCount(); ++i) expected += SumaRGB(whole.Pixels()[i]);
    EXPECT_NEAR(sum / static_cast<double>(picture->PixelCount()),
                expected / static_cast<double>(whole.PixelCount()), 6);
  }
  const auto whole1 = ReadJpegReduced(bytes, [](Extent size) { return size; });
  EXPECT_TRUE(std::equal(whole.Pixels(), whole.Pixels() + whole.PixelCount(), whole1->Pixels()));
}

TEST(JpegRows, LeavesOthersToTheGeneralReader) {
  const std::string bytes = Compress(64, 64, {2, 2});
  const auto read = [](const std::string& file, Extent wanted = {1, 1}) {
    const bool reduced = ReadJpegReduced(file, [&](Extent) { return wanted; }).has_value();
    EXPECT_EQ(ReadJpegStretched(file, [&](Extent) { return wanted; }).has_value(), reduced);
    return reduced;
  };
  EXPECT_TRUE(read(bytes) && JpegLlegaAlFinal(bytes));
  EXPECT_FALSE(JpegLlegaAlFinal(bytes.substr(0, bytes.size() - 2)));
  EXPECT_FALSE(read("GIF89a") || read(bytes.substr(0, 20)) || read(bytes.substr(0, bytes.size() / 2)));
  EXPECT_FALSE(read(bytes, Extent{}));
  EXPECT_FALSE(read(bytes.substr(0, 2) + kExif + bytes.substr(2))) << "it has to be turned";
  // Very many scans, which cost time without end; the common progression has ten.
  const std::string several = Compress(64, 64, {2, 2, false, true});
  EXPECT_EQ(JpegPasadas(several), 10);
  const std::size_t last = several.rfind("\xFF\xDA");
  std::string many = several.substr(0, last);
  for (int i = 0; i < kMasPasadas; ++i) many += several.substr(last, several.size() - 2 - last);
  many += "\xFF\xD9";
  EXPECT_GT(JpegPasadas(many), kMasPasadas);
  EXPECT_FALSE(read(many));
}

TEST(Segmentos, StrayBytesArePassedOverAndCutFilesAreNot) {
  for (const bool progressive : {false, true}) {
    const std::string bytes = Compress(64, 64, {2, 2, false, progressive});
    const std::size_t second = 4 + static_cast<unsigned char>(bytes[5]);  // after the first segment
    for (const std::string& stray : {std::string(), std::string("\0\0\0", 3), std::string("stray"),
                                     std::string(9, '\xFF'), std::string("\xFF\0x\xFF\xD0", 5)}) {
      const std::string loose = bytes.substr(0, second) + stray + bytes.substr(second);
      EXPECT_TRUE(JpegLlegaAlFinal(loose)) << stray;
      EXPECT_FALSE(JpegQuizaGirado(loose));
      EXPECT_EQ(Whole(loose).Size(), (Extent{64, 64})) << "the decoder passes over them too";
      EXPECT_TRUE(JpegQuizaGirado(bytes.substr(0, second) + stray + kExif + stray + bytes.substr(second)));
      for (std::size_t keep = 0; keep + 1 < loose.size(); keep += 7)
        EXPECT_FALSE(JpegLlegaAlFinal(loose.substr(0, keep))) << keep;
    }
    // An end mark inside a comment or a thumbnail is not the picture's.
    const std::string comment("\xFF\xFE\0\x04\xFF\xD9", 6);
    EXPECT_FALSE(JpegLlegaAlFinal(bytes.substr(0, bytes.size() - 2) + comment));
    EXPECT_TRUE(JpegLlegaAlFinal(bytes.substr(0, second) + comment + bytes.substr(second)));
  }
}
