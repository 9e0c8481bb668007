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
