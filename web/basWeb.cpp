#include "web/basWeb.h"

#include <array>
#include <cstring>

#include "platform/AtomicFile.h"

namespace pixmosa {
namespace {

constexpr int kDigitosBinarios = 200;
constexpr std::size_t kBuffer = 1 << 20;

constexpr std::string_view kCabezaExacta =
    "<style type=\"text/css\">\r\nbody {\r\n  font-size: 1pt;\r\n  line-height: 1px;\r\n}\r\n</style>\r\n\r\n"
    "<title>Pixmosa</title>\r\n</head>\r\n\r\n<body>\r\n"
    "<br><br><br><br><br><br>\r\n<br><br><br><br><br><br>\r\n<br><br><br><br><br><br>\r\n"
    "<div align=\"center\">\r\n";
constexpr std::string_view kCabezaMosaico =
    "<br>\r\n<div align=\"center\"><font face=\"Courier New \" size=\"1\">\r\n";
constexpr std::string_view kPie = "</div>\r\n</body>\r\n\r\n</html>\r\n";
constexpr std::string_view kAbrir = "<font color=\"rgb(", kCambiar = "</font><font color=\"rgb(",
                           kCerrar = ")\">";

// Numbers -1..255 in decimal with a comma behind.
struct Decimal {
  char text[4];
  std::uint8_t length;  // with the comma
};

std::array<Decimal, 257> Decimals() {
  std::array<Decimal, 257> table{};
  for (int n = -1; n < 256; ++n) {
    const std::string s = std::to_string(n) + ",";
    Decimal& d = table[static_cast<std::size_t>(n + 1)];
    std::memcpy(d.text, s.data(), s.size());
    d.length = static_cast<std::uint8_t>(s.size());
  }
  return table;
}

// Collects the page's cells and hands them to the file in large pieces.
class Celdas {
 public:
  explicit Celdas(AtomicFile& file) : file_(file) { buffer_.resize(kBuffer + kLargestCell); }

  void Color(const ColorDeCelda& c, bool first) {
    Put(first ? kAbrir : kCambiar);
    Number(c.R);
    Number(c.G);
    Number(c.B);
    --at_;  // no comma behind the last one
    Put(kCerrar);
  }

  void Put(std::string_view s) {
    std::memcpy(buffer_.data() + at_, s.data(), s.size());
    at_ += s.size();
  }

  // Makes room for one more cell or line end.
  void Flush(bool all = false) {
    if (at_ < kBuffer && !all) return;
    file_.Write({buffer_.data(), at_});
    at_ = 0;
  }

 private:
  static constexpr std::size_t kLargestCell = 64;

  void Number(int n) {
    const Decimal& d = decimals_[static_cast<std::size_t>(n + 1)];
    std::memcpy(buffer_.data() + at_, d.text, sizeof d.text);
    at_ += d.length;
  }

  AtomicFile& file_;
  std::string buffer_;
  std::size_t at_ = 0;
  const std::array<Decimal, 257> decimals_ = Decimals();
};

// The sampled rows and columns, both ends included.
struct Limites {
  int top, bottom, right, left;
};

Limites LeerBordes(const WebSettings& s, const Picture& p) {
  const auto on = [&](bool toggle) { return s.exactCopy && toggle; };
  return {on(s.bordeArriba) ? -1 : 0, p.Height() + (on(s.bordeAbajo) ? 0 : -1),
          p.Width() + (on(s.bordeDerecha) ? 0 : -1), on(s.bordeIzquierda) ? -1 : 0};
}

// The next character of the palette; nothing where it is empty.
std::string_view SiguienteCaracter(BasWeb& web) {
  const std::string_view palette = web.Paleta;
  if (++web.PosicionPaleta > static_cast<std::int32_t>(palette.size())) web.PosicionPaleta = 1;
  return palette.empty() ? palette : palette.substr(static_cast<std::size_t>(web.PosicionPaleta - 1), 1);
}

}  // namespace

ColorDeCelda SplitCellColour(Colour c) {
  const int b = c / 65536, r = c - b * 65536, g = r / 256;
  return {static_cast<std::int16_t>(r - g * 256), static_cast<std::int16_t>(g), static_cast<std::int16_t>(b)};
}

std::string TextoDeFondo(Colour c) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  const ColorDeCelda parts = SplitCellColour(c);
  std::string s = "#";
  for (const int part : {parts.R, parts.G, parts.B}) {
    if (part < 10) s += '0';
    if (part >= 16) s += kHex[part / 16];
    s += kHex[part % 16];
  }
  return s;
}

void PrepararPaleta(BasWeb& web, const WebSettings& settings, Random& random) {
  if (settings.paleta == 0) {
    web.Paleta.clear();
    for (int i = 0; i < kDigitosBinarios; ++i) web.Paleta += random.Next() < 0.5F ? '0' : '1';
  } else if (settings.paleta == 1) {
    web.Paleta = settings.textoPaleta;
  }
}

void EscribirWebArt(BasWeb& web, const WebSettings& settings, const Picture& picture,
                    const std::filesystem::path& file) {
  const int across = 6 - settings.tamaño, down = settings.exactCopy ? across : 2 * across;
  AtomicFile page(file);
  page.Write("<html>\r\n\r\n<head><body bgcolor=\"" + web.Fondo + "\">\r\n");
  page.Write(settings.exactCopy ? kCabezaExacta : kCabezaMosaico);

  const Limites limits = LeerBordes(settings, picture);
  Celdas cells(page);
  bool first = true;
  Colour previous = 0;
  for (int y = limits.top; y <= limits.bottom; y += down) {
    for (int x = limits.left; x <= limits.right; x += across) {
      const Colour c = picture.ColourAt(x, y);
      const std::string_view character = settings.exactCopy ? "0" : SiguienteCaracter(web);
      if (first || c != previous) cells.Color(SplitCellColour(c), first);
      first = false;
      previous = c;
      cells.Put(character);
      cells.Flush();
    }
    cells.Put("<br>\r\n");
    cells.Flush();
  }
  cells.Flush(true);
  page.Write(kPie);
  page.Commit();
}

}  // namespace pixmosa
