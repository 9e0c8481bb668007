#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

#include "platform/AtomicFile.h"
#include "tests/support/Gif.h"
#include "tests/support/TestFolder.h"
#include "web/basGIF.h"

using namespace pixmosa;
using test::Gif;
using test::GifFrame;
using test::GifHeader;
namespace fs = std::filesystem;

class BasGifTest : public testing::Test {
 protected:
  test::TestFolder scratch, folder;
  BasGif gif{.carpeta = scratch.Path(), .FramesList = {}, .Seleccionados = {}};

  void Load(const std::string& bytes) {
    EscribirArchivo(folder.File("a.gif"), bytes);
    CortarGif(gif, folder.File("a.gif"));
  }

  std::vector<std::string> Files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(scratch.Path()))
      names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
  }
};

TEST_F(BasGifTest, FramesAreCutAtTheMarkers) {
  Load(Gif({0, 1, 2}));
  EXPECT_EQ(Files(), (std::vector<std::string>{"Fotograma 01.bmp", "Fotograma 02.bmp", "Fotograma 03.bmp"}));
  EXPECT_EQ(gif.FramesList, (std::vector<std::size_t>{26, 49, 72})) << "25 bytes of header, 23 a frame";
  EXPECT_EQ(gif.Seleccionados, (std::vector<std::string>{"01", "02", "03"}));
  EXPECT_EQ(LeerArchivo(scratch.File("Fotograma 01.bmp")), GifHeader() + GifFrame(0));
  EXPECT_EQ(LeerArchivo(scratch.File("Fotograma 03.bmp")), GifHeader() + GifFrame(2))
      << "without the trailer";
  EXPECT_TRUE(gif.AnimArtDisponible());
}

TEST_F(BasGifTest, EveryOccurrenceCounts) {
  OrigenGif source("AB\x21\xF9\x21\xF9\x21\x21\xF9Z");
  const GifCut cut = CutGif(source);
  EXPECT_EQ(cut.positions, (std::vector<std::size_t>{3, 5, 8}));
  const char* files[] = {"AB\x21\xF9", "AB\x21\xF9\x21", "AB\x21\xF9"};
  for (std::size_t i = 0; i < 3; ++i) EXPECT_EQ(FrameFile(source, cut, i), files[i]);
  OrigenGif still("GIF"), empty(""), half("\x21");
  EXPECT_EQ(CutGif(still).HeaderLength(), 2U) << "no frame: all but the last byte";
  EXPECT_EQ(CutGif(empty).HeaderLength(), 0U);
  EXPECT_TRUE(CutGif(half).positions.empty());
}

// A marker that straddles the end of a piece, one on either side, and a first half alone.
TEST_F(BasGifTest, AFileAndAPipeAreCutWhereverThePiecesEnd) {
  constexpr std::size_t kPiece = OrigenGif::kPiece;
  const std::string pipe = folder.File("tubo"), file = folder.File("g.gif"), mark = "\x21\xF9";
  ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
  for (const std::size_t before : {kPiece - 3, kPiece - 2, kPiece - 1, kPiece}) {
    const std::string header(before, 'x'), last = mark + std::string(kPiece, 'y'),
                                           bytes = header + mark + "ab" + last + "\x21";
    EscribirArchivo(file, bytes);
    std::thread writer([&] { std::ofstream(pipe, std::ios::binary) << bytes; });
    for (const std::string& name : {pipe, file}) {
      OrigenGif source = OrigenGif::DeArchivo(name);
      const GifCut cut = CutGif(source);
      EscribirFotogramas(cut, source, scratch.Path());
      EXPECT_EQ(LeerArchivo(scratch.File("Fotograma 01.bmp")), header + mark + "ab");
      EXPECT_EQ(LeerArchivo(scratch.File("Fotograma 02.bmp")), header + last);
      if (name == pipe) continue;
      fs::resize_file(file, before);
      EXPECT_THROW(EscribirFotogramas(cut, source, scratch.Path()), FileError) << "the file shrank meanwhile";
    }
    writer.join();
  }
}

