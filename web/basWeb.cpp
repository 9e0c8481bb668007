#include "web/basWeb.h"

#include <array>
#include <cstring>
#include <optional>

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

// Writes cells into a page: a tag where the colour changes, and the character. The pieces have constant
// lengths and the room for a cell is there beforehand: a page of a photograph is tens of millions of cells.
class Celdas {
 public:
  explicit Celdas(AtomicFile& page) : page_(page) {}

  // A cell of the character `c`, or of none.
  void Poner(Colour colour, std::optional<char> c) {
    char* to = Sitio();
    if (first_ || colour != previous_) to = Etiqueta(to, colour);
    if (c) *to++ = *c;
    to_ = to;
  }

  void FinDeFila() { to_ = Copiar(Sitio(), kFinDeFila); }

  void Terminar() {
    page_.Write({buffer_.data(), static_cast<std::size_t>(to_ - buffer_.data())});
    to_ = buffer_.data();
  }

 private:
  // Where the next cell goes.
  char* Sitio() {
    if (to_ >= buffer_.data() + kBuffer) Terminar();
    return to_;
  }

  static char* Copiar(char* to, std::string_view text) {
    std::memcpy(to, text.data(), text.size());
    return to + text.size();
  }

  char* Etiqueta(char* to, Colour colour) {
    to = first_ ? Copiar(to, kAbrir) : Copiar(to, kCambiar);
    first_ = false;
    previous_ = colour;
    const ColorDeCelda c = SplitCellColour(colour);
    to = Numero(to, c.R);
    to = Numero(to, c.G);
    to = Numero(to, c.B) - 1;  // no comma behind the last one
    return Copiar(to, kCerrar);
  }

  char* Numero(char* to, int n) const {
    const Decimal& d = decimals_[static_cast<std::size_t>(n) + 1];
    std::memcpy(to, d.text, sizeof d.text);
    return to + d.length;
  }

  AtomicFile& page_;
  const std::array<Decimal, 257> decimals_ = Decimals();
  std::string buffer_ = std::string(kBuffer + kLargestCell, '\0');
  char* to_ = buffer_.data();
  bool first_ = true;
  Colour previous_ = 0;
};

// Pixels from one sample to the next.
struct Pasos {
  int across, down;
};

Pasos PasosDe(const WebSettings& s) {
  const int across = 6 - s.tamaño;
  return {across, s.exactCopy ? across : 2 * across};
}

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
std::optional<char> Siguiente(BasWeb& web) {
  if (++web.PosicionPaleta > static_cast<std::int32_t>(web.Paleta.size())) web.PosicionPaleta = 1;
  if (web.Paleta.empty()) return std::nullopt;
  return web.Paleta[static_cast<std::size_t>(web.PosicionPaleta - 1)];
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

std::uint64_t MayorPagina(const WebSettings& settings, const Picture& picture) {
  constexpr std::uint64_t kPorCelda =
      43;  // a tag closed, one opened with three parts of three digits, a character
  const Pasos steps = PasosDe(settings);
  const auto cells = [](int size, int step) { return static_cast<std::uint64_t>((size + step + 1) / step); };
  return cells(picture.Width(), steps.across) * cells(picture.Height(), steps.down) * kPorCelda;
}

bool EscribirWebArt(BasWeb& web, const WebSettings& settings, const Picture& picture,
                    const std::filesystem::path& file, const std::function<bool()>& seguir) {
  const Pasos steps = PasosDe(settings);
  AtomicFile page(file);
  page.Write("<html>\r\n\r\n<head><body bgcolor=\"" + web.Fondo + "\">\r\n");
  page.Write(settings.exactCopy ? kCabezaExacta : kCabezaMosaico);

  const Limites limits = LeerBordes(settings, picture);
  Celdas cells(page);
  for (int y = limits.top; y <= limits.bottom; y += steps.down) {
    for (int x = limits.left; x <= limits.right; x += steps.across)
      cells.Poner(picture.ColourAt(x, y), settings.exactCopy ? '0' : Siguiente(web));
    cells.FinDeFila();
    if (seguir && !seguir()) return false;
  }
  cells.Terminar();
  page.Write(kPie);
  page.Commit();
  return true;
}

}  // namespace pixmosa
