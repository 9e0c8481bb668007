#include "web/AnimArt.h"

#include "web/PlantillaAnimArt.h"

namespace pixmosa {
namespace {

constexpr std::string_view kFin = "\r\n";

std::string Lineas(std::initializer_list<std::string_view> lines) {
  std::string s;
  for (const std::string_view line : lines) {
    s += line;
    s += kFin;
  }
  return s;
}

}  // namespace

std::string EscaparTexto(const std::string& text) {
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
  return s;
}

void EscribirAnimArt(const std::filesystem::path& file, std::size_t frames, const std::string& face,
                     const std::function<std::string(std::size_t)>& text) {
  AtomicFile page(file);
  page.Write(Lineas({"<html>", "<head>", " <title>Animacion</title>", " <script>", "  <!-- DHTML -->",
                     "  var max_pics=" + std::to_string(frames) + ";"}));
  for (const std::string_view line : kPlantillaAnimArt) page.Write(std::string(line) + "\r\n");
  for (std::size_t k = 0; k < frames; ++k)
    page.Write(
        Lineas({" <div id=\"text" + std::to_string(k + 1) + "\">",
                "  <pre><font face=" + face + "; Size = 1 > ", text(k), "  </font></pre>", " </div>"}));
  page.Write(Lineas({"</body>", "</html>"}));
  page.Commit();
}

}  // namespace pixmosa
