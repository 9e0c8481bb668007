// Any bytes as a catalogue of fonts, behind a first line with the name of a font to be added: every node has
// its parent before it and a key of its own; adding keeps every node, and adding again changes nothing.
#include <set>

#include "figlet/Catalogo.h"
#include "tests/fuzz/Fuzz.h"

namespace {

std::set<std::string> Keys(std::string_view catalogue) {
  std::vector<NodoDeFuentes> nodes;
  FillFontTree(nodes, catalogue);
  std::set<std::string> keys;
  std::size_t size = 0;
  for (const NodoDeFuentes& n : nodes) {
    Check(n.nivel == NodoDeFuentes::kCategoria ? n.parent.empty() : keys.contains(n.parent));
    Check(keys.insert(n.key).second);
    size += n.key.size();
  }
  Check(size <= std::size_t{64} << 20);
  return keys;
}

}  // namespace

void Fuzz(std::string_view input) {
  const std::size_t end = std::min(input.find('\n'), input.size());
  const std::string name(input.substr(0, end)), before(input.substr(std::min(end + 1, input.size())));
  const std::set<std::string> keys = Keys(before);
  if (!CabeEnElCatalogo(name)) return;
  const std::string after = ConFuente(before, name);
  Check(ConFuente(after, name) == after);
  Check(after.size() <= before.size() + name.size() + 60);
  const std::set<std::string> now = Keys(after);
  Check(std::includes(now.begin(), now.end(), keys.begin(), keys.end()));
}
