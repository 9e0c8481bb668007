// The shipped banner fonts and their catalogue.
#include <gtest/gtest.h>
#include <set>

#include "figlet/Catalogo.h"
#include "figlet/Reescribir.h"
#include "figlet/basFigLet.h"
#include "platform/AtomicFile.h"

using namespace pixmosa;

const std::filesystem::path kFolder = std::filesystem::path(PIXMOSA_SOURCE_DIR) / "data/Fonts";

TEST(Fuentes, EveryCodeIsEvenVisibleAndOfItsOwnShape) {
  const std::set<std::size_t> undefined{127, 129, 141, 143, 144, 157}, blank{32, 160},
      twins{44, 130, 45, 173};
  for (const std::string& name : FillFontList({kFolder})) {
    const std::string bytes = LeerArchivo(kFolder / name);
    EXPECT_EQ(ReescribirFuente(bytes, name).bytes, bytes) << name << " is not of the reader's own form";
    BasFigLet font;
    LoadFontBytes(font, bytes, [](const std::string& fault) { ADD_FAILURE() << fault; });
    EXPECT_NE(font.Comment, "") << name;
    EXPECT_LE(std::stoi(font.Baseline), std::stoi(font.Height)) << name;
    std::set<std::vector<std::string>> shapes;
    for (std::size_t code = 32; code < 256; ++code) {
      SCOPED_TRACE(name + " " + std::to_string(code));
      std::string all;
      for (const std::string& row : font.Glyphs[code]) {
        EXPECT_EQ(row.size(), font.Glyphs[code][0].size());
        EXPECT_LE(row.size() + 2, std::stoul(font.MaxLength));
        EXPECT_FALSE(row.ends_with('@'));
        all += row;
      }
      EXPECT_EQ(all.empty(), undefined.contains(code));
      if (all.empty() || blank.contains(code)) continue;
      EXPECT_EQ(all.find('$'), std::string::npos) << "a blank when shown";
      EXPECT_NE(all.find_first_not_of(" \xA0\xAD"), std::string::npos) << "nothing to be seen";
      EXPECT_TRUE(shapes.insert(font.Glyphs[code]).second || twins.contains(code)) << "like another";
    }
  }
}

TEST(Fuentes, TheCatalogueNamesEachUnderASubcategory) {
  const std::string lines = LeerArchivo(kFolder / "categoriestree.txt");
  std::set<std::string> named;
  std::array<std::size_t, 3> nodes{};
  for (const NodoDeFuentes& n : ArbolDeFuentes({kFolder})) {
    ++nodes[n.nivel];
    if (n.nivel == NodoDeFuentes::kFuente) named.insert(n.text + ".flf");
  }
  std::size_t meant = 0;
  for (std::size_t at = 0, end; (end = lines.find("\r\n", at)) != std::string::npos; at = end + 2) {
    meant += end > at && lines[at] != '#';
    EXPECT_TRUE(lines[at] != '[' || lines[end - 1] == ']') << lines.substr(at, end - at);
  }
  EXPECT_EQ(nodes[0] + nodes[1] + nodes[2], meant) << "a line stands twice, or without what it lies under";
  EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), std::count(lines.begin(), lines.end(), '\r'));
  EXPECT_TRUE(lines.ends_with("\r\n"));
  EXPECT_GE(nodes[0], 6U);
  EXPECT_GE(nodes[1], nodes[0]);
  const std::vector<std::string> fonts = FillFontList({kFolder});
  EXPECT_GE(fonts.size(), 24U);
  EXPECT_EQ(named, std::set(fonts.begin(), fonts.end()));
}
