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
  const fs::path path = temp.Path() / "KTW";
  for (const bool more : {false, true}) {
    {
      const PrivateFolder folder(temp.Path(), "KTW"), second(temp.Path(), "KTW");
      EXPECT_EQ(folder.Path(), path);
      EXPECT_NE(second.Path(), path) << "two programs do not share one";
      EXPECT_EQ(fs::status(path).permissions(), fs::perms::owner_all);
      EscribirArchivo(path / "a.bmp", "x");
      if (more) EscribirArchivo(path / "otro.txt", "x");
    }
    EXPECT_EQ(fs::exists(path), more) << "the folder stays while anything else remains in it";
    EXPECT_FALSE(fs::exists(path / "a.bmp"));
  }
}

TEST(PrivateFolder, WhatAnEndedProgramLeftIsCleared) {
  const test::TestFolder temp;
  for (const char* name : {"KTW", "KTW-a1B2c3", "KTW-largos1", "KTWa1B2c3x", "otra"}) {
    fs::create_directory(temp.Path() / name);
    fs::permissions(temp.Path() / name, fs::perms::owner_all);
    for (const char* file : {"a.bmp", ".Fotograma 02.bmp.0a1b2c3d.tmp"})
      EscribirArchivo(temp.Path() / name / file, "x");
  }
  const PrivateFolder first(temp.Path(), "KTW");
  EXPECT_EQ(first.Path(), temp.Path() / "KTW");
  EXPECT_TRUE(fs::is_empty(first.Path()));
  EXPECT_FALSE(fs::exists(temp.Path() / "KTW-a1B2c3"));
  for (const char* other : {"KTW-largos1", "KTWa1B2c3x", "otra"})
    EXPECT_TRUE(fs::exists(temp.Path() / other / "a.bmp")) << other;
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
