#include <gtest/gtest.h>
#include <map>

#include "conversion/Palette3x2.h"
#include "platform/AtomicFile.h"
#include "tools/paleta/Clasificar.h"

using namespace pixmosa;

namespace {

const std::filesystem::path kSource = PIXMOSA_SOURCE_DIR;

}  // namespace

TEST(Palette3x2, RecordsOfFiveLines) {
  const Palette3x2 p = ParsePalette3x2("@.xyz\r\n..\r\n.@\r\nQrest\r\nanything\r\n@@\r\n@@\r\n@@\r\n#");
  EXPECT_EQ(p.Characters[0b100001], 'Q');
  EXPECT_EQ(p.Characters[63], '#') << "the last separator may be missing";
  for (const char* none : {"", "..\r\n..\r\n..\r\n\r\n\r\n", "@\r\n..\r\n..\r\nx\r\n"})
    EXPECT_EQ(ParsePalette3x2(none).Characters, Palette3x2().Characters) << "no item, or too short a row";
}

TEST(Palette3x2, OneFailureForAllCauses) {
  for (const char* bad : {"..\r\n..\r\n..\r\na\r\n\r\n..\r\n..\r\n..\r\nb\r\n", "..\r\n..\r\n..",
                          "ab\r\n..\r\n..\r\na\r\n\r\nAB\r\n..\r\n..\r\nb",
                          "\xF1.\r\n..\r\n..\r\na\r\n\r\n\xD1.\r\n..\r\n..\r\nb"})
    EXPECT_THROW(ParsePalette3x2(bad), Palette3x2Error) << bad;
  try {
    LoadPalette3x2("/no/such/folder");
    ADD_FAILURE();
  } catch (const Palette3x2Error& e) {
    EXPECT_STREQ(
        e.what(),
        "No se ha encontrado el archivo con la paleta 3x2. Restaurelo, o instale nuevamente la aplicación");
  }
}

// The shipped file and the ranking are what the tool makes of the ink that it measured.
TEST(Palette3x2, ShippedFileAgreesWithTheToolsMeasures) {
  const paleta::Ink ink = paleta::LeerTinta(LeerArchivo(kSource / "tools/paleta/tinta.txt"));
  EXPECT_EQ(paleta::EscribirTinta(ink), LeerArchivo(kSource / "tools/paleta/tinta.txt"));
  const paleta::Choice choice = paleta::Elegir(ink);
  EXPECT_EQ(paleta::Clasificacion(ink, choice), LeerArchivo(kSource / "tools/paleta/clasificacion.txt"));
  EXPECT_EQ(paleta::ArchivoDePaleta(choice), LeerArchivo(kSource / "data/Paleta 3x2.txt"));
}

TEST(Palette3x2, ShippedFileHasEveryPatternAndMirrorsThem) {
  const Palette3x2 shipped = LoadPalette3x2(kSource / "data");
  for (std::size_t p = 0; p < 64; ++p) {
    ASSERT_TRUE(shipped.Characters[p]) << p;
    const std::size_t mirrored = (p & 0b010101) << 1 | (p & 0b101010) >> 1;
    EXPECT_EQ(shipped.Characters[mirrored], paleta::Espejo(*shipped.Characters[p])) << p;
  }
  // What anyone would choose by eye.
  const std::map<std::size_t, char> plain = {{0b000000, ' '}, {0b000011, '_'},  {0b001100, '='},
                                             {0b011010, '/'}, {0b100101, '\\'}, {0b110000, '"'}};
  for (const auto& [pattern, c] : plain) EXPECT_EQ(shipped.Characters[pattern], c) << pattern;
}
