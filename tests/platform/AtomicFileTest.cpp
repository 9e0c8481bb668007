#include <cstdio>
#include <gtest/gtest.h>
#include <memory>
#include <unistd.h>

#include "platform/AtomicFile.h"

using namespace pixmosa;
namespace fs = std::filesystem;

class AtomicFileTest : public testing::Test {
 protected:
  fs::path dir = fs::temp_directory_path() / ("pixmosa-atomic-" + std::to_string(::getpid()));
  void SetUp() override { fs::create_directories(dir); }
  void TearDown() override { fs::remove_all(dir); }
  std::size_t Entries() const {
    return static_cast<std::size_t>(std::distance(fs::directory_iterator(dir), fs::directory_iterator()));
  }
};

TEST_F(AtomicFileTest, ReplacesWholeOrNotAtAll) {
  const fs::path file = dir / "dibujo.txt";
  EscribirArchivo(file, "uno");
  {
    AtomicFile half(file);
    half.Write("a medias");
  }
  EXPECT_EQ(LeerArchivo(file), "uno");
  EXPECT_EQ(Entries(), 1U) << "nothing is left beside the file";
  EscribirArchivo(file, std::string("d\0s", 3));
  EXPECT_EQ(LeerArchivo(file), std::string("d\0s", 3));
}

TEST_F(AtomicFileTest, KeepsLinksAndPermissions) {
  const fs::path file = dir / "a", link = dir / "enlace";
  EscribirArchivo(file, "x");
  fs::permissions(file, fs::perms::owner_read | fs::perms::owner_write);
  fs::create_symlink("a", link);
  EscribirArchivo(link, "y");
  EXPECT_TRUE(fs::is_symlink(link));
  EXPECT_EQ(LeerArchivo(file), "y");
  EXPECT_EQ(fs::status(file).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(AtomicFileTest, SaysWhatIsWrong) {
  const auto reason = [](auto&& work) -> std::string {
    try {
      work();
    } catch (const FileError& e) {
      return e.what();
    }
    return "";
  };
  const std::string d = dir.string();
  EXPECT_EQ(reason([&] { EscribirArchivo(dir, "x"); }),
            "No se ha podido escribir \"" + d + "\": es una carpeta.");
  EXPECT_EQ(reason([&] { EscribirArchivo(dir / "no" / "hay", "x"); }),
            "No se ha podido escribir \"" + d + "/no/hay\": no existe.");
  EXPECT_EQ(reason([&] { EscribirArchivo("/dev/full", "x"); }),
            "No se ha podido escribir \"/dev/full\": no queda espacio en el disco.");
  EXPECT_EQ(reason([&] { LeerArchivo(dir / "nada"); }),
            "No se ha podido leer \"" + d + "/nada\": no existe.");
  EXPECT_EQ(reason([&] { LeerArchivo(dir); }), "No se ha podido leer \"" + d + "\": es una carpeta.");
  EXPECT_EQ(reason([&] { LeerArchivo("/dev/zero", 1000); }),
            "No se ha podido leer \"/dev/zero\": el archivo es demasiado grande.");
  EscribirArchivo(dir / "f", "abc");
  const std::unique_ptr<std::FILE, int (*)(std::FILE*)> stream(std::fopen((dir / "f").c_str(), "rb"),
                                                               std::fclose);
  EXPECT_EQ(std::fgetc(stream.get()), 'a');
  EXPECT_EQ(LeerFlujo(stream.get(), "-", 2), "bc");
  std::rewind(stream.get());
  EXPECT_EQ(reason([&] { LeerFlujo(stream.get(), "-", 2); }),
            "No se ha podido leer \"-\": el archivo es demasiado grande.");
}
