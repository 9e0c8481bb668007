#include <atomic>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <thread>

#include "platform/AtomicFile.h"
#include "platform/PrivateFolder.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;
namespace fs = std::filesystem;

TEST(PrivateFolder, IsClosedToOthersAndGoneAfterwards) {
  const test::TestFolder temp;
  fs::path path;
  {
    const PrivateFolder folder(temp.Path(), "KTW");
    path = folder.Path();
    EXPECT_EQ(path, temp.Path() / "KTW");
    EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_all);
    EscribirArchivo(path / "Fotograma 01.bmp", "x");
  }
  EXPECT_FALSE(fs::exists(path));
  {
    const PrivateFolder folder(temp.Path(), "KTW");
    EscribirArchivo(path / "otro.txt", "x");
    EscribirArchivo(path / "a.bmp", "x");
  }
  EXPECT_TRUE(fs::exists(path / "otro.txt")) << "the folder stays while anything else remains in it";
  EXPECT_FALSE(fs::exists(path / "a.bmp"));
}

TEST(PrivateFolder, TwoProgramsDoNotShareOne) {
  const test::TestFolder temp;
  const PrivateFolder first(temp.Path(), "KTW");
  EscribirArchivo(first.Path() / "a.bmp", "x");
  {
    const PrivateFolder second(temp.Path(), "KTW");
    EXPECT_NE(second.Path(), first.Path());
  }
  EXPECT_TRUE(fs::exists(first.Path() / "a.bmp"));
}

TEST(PrivateFolder, WhatAnEndedProgramLeftIsCleared) {
  const test::TestFolder temp;
  const std::vector<std::string> own = {"KTW", "KTW-a1B2c3"}, others = {"KTW-largos1", "KTWa1B2c3x", "otra"};
  for (const std::string& name : own) {
    fs::create_directory(temp.Path() / name);
    fs::permissions(temp.Path() / name, fs::perms::owner_all);
    EscribirArchivo(temp.Path() / name / "Fotograma 01.bmp", "x");
    EscribirArchivo(temp.Path() / name / ".Fotograma 02.bmp.0a1b2c3d.tmp", "x");
  }
  for (const std::string& name : others) {
    fs::create_directory(temp.Path() / name);
    fs::permissions(temp.Path() / name, fs::perms::owner_all);
    EscribirArchivo(temp.Path() / name / "a.bmp", "x");
  }
  const PrivateFolder first(temp.Path(), "KTW");
  EXPECT_EQ(first.Path(), temp.Path() / "KTW");
  EXPECT_TRUE(fs::is_empty(first.Path()));
  EXPECT_FALSE(fs::exists(temp.Path() / own[1]));
  for (const std::string& name : others) EXPECT_TRUE(fs::exists(temp.Path() / name / "a.bmp")) << name;
  const PrivateFolder second(temp.Path(), "KTW");
  EscribirArchivo(second.Path() / "a.bmp", "x");
  const PrivateFolder third(temp.Path(), "KTW");
  EXPECT_TRUE(fs::exists(second.Path() / "a.bmp")) << "it is in use";
}

TEST(PrivateFolder, OneThatIsBeingRemovedIsNotTakenOver) {
  const test::TestFolder temp;
  std::atomic<int> missing = 0;
  const auto come = [&] {
    for (int i = 0; i < 3000; ++i) {
      const PrivateFolder folder(temp.Path(), "KTW");
      if (!fs::exists(folder.Path())) ++missing;
    }
  };
  std::thread other(come);
  come();
  other.join();
  EXPECT_EQ(missing, 0);
}

TEST(PrivateFolder, WhatCannotBeTrustedIsLeftAlone) {
  const test::TestFolder temp, target;
  fs::create_directory_symlink(target.Path(), temp.Path() / "KTW");
  EXPECT_NE(PrivateFolder(temp.Path(), "KTW").Path(), temp.Path() / "KTW") << "a planted link";
  fs::remove(temp.Path() / "KTW");
  fs::create_directory(temp.Path() / "KTW");
  ::chmod((temp.Path() / "KTW").c_str(), 0777);
  EXPECT_NE(PrivateFolder(temp.Path(), "KTW").Path(), temp.Path() / "KTW") << "open to others";
  EscribirArchivo(temp.File("archivo"), "x");
  EXPECT_NE(PrivateFolder(temp.Path(), "archivo").Path(), temp.Path() / "archivo");
  EXPECT_THROW(PrivateFolder(temp.Path() / "no" / "hay", "KTW"), FileError);
}
