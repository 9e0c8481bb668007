#include "platform/gif/LectorDeGif.h"

#include <algorithm>
#include <array>
#include <gif_lib.h>
#include <vector>

namespace pixmosa {
namespace {

constexpr std::uint32_t kBlanco = 0xFFFFFFFF;

// Bytes that giflib takes piece by piece.
struct Cinta {
  std::string bytes;
  std::size_t at = 0;

  static int Tomar(GifFileType* gif, GifByteType* to, int n) {
    auto& tape = *static_cast<Cinta*>(gif->UserData);
    const std::size_t got = std::min<std::size_t>(static_cast<std::size_t>(n), tape.bytes.size() - tape.at);
    std::copy_n(tape.bytes.begin() + static_cast<std::ptrdiff_t>(tape.at), got, to);
    tape.at += got;
    return static_cast<int>(got);
  }
};

struct Cierre {
  void operator()(GifFileType* gif) const { DGifCloseFile(gif, nullptr); }
};

// The part of a screen that a frame covers.
struct Zona {
  int left = 0, top = 0, right = 0, bottom = 0;
  bool Vacia() const { return left >= right || top >= bottom; }
};

Zona ZonaDe(const GifImageDesc& d, Extent screen) {
  return {std::min(d.Left, screen.width), std::min(d.Top, screen.height),
          std::min(d.Left + d.Width, screen.width), std::min(d.Top + d.Height, screen.height)};
}

class Lector final : public LectorDeFotogramas {
 public:
  Lector(std::string bytes, const std::string& name) : nombre_(name), cinta_{std::move(bytes)} {
    cuantos_ = ContarFotogramas(cinta_.bytes);
    if (cinta_.bytes.starts_with("GIF8")) gif_.reset(DGifOpen(&cinta_, Cinta::Tomar, nullptr));
    if (!gif_ || gif_->SWidth <= 0 || gif_->SHeight <= 0)
      throw PictureError("No se ha podido leer la imagen \"" + name +
                         "\": el archivo está dañado o incompleto.");
  }

  std::optional<Fotograma> Siguiente() override {
    while (!acabado_ && dados_ < cuantos_) {
      GifRecordType record = UNDEFINED_RECORD_TYPE;
      if (DGifGetRecordType(gif_.get(), &record) == GIF_ERROR) return Cortar();
      if (record == TERMINATE_RECORD_TYPE) break;
      if (record == EXTENSION_RECORD_TYPE && !LeerExtension()) return Cortar();
      if (record != IMAGE_DESC_RECORD_TYPE) continue;
      if (DGifGetImageDesc(gif_.get()) == GIF_ERROR) return Cortar();
      ++dados_;
      return Componer();
    }
    acabado_ = true;
    return std::nullopt;
  }

  std::size_t Cuantos() const override { return cuantos_; }
  Extent Tamaño() const override { return {gif_->SWidth, gif_->SHeight}; }
  std::string Aviso() const override {
    return cortado_ ? "La imagen \"" + nombre_ + "\" está incompleta." : std::string();
  }

 private:
  std::optional<Fotograma> Cortar() {
    acabado_ = cortado_ = true;
    return std::nullopt;
  }

  bool LeerExtension() {
    int code = 0;
    GifByteType* data = nullptr;
    if (DGifGetExtension(gif_.get(), &code, &data) == GIF_ERROR) return false;
    if (code == GRAPHICS_EXT_FUNC_CODE && data) DGifExtensionToGCB(data[0], data + 1, &control_);
    while (data)
      if (DGifGetExtensionNext(gif_.get(), &data) == GIF_ERROR) return false;
    return true;
  }

  // Nothing where the file ends before the frame's first row.
  std::optional<Fotograma> Componer() {
    if (lienzo_.IsEmpty()) lienzo_ = Picture::Filled(gif_->SWidth, gif_->SHeight, kWhite);
    const Zona zone = ZonaDe(gif_->Image, lienzo_.Size());
    Limpiar();
    Picture before;
    if (control_.DisposalMode == DISPOSE_PREVIOUS) before = lienzo_;
    if (!Dibujar(zone)) return std::nullopt;
    Fotograma frame{lienzo_, DuracionDe(std::int64_t{control_.DelayTime} * 10)};
    porBlanquear_ = control_.DisposalMode == DISPOSE_BACKGROUND ? zone : Zona{};
    if (control_.DisposalMode == DISPOSE_PREVIOUS) lienzo_ = before;
    control_ = kSinControl;
    return frame;
  }

