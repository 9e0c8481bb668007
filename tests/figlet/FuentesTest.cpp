// The shipped banner fonts and their catalogue.
#include <algorithm>
#include <bitset>
#include <cctype>
#include <gtest/gtest.h>
#include <map>
#include <set>

#include "figlet/Catalogo.h"
#include "figlet/Reescribir.h"
#include "figlet/basFigLet.h"
#include "platform/AtomicFile.h"
#include "tools/letras/Fuente.h"

using namespace pixmosa;

const std::filesystem::path kSources = PIXMOSA_SOURCE_DIR, kFolder = kSources / "data/Fonts";

namespace {

BasFigLet Loaded(const std::string& bytes) {
  BasFigLet font;
  LoadFontBytes(font, bytes, [](const std::string& fault) { ADD_FAILURE() << fault; });
  return font;
}

// The ink of a letter's box in a grid of one size for every font.
constexpr std::size_t kSide = 12;
using Mascara = std::bitset<kSide * kSide>;
Mascara MaskOf(const std::vector<std::string>& rows) {
  std::size_t first = std::string::npos, end = 0;
  for (const std::string& row : rows)
    if (const std::size_t at = row.find_first_not_of(" $"); at != std::string::npos)
      first = std::min(first, at), end = std::max(end, row.find_last_not_of(" $") + 1);
  Mascara mask;
  for (std::size_t i = 0; i < mask.size(); ++i) {
    const char c = rows[(i / kSide * 2 + 1) * rows.size() / (2 * kSide)]
                       [first + (i % kSide * 2 + 1) * (end - first) / (2 * kSide)];
    mask[i] = c != ' ' && c != '$';
  }
  return mask;
}

}  // namespace

TEST(Fuentes, AreWhatTheToolDraws) {
  const std::size_t shipped = FillFontList({kFolder}).size();
  EXPECT_EQ(shipped, letras::kEstilos.size());
  for (const letras::Estilo& style : letras::kEstilos) {
    const auto sheet = letras::LeerHoja(kSources / "tools/letras/hojas", std::string(style.hoja));
    EXPECT_TRUE(LeerArchivo(kFolder / (std::string(style.nombre) + ".flf")) ==
                letras::ArchivoFlf(letras::Pintadas(sheet, style), style))
        << style.nombre << ": run letras";
  }
  EXPECT_EQ(LeerArchivo(kFolder / "categoriestree.txt"), letras::Catalogo());
}

// The share of the ink of either of two fonts that both have, over letters and digits.
TEST(Fuentes, NoTwoShareFiveSixthsOfTheirInk) {
  std::map<std::string, std::vector<Mascara>> masks;
  for (const std::string& name : FillFontList({kFolder})) {
    const BasFigLet font = Loaded(LeerArchivo(kFolder / name));
    for (std::size_t code = '0'; code <= 'z'; ++code)
      if (std::isalnum(static_cast<int>(code))) masks[name].push_back(MaskOf(font.Glyphs[code]));
  }
  for (auto a = masks.begin(); a != masks.end(); ++a)
    for (auto b = std::next(a); b != masks.end(); ++b) {
      double share = 0;
      for (std::size_t i = 0; i < a->second.size(); ++i)
        share += static_cast<double>((a->second[i] & b->second[i]).count()) /
                 static_cast<double>((a->second[i] | b->second[i]).count());
      EXPECT_LT(share / static_cast<double>(a->second.size()), 5.0 / 6) << a->first << " " << b->first;
    }
}

TEST(Fuentes, EveryCodeIsEvenVisibleAndOfItsOwnShape) {
  const std::set<std::size_t> undefined{127, 129, 141, 143, 144, 157}, blank{32, 160},
      twins{44, 130, 45, 173};
  for (const std::string& name : FillFontList({kFolder})) {
    const std::string bytes = LeerArchivo(kFolder / name);
    EXPECT_EQ(ReescribirFuente(bytes, name).bytes, bytes) << name << " is not of the reader's own form";
    const BasFigLet font = Loaded(bytes);
    EXPECT_NE(font.Comment, "") << name;
    EXPECT_LE(std::stoi(font.Baseline), std::stoi(font.Height)) << name;
    std::set<std::vector<std::string>> shapes;
    std::size_t above = font.Glyphs['A'].size();  // blank rows over everything without a mark
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
      const std::size_t first = all.find_first_not_of(" $");
      if (code < 127 && first != std::string::npos)
        above = std::min(above, first / font.Glyphs[code][0].size());
      if (all.empty() || blank.contains(code)) continue;
      EXPECT_NE(all.find_first_not_of(" $\xA0\xAD"), std::string::npos) << "nothing to be seen";
      EXPECT_TRUE(shapes.insert(font.Glyphs[code]).second || twins.contains(code)) << "like another";
    }
    EXPECT_LT(above * 4, font.Glyphs['A'].size()) << name << " is low in its rows";
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
  for (std::size_t at = 0, end = 0; (end = lines.find("\r\n", at)) != std::string::npos; at = end + 2) {
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
