#include <gtest/gtest.h>
#include <zip.h>

#include "platform/AtomicFile.h"
#include "platform/zip/Descomprimir.h"
#include "tests/support/TestFolder.h"

using namespace pixmosa;

namespace {

using Files = std::vector<std::pair<std::string, std::string>>;

// A zip of these files, packed or stored.
std::string Zip(const Files& files, int method = ZIP_CM_DEFLATE) {
  const test::TestFolder folder;
  const std::string file = folder.File("f.zip");
  zip_t* archive = zip_open(file.c_str(), ZIP_CREATE, nullptr);
  for (const auto& [name, bytes] : files) {
    zip_source_t* source = zip_source_buffer(archive, bytes.data(), bytes.size(), 0);
    const auto at = static_cast<zip_uint64_t>(zip_file_add(archive, name.c_str(), source, 0));
    zip_set_file_compression(archive, at, method, 0);
  }
  zip_close(archive);
  return LeerArchivo(file);
}

// "name=size" or "name!fault" of every file, or "refused".
std::string Told(const std::string& zip) try {
  std::string s;
  for (const ArchivoComprimido& f : DescomprimirZip(zip))
    s += f.nombre + (f.fallo.empty() ? "=" + std::to_string(f.bytes.size()) : "!" + f.fallo) + " ";
  return s;
} catch (const ErrorDelPrograma&) {
  return "refused";
}

}  // namespace

TEST(DescomprimirZip, EveryFileIsWholeOrHasItsFaultWithinBounds) {
  const std::string a(5000, 'a'), large(40 << 20, 'a');
  EXPECT_EQ(DescomprimirZip(Zip({{"uno", a}})).at(0).bytes, a);
  EXPECT_EQ(Told(Zip({{"uno", a}, {"c/", ""}, {"c/ñ", "b"}, {"vacío", ""}})), "uno=5000 c/ñ=1 vacío=0 ");
  std::string wrong = Zip({{"uno", "hola"}, {"dos", "b"}}, ZIP_CM_STORE);
  wrong[wrong.find("hola")] = 'H';
  EXPECT_EQ(Told(wrong), "uno!está dañado: la suma de comprobación no coincide dos=1 ");
  EXPECT_EQ(Told(wrong.substr(0, wrong.size() / 2)), "refused");
  EXPECT_EQ(Told(wrong.substr(0, 4)), "refused");
  EXPECT_EQ(Told(Zip({{"a", large}, {"b", large}, {"c", "x"}})),
            "a=41943040 b!es demasiado grande c!es demasiado grande ");
  Files many(1001);
  for (std::size_t i = 0; i < many.size(); ++i) many[i].first = std::to_string(i);
  EXPECT_EQ(Told(Zip(many)), "refused");
  many.pop_back();
  EXPECT_EQ(DescomprimirZip(Zip(many)).size(), 1000U);
}
