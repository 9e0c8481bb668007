#include <gtest/gtest.h>

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
  const std::string gif2 = "AB\x21\xF9\x21\xF9\x21\x21\xF9Z";
  const GifCut cut = CutGif(gif2);
  EXPECT_EQ(cut.positions, (std::vector<std::size_t>{3, 5, 8}));
  EXPECT_EQ(cut.FrameFile(gif2, 0), "AB\x21\xF9");
  EXPECT_EQ(cut.FrameFile(gif2, 1), "AB\x21\xF9\x21");
  EXPECT_EQ(cut.FrameFile(gif2, 2), "AB\x21\xF9");
  EXPECT_EQ(CutGif("GIF").HeaderLength(), 2U) << "no frame: all but the last byte";
  EXPECT_EQ(CutGif("").HeaderLength(), 0U);
  EXPECT_EQ(CutGif("\x21").positions.size(), 0U);
  EXPECT_EQ(CutGif("\x21\xF9").FrameFile("\x21\xF9", 0), "\x21");
}

TEST_F(BasGifTest, AFileIsCutAsItsBytesAreWhereverItsPiecesEnd) {
  // A piece is 256 KiB: a marker that straddles its end, one on either side, and a first half alone.
  constexpr std::size_t kPiece = 256 << 10;
  for (const std::size_t before : {kPiece - 3, kPiece - 2, kPiece - 1, kPiece}) {
    const std::string bytes = std::string(before, 'x') +
                              "\x21\xF9"
                              "ab\x21\xF9" +
                              std::string(kPiece, 'y') + "\x21";
    EscribirArchivo(folder.File("g.gif"), bytes);
    const GifCut cut = CutGifFile(folder.File("g.gif"));
    EXPECT_EQ(cut.positions, (std::vector<std::size_t>{before + 1, before + 5}));
    EXPECT_EQ(cut.length, bytes.size());
    EscribirFotogramasDeArchivo(cut, folder.File("g.gif"), scratch.Path());
    EXPECT_EQ(LeerArchivo(scratch.File("Fotograma 01.bmp")), std::string(before, 'x') +
                                                                 "\x21\xF9"
                                                                 "ab");
    EXPECT_EQ(LeerArchivo(scratch.File("Fotograma 02.bmp")),
              std::string(before, 'x') + "\x21\xF9" + std::string(kPiece, 'y'));
    EscribirArchivo(folder.File("g.gif"), bytes.substr(0, before));
    EXPECT_THROW(EscribirFotogramasDeArchivo(cut, folder.File("g.gif"), scratch.Path()), FileError)
        << "the file shrank after it was cut";
  }
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

TEST_F(BasGifTest, AFailureLeavesTheLastFrames) {
  Load(Gif({0, 1}));
  EXPECT_THROW(CortarGif(gif, folder.File("nada.gif")), FileError);
  EXPECT_THROW(CortarGif(gif, folder.Path()), FileError);
  // A large header before thousands of frames would fill the disk with its copies.
  std::string bomb(5'000'000, 'x');
  for (int i = 0; i < 50'000; ++i) bomb += "\x21\xF9";
  EXPECT_THROW(Load(bomb), FileError);
  EXPECT_EQ(Files().size(), 2U);
  EXPECT_EQ(gif.FramesList.size(), 2U);
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