  // What the frame before has asked for.
  void Limpiar() {
    if (porBlanquear_.Vacia()) return;
    std::uint32_t* to = lienzo_.Writable();
    for (std::ptrdiff_t y = porBlanquear_.top; y < porBlanquear_.bottom; ++y)
      std::fill(to + y * lienzo_.Width() + porBlanquear_.left, to + y * lienzo_.Width() + porBlanquear_.right,
                kBlanco);
  }

  bool Dibujar(Zona zone) {
    const GifImageDesc& d = gif_->Image;
    const std::array<std::uint32_t, 256> colours = Colores(d.ColorMap ? d.ColorMap : gif_->SColorMap);
    std::vector<GifByteType> line(static_cast<std::size_t>(std::max(1, d.Width)));
    std::uint32_t* const pixels = lienzo_.Writable();
    if (d.Width == 0 || d.Height == 0) return PasarSobreDatos();
    for (int i = 0; i < d.Height; ++i) {
      if (DGifGetLine(gif_.get(), line.data(), d.Width) == GIF_ERROR) {
        Cortar();
        return i > 0;
      }
      const std::ptrdiff_t y = d.Top + (d.Interlace ? Entrelazada(i, d.Height) : i);
      if (y >= zone.bottom) continue;
      std::uint32_t* to = pixels + y * lienzo_.Width() + zone.left;
      for (int x = 0; x < zone.right - zone.left; ++x)
        if (line[static_cast<std::size_t>(x)] != control_.TransparentColor)
          to[x] = colours[line[static_cast<std::size_t>(x)]];
    }
    return true;
  }

  // Those of a frame without pixels.
  bool PasarSobreDatos() {
    GifByteType* block = nullptr;
    do {
      if (DGifGetCodeNext(gif_.get(), &block) == GIF_ERROR) {
        Cortar();
        return false;
      }
    } while (block);
    return true;
  }

  // The row at which the i-th line of an interlaced picture stands.
  static int Entrelazada(int i, int height) {
    constexpr int kDesde[] = {0, 4, 2, 1}, kPaso[] = {8, 8, 4, 2};
    for (int pass = 0; pass < 4; ++pass) {
      const int lines = (height - kDesde[pass] + kPaso[pass] - 1) / kPaso[pass];
      if (i < lines) return kDesde[pass] + i * kPaso[pass];
      i -= std::max(0, lines);
    }
    return height;
  }

  // Colours that the table lacks are black.
  static std::array<std::uint32_t, 256> Colores(const ColorMapObject* map) {
    std::array<std::uint32_t, 256> colours{};
    colours.fill(PixelOfColour(kBlack));
    for (int i = 0; map && i < std::min(256, map->ColorCount); ++i)
      colours[static_cast<std::size_t>(i)] =
          PixelOfColour(Rgb(map->Colors[i].Red, map->Colors[i].Green, map->Colors[i].Blue));
    return colours;
  }

  static constexpr GraphicsControlBlock kSinControl = {DISPOSAL_UNSPECIFIED, false, 0, NO_TRANSPARENT_COLOR};

  std::string nombre_;
  Cinta cinta_;
  std::unique_ptr<GifFileType, Cierre> gif_;
  std::size_t cuantos_ = 0, dados_ = 0;
  GraphicsControlBlock control_ = kSinControl;
  Picture lienzo_;
  Zona porBlanquear_;
  bool acabado_ = false, cortado_ = false;
};

}  // namespace

std::size_t ContarFotogramas(std::string_view bytes) {
  const auto at = [&](std::size_t i) -> std::size_t {
    return i < bytes.size() ? static_cast<unsigned char>(bytes[i]) : 0;
  };
  const auto table = [&](std::size_t i) { return at(i) & 0x80 ? std::size_t{3} << ((at(i) & 7) + 1) : 0; };
  if (!bytes.starts_with("GIF8")) return 0;
  std::size_t count = 0, i = 13 + table(10);
  while (i < bytes.size() && (at(i) == 0x21 || at(i) == 0x2C)) {
    const bool picture = at(i) == 0x2C;
    if (picture) ++count;
    i += picture ? 11 + table(i + 9) : 2;
    while (i < bytes.size() && at(i) != 0) i += 1 + at(i);
    ++i;
  }
  return count;
}

std::unique_ptr<LectorDeFotogramas> AbrirGif(std::string bytes, const std::string& name) {
  return std::make_unique<Lector>(std::move(bytes), name);
}

}  // namespace pixmosa
