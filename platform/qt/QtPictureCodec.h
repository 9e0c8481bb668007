// Picture files through the platform's readers and writers. The common kinds (PNG, JPEG, GIF, BMP and the
// plain ones) are read here; every other one (SVG, WMF, icons, ...) by the decoding process. Needs a
// QCoreApplication for the readers to be found.
#pragma once

#include <optional>
#include <utility>

#include "platform/PictureCodec.h"

namespace pixmosa {

class QtPictureCodec : public PictureCodec {
 public:
  // `mientras` is called about every 15 ms while the decoding process works. `decodificador` is its program;
  // without one, the program that ships with this one.
  explicit QtPictureCodec(std::function<void()> mientras = {}, std::filesystem::path decodificador = {});

  Picture Read(const std::filesystem::path& file, std::string* aviso = nullptr) override;
  Picture ReadBytes(std::string_view bytes, const std::string& name, std::string* aviso = nullptr) override;
  Picture ReadReduced(const std::filesystem::path& file, const std::function<Extent(Extent)>& size,
                      std::string* aviso = nullptr) override;
  Picture ReadStretched(const std::filesystem::path& file, const std::function<Extent(Extent)>& size,
                        std::string* aviso = nullptr) override;
  std::unique_ptr<LectorDeFotogramas> AbrirAnimacion(std::string bytes, const std::string& name) override;
  Extent Size(std::string_view bytes) override;
  std::string Encode(const Picture& picture, const std::string& format) override;
  std::vector<std::string> Formatos() override;
  std::vector<std::string> FormatosLegibles() override;

 private:
  using QuickReader = std::optional<Picture>(std::string_view, const std::function<Extent(Extent)>&);
  // `quick` where it can, bounded; else `otherwise` of the whole picture.
  Picture ReadQuickly(const std::filesystem::path& file, QuickReader* quick,
                      const std::function<Extent(Extent)>& size, std::string* aviso,
                      const std::function<Picture(const Picture&)>& otherwise);
  Picture LeerAparte(std::string_view bytes, const std::string& name, std::string* aviso);

  std::function<void()> mientras_;
  std::filesystem::path decodificador_;
};

}  // namespace pixmosa
