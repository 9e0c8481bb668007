#include "web/basWeb.h"

#include <array>
#include <cstring>

#include "platform/AtomicFile.h"

namespace pixmosa {
namespace {

constexpr int kDigitosBinarios = 200;
constexpr std::size_t kBuffer = 256 << 10, kLargestCell = 64;

constexpr std::string_view kCabezaExacta =
    "<style type=\"text/css\">\r\nbody {\r\n  font-size: 1pt;\r\n  line-height: 1px;\r\n}\r\n</style>\r\n\r\n"
    "<title>Pixmosa</title>\r\n</head>\r\n\r\n<body>\r\n"
    "<br><br><br><br><br><br>\r\n<br><br><br><br><br><br>\r\n<br><br><br><br><br><br>\r\n"
    "<div align=\"center\">\r\n";
constexpr std::string_view kCabezaMosaico =
    "<br>\r\n<div align=\"center\"><font face=\"Courier New \" size=\"1\">\r\n";
constexpr std::string_view kPie = "</div>\r\n</body>\r\n\r\n</html>\r\n";
constexpr std::string_view kAbrir = "<font color=\"rgb(", kCambiar = "</font><font color=\"rgb(",
                           kCerrar = ")\">", kFinDeFila = "<br>\r\n";

// Numbers -1..255 in decimal with a comma behind: four characters at most.
struct Decimal {
  char text[4];
  std::uint8_t length;  // with the comma
};

std::array<Decimal, 257> Decimals() {
  std::array<Decimal, 257> table{};
  for (int n = -1; n < 256; ++n) {
    const std::string s = std::to_string(n) + ",";
    Decimal& d = table[static_cast<std::size_t>(n) + 1];
    std::memcpy(d.text, s.data(), s.size());
    d.length = static_cast<std::uint8_t>(s.size());
  }
  return table;
}

// The opening tag of a colour. The pieces have constant lengths and the pointer stays in a register: a page
// of a photograph is tens of millions of tags.
class Etiquetas {
 public:
  char* Put(char* to, Colour colour, bool first) const {
    const std::string_view open = first ? kAbrir : kCambiar;
    std::memcpy(to, open.data(), open.size());
    to += open.size();
    const ColorDeCelda c = SplitCellColour(colour);
    to = Number(to, c.R);
    to = Number(to, c.G);
    to = Number(to, c.B) - 1;  // no comma behind the last one
    std::memcpy(to, kCerrar.data(), kCerrar.size());
    return to + kCerrar.size();
  }

 private:
  char* Number(char* to, int n) const {
    const Decimal& d = decimals_[static_cast<std::size_t>(n) + 1];
    std::memcpy(to, d.text, sizeof d.text);
    return to + d.length;
  }

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

// Puts the next character of the palette; nothing where it is empty.
char* PonerSiguiente(BasWeb& web, char* to) {
  if (++web.PosicionPaleta > static_cast<std::int32_t>(web.Paleta.size())) web.PosicionPaleta = 1;
  if (!web.Paleta.empty()) *to++ = web.Paleta[static_cast<std::size_t>(web.PosicionPaleta - 1)];
  return to;
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
  const Etiquetas tags;
  std::string buffer(kBuffer + kLargestCell, '\0');
  char* const begin = buffer.data();
  char* const full = begin + kBuffer;
  char* to = begin;
  const auto flush = [&](bool all = false) {
    if (to < full && !all) return;
    page.Write({begin, static_cast<std::size_t>(to - begin)});
    to = begin;
  };
  bool first = true;
  Colour previous = 0;
  for (int y = limits.top; y <= limits.bottom; y += down) {
    for (int x = limits.left; x <= limits.right; x += across) {
      const Colour c = picture.ColourAt(x, y);
      if (first || c != previous) to = tags.Put(to, c, first);
      first = false;
      previous = c;
      if (settings.exactCopy) {
        *to++ = '0';
      } else {
        to = PonerSiguiente(web, to);
      }
      flush();
    }
    std::memcpy(to, kFinDeFila.data(), kFinDeFila.size());
    to += kFinDeFila.size();
    flush();
  }
  flush(true);
  page.Write(kPie);
  page.Commit();
}

}  // namespace pixmosa
