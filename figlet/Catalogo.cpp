#include "figlet/Catalogo.h"

#include <algorithm>
#include <unordered_set>

#include "platform/AtomicFile.h"
#include "platform/CodePage.h"
#include "platform/Lines.h"

namespace pixmosa {
namespace {

namespace fs = std::filesystem;

constexpr std::size_t kMostKeyBytes = 64 << 20;
constexpr char kCategoria[] =
    "A\xF1"
    "adidas",
               kSubcategoria[] = "Propias";

// The tree while it grows: each key once, and all keys together within bounds, however long a name that many
// lines share is.
class Arbol {
 public:
  explicit Arbol(std::vector<NodoDeFuentes>& nodes) : nodes_(nodes) {
    for (const NodoDeFuentes& n : nodes) Count(n.key);
  }

  void Add(NodoDeFuentes node) {
    if (size_ + node.key.size() > kMostKeyBytes) return;
    if (node.nivel != NodoDeFuentes::kCategoria && !keys_.contains(node.parent)) return;
    if (Count(node.key)) nodes_.push_back(std::move(node));
  }

 private:
  // False for a key that is there.
  bool Count(const std::string& key) {
    const bool fresh = keys_.insert(key).second;
    if (fresh) size_ += key.size();
    return fresh;
  }

  std::vector<NodoDeFuentes>& nodes_;
  std::unordered_set<std::string> keys_;
  std::size_t size_ = 0;
};

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

void FillFontTree(std::vector<NodoDeFuentes>& nodes, std::string_view categories) {
  Arbol tree(nodes);
  std::string current;  // key of the current subcategory
  while (!categories.empty()) {
    const std::string_view line = TakeLine(categories);
    if (line.empty() || line[0] == '#') continue;
    const std::size_t bar = line.find('|'), close = line.find(']', bar == std::string_view::npos ? 0 : bar);
    if (line[0] != '[') {
      tree.Add({NodoDeFuentes::kFuente, current, current + ";" + std::string(line), std::string(line)});
    } else if (close != std::string_view::npos && bar == std::string_view::npos) {
      const std::string name(line.substr(1, close - 1));
      tree.Add({NodoDeFuentes::kCategoria, "", name, name});
    } else if (close != std::string_view::npos) {
      const std::string parent(line.substr(1, bar - 1)), name(line.substr(bar + 1, close - bar - 1));
      current = parent + ";" + name;
      tree.Add({NodoDeFuentes::kSubcategoria, parent, current, name});
    }
  }
}

std::string ConFuente(std::string catalogue, const std::string& name) {
  const std::string category = "[" + std::string(kCategoria) + "]\r\n";
  const std::string sub = "[" + std::string(kCategoria) + "|" + kSubcategoria + "]\r\n";
  const std::string line = BytesOfUtf8(name) + "\r\n";
  if (!catalogue.empty() && !catalogue.ends_with('\n')) catalogue += "\r\n";
  const std::size_t at = ("\r\n" + catalogue).find("\r\n" + sub);
  if (at == std::string::npos) return catalogue + category + sub + line;
  const std::size_t begin = at + sub.size();
  const std::size_t end = std::min(catalogue.find("\r\n[", begin - 2), catalogue.size());
  const std::string listed = "\r\n" + catalogue.substr(begin, end + 2 - begin);
  if (listed.find("\r\n" + line) == std::string::npos) catalogue.insert(begin, line);
  return catalogue;
}

bool CabeEnElCatalogo(const std::string& name) {
  const bool plain = std::all_of(name.begin(), name.end(), [](char c) {
    return static_cast<unsigned char>(c) >= 32 && c != 127 &&
           std::string_view("[]|;/").find(c) == std::string_view::npos;
  });
  return plain && !name.empty() && name[0] != '#' && Utf8OfBytes(BytesOfUtf8(name)) == name;
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
