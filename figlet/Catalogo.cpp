#include "figlet/Catalogo.h"

#include <algorithm>

#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/Lines.h"

namespace pixmosa {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kLargestCatalogue = 4 << 20;

bool Has(const std::vector<NodoDeFuentes>& nodes, const std::string& key) {
  return std::any_of(nodes.begin(), nodes.end(), [&](const NodoDeFuentes& n) { return n.key == key; });
}

void Add(std::vector<NodoDeFuentes>& nodes, NodoDeFuentes node) {
  const bool attached = node.nivel == NodoDeFuentes::kCategoria || Has(nodes, node.parent);
  if (attached && !Has(nodes, node.key)) nodes.push_back(std::move(node));
}

}  // namespace

std::vector<std::string> FillFontList(const std::vector<fs::path>& folders) {
  std::vector<std::string> names;
  for (const fs::path& folder : folders) {
    std::error_code ec;
    for (fs::directory_iterator at(folder, ec), end; !ec && at != end; at.increment(ec))
      if (LowerCase(at->path().extension().string()) == ".flf")
        names.push_back(at->path().filename().string());
  }
  std::sort(names.begin(), names.end(), [](const std::string& a, const std::string& b) {
    const std::string x = LowerCase(BytesOfUtf8(a)), y = LowerCase(BytesOfUtf8(b));
    return x != y ? x < y : a < b;
  });
  names.erase(std::unique(names.begin(), names.end()), names.end());
  return names;
}

std::vector<fs::path> FontFiles(const std::vector<fs::path>& filesAndFolders) {
  std::vector<fs::path> files;
  for (const fs::path& path : filesAndFolders) {
    std::error_code ec;
    if (!fs::is_directory(path, ec)) {
      files.push_back(path);
      continue;
    }
    for (const std::string& name : FillFontList({path})) files.push_back(path / name);
  }
  return files;
}

void FillFontTree(std::vector<NodoDeFuentes>& nodes, std::string_view categories) {
  std::string current;  // key of the current subcategory
  while (!categories.empty()) {
    const std::string_view line = TakeLine(categories);
    if (line.empty() || line[0] == '#') continue;
    const std::size_t bar = line.find('|'), close = line.find(']', bar == std::string_view::npos ? 0 : bar);
    if (line[0] != '[') {
      Add(nodes, {NodoDeFuentes::kFuente, current, current + ";" + std::string(line), std::string(line)});
    } else if (close != std::string_view::npos && bar == std::string_view::npos) {
      const std::string name(line.substr(1, close - 1));
      Add(nodes, {NodoDeFuentes::kCategoria, "", name, name});
    } else if (close != std::string_view::npos) {
      const std::string parent(line.substr(1, bar - 1)), name(line.substr(bar + 1, close - bar - 1));
      current = parent + ";" + name;
      Add(nodes, {NodoDeFuentes::kSubcategoria, parent, current, name});
    }
  }
}

std::vector<NodoDeFuentes> ArbolDeFuentes(const std::vector<fs::path>& folders) {
  std::vector<NodoDeFuentes> nodes;
  for (const fs::path& folder : folders) {
    try {
      FillFontTree(nodes, LeerArchivo(folder / "categoriestree.txt", kLargestCatalogue));
    } catch (const FileError&) {
      // No catalogue: the flat list still shows the fonts.
    }
  }
  return nodes;
}

fs::path ArchivoDeFuente(const std::vector<fs::path>& folders, const std::string& name) {
  for (const fs::path& folder : folders)
    if (std::error_code ec; fs::exists(folder / name, ec)) return folder / name;
  return folders.empty() ? fs::path(name) : folders.front() / name;
}

}  // namespace pixmosa
