#include <algorithm>
#include <array>
#include <map>

#include "exportar/Peliculas.h"
#include "exportar/Pintura.h"
#include "exportar/Texto.h"
#include "platform/Pixel.h"

namespace pixmosa {
namespace {

constexpr int kTonos = 16, kMasLado = 65535;
constexpr std::size_t kMasBytesDeLetras = std::size_t{64} << 20;
constexpr std::int64_t kMasCentesimas = 65535;

// What of a screen differs from the one before.
struct Cambio {
  int left = 0, top = 0, right = 1, bottom = 1;  // where nothing does, one pixel: every frame is in the file
};

template <typename Pixel>
Cambio CambioDe(const std::vector<Pixel>& before, const std::vector<Pixel>& now, Extent size) {
  const auto width = static_cast<std::size_t>(size.width), height = static_cast<std::size_t>(size.height);
  if (before.empty()) return {0, 0, size.width, size.height};
  std::size_t left = width, right = 0, top = height, bottom = 0;
  for (std::size_t y = 0; y < height; ++y) {
    const auto from = now.begin() + static_cast<std::ptrdiff_t>(y * width), to = from + size.width;
    const auto other = before.begin() + static_cast<std::ptrdiff_t>(y * width);
    const auto first = static_cast<std::size_t>(std::mismatch(from, to, other).first - from);
    if (first == width) continue;
    top = std::min(top, y);
    bottom = y + 1;
    left = std::min(left, first);
    std::size_t last = width;
    while (from[static_cast<std::ptrdiff_t>(last) - 1] == other[static_cast<std::ptrdiff_t>(last) - 1])
      --last;
    right = std::max(right, last);
  }
  if (bottom == 0) return {};
  return {static_cast<int>(left), static_cast<int>(top), static_cast<int>(right), static_cast<int>(bottom)};
}

// Pixels of a frame: numbers of the shades, or stored pixels where there are colours.
template <typename Pixel>
class GifDe final : public EscritorDePelicula {
 public:
  explicit GifDe(Rodaje film) : o_(std::move(film)) {
    const int scale = o_.opciones.escala;
    celda_ = {o_.medios.celda.width * scale, o_.medios.celda.height * scale};
    const double width = std::max(1.0, static_cast<double>(o_.cuadro.width) * celda_.width),
                 height = std::max(1.0, static_cast<double>(o_.cuadro.height) * celda_.height);
    ExigirPixeles(width, height);
    if (std::max(width, height) > kMasLado)
      throw DibujoExcesivo("Un GIF tiene " + std::to_string(kMasLado) +
                           " píxeles de lado como mucho, y este "
                           "tendría " +
                           std::to_string(static_cast<int>(std::max(width, height))) + ".");
    medida_ = {static_cast<int>(width), static_cast<int>(height)};
    std::array<Colour, kTonos> shades{};
    for (unsigned i = 0; i < kTonos; ++i)
      shades[i] = ColourOfPixel(
          Mezcla(PixelOfColour(o_.opciones.papel), PixelOfColour(o_.opciones.tinta), i * 255 / (kTonos - 1)));
    gif_ = o_.medios.abrirGif(medida_, shades, o_.salida);
  }

  void Poner(const Dibujo& drawing, int milliseconds) override {
    Pintar(drawing);
    const Cambio part = CambioDe(antes_, ahora_, medida_);
    hasta_ += milliseconds;
    const std::int64_t end = (hasta_ + 5) / 10;
    PonerParte(part, static_cast<int>(std::min(kMasCentesimas, end - puestas_)));
    puestas_ = end;
    std::swap(antes_, ahora_);
  }

  void Acabar() override { gif_->Acabar(); }

 private:
  Pixel Papel() const {
    if constexpr (sizeof(Pixel) == 1) return 0;
    return static_cast<Pixel>(PixelOfColour(o_.opciones.papel));
  }

  void Pintar(const Dibujo& drawing) {
    ahora_.assign(static_cast<std::size_t>(medida_.width) * static_cast<std::size_t>(medida_.height),
                  Papel());
    const auto rows = static_cast<std::size_t>(o_.cuadro.height),
               columns = static_cast<std::size_t>(o_.cuadro.width);
    for (std::size_t r = 0; r < std::min(rows, drawing.filas.size()); ++r)
      for (std::size_t c = 0; c < std::min(columns, drawing.filas[r].size()); ++c)
        if (!EsBlanco(drawing.filas[r][c].caracter)) PintarLetra(drawing.filas[r][c], r, c);
  }

  void PintarLetra(const Celda& cell, std::size_t row, std::size_t column) {
    const std::vector<std::uint8_t>& ink = Letra(Dibujable(cell.caracter));
    const std::ptrdiff_t stride = medida_.width;
    Pixel* to = ahora_.data() + static_cast<std::ptrdiff_t>(row) * celda_.height * stride +
                static_cast<std::ptrdiff_t>(column) * celda_.width;
    if constexpr (sizeof(Pixel) == 1) {
      for (std::size_t i = 0; i < ink.size(); i += static_cast<std::size_t>(celda_.width), to += stride)
        for (std::size_t x = 0; x < static_cast<std::size_t>(celda_.width); ++x)
          to[x] = static_cast<Pixel>((ink[i + x] * (kTonos - 1) + 127) / 255);
    } else {
      const Colour colour = cell.tinta == kNoColour ? o_.opciones.tinta : cell.tinta;
      PintarCelda(to, stride, celda_, ink.data(), Papel(), PixelOfColour(colour));
    }
  }

  // How much ink each pixel of a cell has; kept, since frames have the same letters.
  const std::vector<std::uint8_t>& Letra(char32_t c) {
    if (const auto at = letras_.find(c); at != letras_.end()) return at->second;
    const auto each = static_cast<std::size_t>(celda_.width) * static_cast<std::size_t>(celda_.height);
    if (letras_.size() * each > kMasBytesDeLetras) letras_.clear();
    return letras_[c] = o_.medios.superficie.PrintSmooth(o_.medios.fuente, o_.medios.celda,
                                                         o_.opciones.escala, {&c, 1});
  }

  void PonerParte(const Cambio& part, int hundredths) {
    const Extent size = {part.right - part.left, part.bottom - part.top};
    std::vector<Pixel> pixels;
    for (std::ptrdiff_t y = part.top; y < part.bottom; ++y)
      pixels.insert(pixels.end(), ahora_.begin() + y * medida_.width + part.left,
                    ahora_.begin() + y * medida_.width + part.right);
    if constexpr (sizeof(Pixel) == 1) {
      gif_->Poner(part.left, part.top, size, pixels, hundredths);
    } else {
      Picture picture(size.width, size.height);
      std::ranges::copy(pixels, picture.Writable());
      gif_->Poner(part.left, part.top, picture, hundredths);
    }
  }

  Rodaje o_;
  Extent celda_, medida_;  // in pixels of the file
  std::unique_ptr<CodificadorDeAnimacion> gif_;
  std::map<char32_t, std::vector<std::uint8_t>> letras_;
  std::vector<Pixel> antes_, ahora_;
  std::int64_t hasta_ = 0, puestas_ = 0;  // milliseconds of the film, hundredths written
};

}  // namespace

std::unique_ptr<EscritorDePelicula> AbrirGifDePelicula(Rodaje film) {
  if (film.opciones.color) return std::make_unique<GifDe<std::uint32_t>>(std::move(film));
  return std::make_unique<GifDe<std::uint8_t>>(std::move(film));
}

}  // namespace pixmosa
