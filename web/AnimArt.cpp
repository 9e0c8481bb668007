#include "web/AnimArt.h"

#include <span>

#include "web/PlantillaAnimArt.h"

namespace pixmosa {
namespace {

constexpr std::string_view kFin = "\r\n";

std::string Lineas(std::span<const std::string_view> lines) {
  std::string s;
  for (const std::string_view line : lines) {
    s += line;
    s += kFin;
  }
  return s;
}

std::string Lineas(std::initializer_list<std::string_view> lines) {
  return Lineas(std::span(lines.begin(), lines.size()));
}

// "<" and ">" as their entities.
void Escapar(std::string& text) {
  if (text.find_first_of("<>") == std::string::npos) return;
  std::string s;
  s.reserve(text.size() + text.size() / 8);
  for (const char c : text) {
    if (c == '<') {
      s += "&lt;";
    } else if (c == '>') {
      s += "&gt;";
    } else {
      s += c;
    }
  }
  text = std::move(s);
}

}  // namespace

void EscribirAnimArt(const std::filesystem::path& file, std::size_t frames, const std::string& face,
                     const std::function<std::string&(std::size_t)>& text) {
  AtomicFile page(file);
  page.Write(Lineas({"<html>", "<head>", " <title>Animacion</title>", " <script>", "  <!-- DHTML -->",
                     "  var max_pics=" + std::to_string(frames) + ";"}));
  page.Write(Lineas(kPlantillaAnimArt));
  for (std::size_t k = 0; k < frames; ++k) {
    std::string& produced = text(k);
    Escapar(produced);
    page.Write(
        Lineas({" <div id=\"text" + std::to_string(k + 1) + "\">",
                "  <pre><font face=" + face + "; Size = 1 > ", produced, "  </font></pre>", " </div>"}));
  }
  page.Write(Lineas({"</body>", "</html>"}));
  page.Commit();
}

}  // namespace pixmosa