TEST_F(BasGifTest, FormerFramesGoWhenTheNewOnesAreThere) {
  const std::vector<std::string> others = {"Fotograma 007.bmp", "Fotograma 00.bmp",
                                           "Fotograma 5.bmp",   "Fotograma 08.gif",
                                           "Fotograma .bmp",    "Fotograma 99999999999999999999999.bmp",
                                           "foto.bmp"};
  for (const std::string& name : others) EscribirArchivo(scratch.File(name), "x");
  fs::create_directory(scratch.File("Fotograma 06.bmp"));
  for (const char* name : {"Fotograma 01.bmp", "Fotograma 03.bmp", "Fotograma 40.bmp", "Fotograma 100.bmp"})
    EscribirArchivo(scratch.File(name), "x");
  OrigenGif source(Gif({0, 1}));
  const GifCut cut = CutGif(source);
  GifCut wrong = cut;
  wrong.length += 1000;
  EXPECT_THROW(EscribirFotogramas(wrong, source, scratch.Path()), FileError);
  EXPECT_TRUE(fs::exists(scratch.File("Fotograma 40.bmp"))) << "the new ones are not complete";
  EscribirFotogramas(cut, source, scratch.Path());
  std::vector<std::string> left = others;
  left.insert(left.end(), {"Fotograma 01.bmp", "Fotograma 02.bmp", "Fotograma 06.bmp"});
  std::sort(left.begin(), left.end());
  EXPECT_EQ(Files(), left);
}

TEST_F(BasGifTest, ACutOffGifIsTold) {
  const std::string whole = Gif({0, 1}),
                    local = std::string("\x2C\0\0\0\0\1\0\1\0\x81", 10) + std::string(12, '\x3B');
  const auto complete = [](const std::string& bytes) {
    OrigenGif source(bytes);
    return GifCompleto(source);
  };
  for (const std::string& good : {whole + "more", GifHeader() + std::string(1, '\0') + ";",
                                  GifHeader() + local + std::string("\2\2xx\0;", 6),  // colours of its own
                                  std::string("GIF87a\1\0\1\0\x70\0\0;", 14)})        // no colour table
    EXPECT_TRUE(complete(good)) << good;
  for (std::size_t n = 0; n < whole.size(); ++n) EXPECT_FALSE(complete(whole.substr(0, n))) << n;
  EXPECT_FALSE(complete("GIF88a" + whole.substr(6)));
  EXPECT_FALSE(complete(GifHeader() + "x" + whole.substr(25))) << "no block begins so";
}

TEST_F(BasGifTest, StillGifsAndSecondGifs) {
  Load(Gif(std::vector<int>(120, 1)));
  EXPECT_EQ(Files().size(), 120U);
  EXPECT_EQ(gif.Seleccionados[8] + gif.Seleccionados[9] + gif.Seleccionados[99], "0910100");
  Load(Gif({3}));
  EXPECT_EQ(Files(), std::vector<std::string>{"Fotograma 01.bmp"});
  EXPECT_FALSE(gif.AnimArtDisponible());
  Load("GIF89a;");
  EXPECT_TRUE(Files().empty());
  EXPECT_TRUE(gif.FramesList.empty());
}

TEST_F(BasGifTest, AGifThatCannotBeCutSaysWhy) {
  // A large first image without its block before tens of frames would fill the disk with its copies.
  std::string bomb(5'000'000, 'x');
  for (int i = 0; i < 50'000; ++i) bomb += "\x21\xF9";
  EscribirArchivo(folder.File("bomba.gif"), bomb);
  const std::string none = folder.File("nada.gif"), read = "No se ha podido leer \"";
  const std::vector<std::pair<std::string, std::string>> rows = {
      {folder.File("bomba.gif"), "El GIF tiene demasiados fotogramas: 50000, que ocuparían 250000 MB."},
      {none, read + none + "\": no existe."},
      {folder.Path().string(), read + folder.Path().string() + "\": es una carpeta."}};
  for (const auto& [file, why] : rows) {
    Load(Gif({0, 1}));
    EXPECT_TRUE(gif.PorQueNo.empty() && gif.AnimArtDisponible());
    CortarGif(gif, file);
    EXPECT_EQ(gif.PorQueNo, why);
    EXPECT_TRUE(Files().empty() && gif.FramesList.empty() && gif.Seleccionados.empty());
  }
}

TEST_F(BasGifTest, PicturesOfAFolderInAlphabeticalOrder) {
  for (const char* name : {"b.bmp", "A.bmp", "c.JPG", "d.jpeg", "e.gif", "f.png", "Ñ.bmp", "z.bmp"})
    EscribirArchivo(folder.File(name), "x");
  fs::create_directory(folder.Path() / "carpeta.bmp");
  std::string names;
  for (const fs::path& p : ImagenesDeCarpeta(folder.Path())) names += p.filename().string() + " ";
  EXPECT_EQ(names, "A.bmp b.bmp c.JPG d.jpeg e.gif z.bmp Ñ.bmp ");
  EXPECT_TRUE(ImagenesDeCarpeta(folder.Path() / "no").empty());
}
