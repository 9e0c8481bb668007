// The shipped banner fonts and their catalogue, read by rules of this test's own.
#include <filesystem>
#include <gtest/gtest.h>
#include <set>
#include <sstream>
#include <string>
#include <vector>

#include "platform/AtomicFile.h"

namespace pixmosa {
namespace {

const std::filesystem::path kFolder = std::filesystem::path(PIXMOSA_SOURCE_DIR) / "data/Fonts";

// The lines of a file that ends each with CR LF and has no other CR or LF.
std::vector<std::string> CrLfLines(const std::filesystem::path& file) {
  const std::string bytes = LeerArchivo(file);
  std::vector<std::string> lines;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = bytes.find("\r\n", at);
    if (end == std::string::npos) {
      ADD_FAILURE() << file << ": the last line has no end";
      break;
    }
    lines.push_back(bytes.substr(at, end - at));
    EXPECT_EQ(lines.back().find_first_of("\r\n"), std::string::npos) << file << ": " << lines.size();
    at = end + 2;
  }
  return lines;
}

std::set<std::string> FontNames() {
  std::set<std::string> names;
  for (const auto& entry : std::filesystem::directory_iterator(kFolder))
    if (entry.path().extension() == ".flf") names.insert(entry.path().stem().string());
  return names;
}

struct Font {
  std::size_t height = 0, base = 0, longest = 0, comments = 0;
  int layout = 0;
  std::vector<std::vector<std::string>> blocks;  // without their end marks, from code 32
};

Font ReadFont(const std::filesystem::path& file) {
  Font font;
  const auto lines = CrLfLines(file);
  std::istringstream head(lines.at(0));
  std::string signature;
  head >> signature >> font.height >> font.base >> font.longest >> font.layout >> font.comments;
  EXPECT_TRUE(head && head.eof()) << lines[0];
  EXPECT_EQ(signature, "flf2a$");
  std::vector<std::string> rows;
  for (std::size_t i = font.comments + 1; i < lines.size(); ++i) {
    const std::string mark = rows.size() + 1 == font.height ? "@@" : "@";
    EXPECT_TRUE(lines[i].ends_with(mark)) << file << " line " << i + 1;
    EXPECT_LE(lines[i].size(), font.longest);
    rows.push_back(lines[i].substr(0, lines[i].size() - mark.size()));
    EXPECT_FALSE(rows.back().ends_with("@")) << file << " line " << i + 1;
    if (rows.size() < font.height) continue;
    font.blocks.push_back(rows);
    rows.clear();
  }
  EXPECT_TRUE(rows.empty()) << file;
  return font;
}

class FuentesTest : public testing::TestWithParam<std::string> {
 protected:
  Font font = ReadFont(kFolder / (GetParam() + ".flf"));
  const std::vector<std::string>& Block(int code) {
    return font.blocks.at(static_cast<std::size_t>(code - 32));
  }
};

TEST_P(FuentesTest, HasABlockForEveryCode) {
  ASSERT_EQ(font.blocks.size(), 224u);
  EXPECT_GE(font.height, 1u);
  EXPECT_LE(font.base, font.height);
  EXPECT_GE(font.comments, 1u);
}

TEST_P(FuentesTest, LettersAreEvenVisibleAndOfTheirOwnShape) {
  const std::set<int> undefined{127, 129, 141, 143, 144, 157}, blank{32, 160}, twins{44, 130, 45, 173};
  std::set<std::vector<std::string>> shapes;
  for (int code = 32; code < 256; ++code) {
    const auto& rows = Block(code);
    std::string all;
    for (const auto& row : rows) {
      EXPECT_EQ(row.size(), rows[0].size()) << code;
      all += row;
    }
    if (undefined.contains(code)) {
      EXPECT_EQ(all, "") << code;
    } else if (blank.contains(code)) {
      EXPECT_NE(all, "") << code;
    } else {
      EXPECT_EQ(all.find('$'), std::string::npos) << code << ": a blank when shown";
      EXPECT_NE(all.find_first_not_of(" \xA0\xAD"), std::string::npos) << code << ": nothing to be seen";
      EXPECT_TRUE(shapes.insert(rows).second || twins.contains(code)) << code << ": like another";
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Shipped, FuentesTest, testing::ValuesIn(FontNames()),
                         [](const auto& test) { return test.param; });

TEST(CatalogoDeFuentesTest, NamesEveryFontUnderASubcategoryOfACategoryAbove) {
  std::set<std::string> categories, subcategories, named;
  std::string current;
  for (const std::string& line : CrLfLines(kFolder / "categoriestree.txt")) {
    if (line.empty() || line[0] == '#') continue;
    if (line[0] != '[') {
      EXPECT_NE(current, "") << line;
      named.insert(line);
      continue;
    }
    ASSERT_EQ(line.find(']'), line.size() - 1) << line;
    const std::size_t bar = line.find('|');
    if (bar == std::string::npos) {
      EXPECT_TRUE(categories.insert(line.substr(1, line.size() - 2)).second) << line;
    } else {
      EXPECT_TRUE(categories.contains(line.substr(1, bar - 1))) << line;
      EXPECT_TRUE(subcategories.insert(current = line).second) << line;
    }
  }
  EXPECT_GE(categories.size(), 6u);
  EXPECT_GE(subcategories.size(), categories.size());
  EXPECT_GE(named.size(), 24u);
  EXPECT_EQ(named, FontNames());
}

}  // namespace
}  // namespace pixmosa
