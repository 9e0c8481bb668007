// Picture files that the test hands out by name; any other file cannot be read.
#pragma once

#include <map>
#include <string>

#include "platform/PictureCodec.h"
#include "platform/Stretch.h"

namespace pixmosa::test {

class FakePictureCodec final : public PictureCodec {
 public:
  std::map<std::string, Picture> files;  // by the name without its folder

  Picture Read(const std::filesystem::path& file, std::string* = nullptr) override {
    return Named(file.filename().string());
  }
  Picture ReadBytes(std::string_view, const std::string& name, std::string* = nullptr) override {
    return Named(name);
  }
  Picture ReadReduced(const std::filesystem::path& file, const std::function<Extent(Extent)>& size,
                      std::string* = nullptr) override {
    size(Read(file).Size());
    return Read(file);
  }
  Picture ReadStretched(const std::filesystem::path& file, const std::function<Extent(Extent)>& size,
                        std::string* = nullptr) override {
    const Picture whole = Read(file);
    return Stretch(whole, size(whole.Size()));
  }
  // The frames named "1", "2", ..., a second each more than the one before.
  std::unique_ptr<LectorDeFotogramas> AbrirAnimacion(std::string, const std::string&) override {
    struct Lector final : LectorDeFotogramas {
      std::map<std::string, Picture>& files;
      int k = 0;
      explicit Lector(std::map<std::string, Picture>& all) : files(all) {}
      std::optional<Fotograma> Siguiente() override {
        const auto at = files.find(std::to_string(++k));
        if (at == files.end()) return std::nullopt;
        return Fotograma{at->second, k * 1000};
      }
      std::size_t Cuantos() const override { return files.size(); }
      Extent Tamaño() const override { return files.begin()->second.Size(); }
    };
    return std::make_unique<Lector>(files);
  }
  Extent Size(std::string_view) override { return {}; }
  std::vector<std::string> Formatos() override { return {"png"}; }
  std::vector<std::string> FormatosLegibles() override { return {"png"}; }
  std::string Encode(const Picture&, const std::string& format) override { return format; }

 private:
  Picture Named(const std::string& name) const {
    const auto at = files.find(name);
    if (at == files.end()) throw PictureError("No se ha podido leer \"" + name + "\".");
    return at->second;
  }
};

}  // namespace pixmosa::test
