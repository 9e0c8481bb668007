#include <gtest/gtest.h>

#include "conversion/Palette3x2.h"
#include "platform/AtomicFile.h"
#include "platform/Lines.h"

using namespace pixmosa;

namespace {

const std::filesystem::path kSource = PIXMOSA_SOURCE_DIR;

bool Fails(std::string_view file) {
  try {
    ParsePalette3x2(file);
    return false;
  } catch (const Palette3x2Error& e) {
    EXPECT_STREQ(
        e.what(),
        "No se ha encontrado el archivo con la paleta 3x2. Restaurelo, o instale nuevamente la aplicación");
    return true;
  }
}

}  // namespace

TEST(Palette3x2, RecordsOfFiveLines) {
  const Palette3x2 p = ParsePalette3x2("@.xyz\r\n..\r\n.@\r\nQrest\r\nanything\r\n@@\r\n@@\r\n@@\r\n#");
  EXPECT_EQ(p.Characters[0b100001], 'Q');
  EXPECT_EQ(p.Characters[63], '#') << "the last separator may be missing";
  EXPECT_EQ(p.Characters[0], std::nullopt);
  EXPECT_EQ(ParsePalette3x2("..\r\n..\r\n..\r\n\r\n\r\n").Characters[0], std::nullopt) << "an empty item";
  EXPECT_EQ(ParsePalette3x2("").Characters, Palette3x2().Characters);
  EXPECT_EQ(ParsePalette3x2("@\r\n..\r\n..\r\nx\r\n").Characters, Palette3x2().Characters)
      << "a short row never matches";
}

TEST(Palette3x2, OneFailureForAllCauses) {
  EXPECT_TRUE(Fails("..\r\n..\r\n..\r\na\r\n\r\n..\r\n..\r\n..\r\nb\r\n")) << "a pattern twice";
  EXPECT_TRUE(Fails("ab\r\n..\r\n..\r\na\r\n\r\nAB\r\n..\r\n..\r\nb")) << "letters compare without case";
  EXPECT_TRUE(Fails("\xF1.\r\n..\r\n..\r\na\r\n\r\n\xD1.\r\n..\r\n..\r\nb"));
  EXPECT_TRUE(Fails("..\r\n..\r\n..")) << "a record cut short";
  EXPECT_THROW(LoadPalette3x2("/no/such/folder"), Palette3x2Error);
}

// The shipped file holds every pattern, with the character that the tool's kept ranking chose.
TEST(Palette3x2, ShippedFileAgreesWithItsRanking) {
  const Palette3x2 shipped = LoadPalette3x2(kSource / "data");
  const std::string ranking = LeerArchivo(kSource / "tools/paleta/clasificacion.txt");
  std::string_view rest = ranking;
  std::size_t rows = 0;
  while (!rest.empty()) {
    const std::string_view line =
        TakeLine(rest);  // "@./../.. C  ..." : pattern, chosen character, the best ones
    if (line.empty() || line[0] == '#') continue;
    ASSERT_GE(line.size(), 10U) << line;
    std::size_t pattern = 0;
    for (const char c : line.substr(0, 8))
      if (c != '/') pattern = pattern << 1 | (c == '@' ? 1 : 0);
    EXPECT_EQ(shipped.Characters[pattern], line[9]) << line;
    ++rows;
  }
  EXPECT_EQ(rows, 64U);
  EXPECT_EQ(shipped.Characters[0], ' ');
}
