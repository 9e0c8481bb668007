// The fonts at hand: a flat list and a tree of categories.
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace pixmosa {

// A larger category file is not read, nor written.
inline constexpr std::uintmax_t kLargestCatalogue = 4 << 20;

// A node of the tree; texts in the 8-bit code page. A font's key holds two ";".
struct NodoDeFuentes {
  enum Nivel { kCategoria, kSubcategoria, kFuente };
  Nivel nivel;
  std::string parent;  // key of the node above; empty for a category
  std::string key, text;
};

// The file names "*.flf" of the folders, in alphabetical order ignoring case, each once. A folder that is
// missing has none.
std::vector<std::string> FillFontList(const std::vector<std::filesystem::path>& folders);

// The nodes that a category file's lines make, added to `nodes`. A line whose parent does not exist, or whose
// key is there already, adds nothing.
void FillFontTree(std::vector<NodoDeFuentes>& nodes, std::string_view categories);

// A category file's content with a font (UTF-8, without its ending) under the category of added fonts, which
// is made where it is missing. A font that is listed there already is not listed again.
std::string ConFuente(std::string catalogue, const std::string& name);

// Whether a category file can name this font (UTF-8): a line of the code page that means a font and nothing
// else, and a file name.
bool CabeEnElCatalogo(const std::string& name);

// The nodes of "categoriestree.txt" in the folders; a folder without one adds nothing.
std::vector<NodoDeFuentes> ArbolDeFuentes(const std::vector<std::filesystem::path>& folders);

// The file of a font (with its ending) in the first folder that has it; in the first folder where none has.
std::filesystem::path ArchivoDeFuente(const std::vector<std::filesystem::path>& folders,
                                      const std::string& name);

}  // namespace pixmosa
