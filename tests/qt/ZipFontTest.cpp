#include <gtest/gtest.h>
#include <zip.h>

#include "platform/AtomicFile.h"
#include "platform/zip/ZipFont.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;

TEST(ZipFont, FirstFileOfAnArchive) {
  const test::TestFolder folder;
  const std::string file = folder.File("f.flf"), content(5000, 'a');
  zip_t* archive = zip_open(file.c_str(), ZIP_CREATE, nullptr);
  zip_file_add(archive, "f.flf", zip_source_buffer(archive, content.data(), content.size(), 0), 0);
  zip_close(archive);
  const std::string bytes = LeerArchivo(file);
  EXPECT_LT(bytes.size(), 1000U);
  EXPECT_EQ(SinComprimir(bytes), content);
  EXPECT_EQ(SinComprimir("flf2a$ 1"), "flf2a$ 1") << "not packed";
  EXPECT_EQ(SinComprimir(bytes.substr(0, bytes.size() / 2)), std::nullopt) << "cut short";
}
