// The film half of the codec.
#include <new>
#include <utility>

#include "platform/decodificador/Cliente.h"
#include "platform/decodificador/Contenido.h"
#include "platform/gif/LectorDeGif.h"
#include "platform/png/Png.h"
#include "platform/qt/FallosDeImagen.h"
#include "platform/qt/QtPictureCodec.h"

namespace pixmosa {
namespace {

// A picture that does not move.
class UnaSola final : public LectorDeFotogramas {
 public:
  UnaSola(Picture picture, std::string warning) : imagen_(std::move(picture)), aviso_(std::move(warning)) {}

  std::optional<Fotograma> Siguiente() override {
    if (std::exchange(dada_, true)) return std::nullopt;
    return Fotograma{imagen_, kMilisegundosDeSiempre};
  }
  std::size_t Cuantos() const override { return 1; }
  Extent Tamaño() const override { return imagen_.Size(); }
  std::string Aviso() const override { return aviso_; }

 private:
  Picture imagen_;
  std::string aviso_;
  bool dada_ = false;
};

// The frames that the decoding process reads. The first one is asked for at once: it tells their size.
class DeAparte final : public LectorDeFotogramas {
 public:
  DeAparte(const std::filesystem::path& program, std::string bytes, std::string name,
           std::function<void()> mientras)
      : nombre_(std::move(name)), pelicula_(program, std::move(bytes), std::move(mientras)) {
    primera_ = Pedir();
    if (!primera_) FailToRead(nombre_, "la imagen está vacía");
    tamaño_ = primera_->imagen.Size();
    cuantos_ = pelicula_.Cuantos();
  }

  std::optional<Fotograma> Siguiente() override {
    if (primera_) return std::exchange(primera_, std::nullopt);
    return acabada_ ? std::nullopt : Pedir();
  }
  std::size_t Cuantos() const override { return cuantos_; }
  Extent Tamaño() const override { return tamaño_; }
  std::string Aviso() const override { return aviso_; }

 private:
  std::optional<Fotograma> Pedir() {
    Decodificada d = pelicula_.Siguiente();
    const bool cut = d.razon == Razon::Danada && cuantos_ > 0;  // behind those that were whole
    if (cut) aviso_ = "La imagen \"" + nombre_ + "\" está incompleta.";
    if (cut || d.razon == Razon::Vacia) {
      acabada_ = true;
      return std::nullopt;
    }
    return Fotograma{PictureOfAnswer(std::move(d), nombre_, &aviso_), DuracionDe(pelicula_.Milisegundos())};
  }

  std::string nombre_, aviso_;
  PeliculaAparte pelicula_;
  std::optional<Fotograma> primera_;
  std::size_t cuantos_ = 0;
  Extent tamaño_;
  bool acabada_ = false;
};

// The kinds that the decoding process reads and that may move: RIFF WEBP with the flag, MNG.
bool SeMueveAparte(std::string_view bytes) {
  constexpr std::size_t kBandera = 20;
  const bool webp = bytes.starts_with("RIFF") && bytes.size() > kBandera && bytes.substr(8, 8) == "WEBPVP8X";
  return (webp && (bytes[kBandera] & 2)) || bytes.starts_with("\x8AMNG");
}

}  // namespace

std::unique_ptr<LectorDeFotogramas> QtPictureCodec::AbrirAnimacion(std::string bytes,
                                                                   const std::string& name) {
  try {
    if (bytes.starts_with("GIF8")) {
      CheckSize(name, TamanoDeGif(bytes));
      return AbrirGif(std::move(bytes), name);
    }
    if (SeMueveAparte(bytes) && bytes.size() <= kMasBytesAparte)
      return std::make_unique<DeAparte>(decodificador_.empty() ? ProgramaDecodificador() : decodificador_,
                                        std::move(bytes), name, mientras_);
    std::string warning;
    Picture picture = ReadBytes(bytes, name, &warning);
    return std::make_unique<UnaSola>(std::move(picture), std::move(warning));
  } catch (const std::bad_alloc&) {
    FailMemory(name);
  }
}

}  // namespace pixmosa
