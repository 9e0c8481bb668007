#include "platform/wmf/Metafile.h"

#include <algorithm>
#include <cstdint>

#include <libwmf/api.h>
#include <libwmf/gd.h>

namespace pixmosa {
namespace {

constexpr double kDotsPerInch = 96;
constexpr unsigned kLongestSide = 8192;

// One metafile opened in memory.
class Metafile {
 public:
  explicit Metafile(std::string_view bytes) {
    wmfAPI_Options options{};
    options.function = wmf_gd_function;
    if (wmf_api_create(&api_,
                       WMF_OPT_FUNCTION | WMF_OPT_IGNORE_NONFATAL | WMF_OPT_NO_ERROR | WMF_OPT_NO_DEBUG,
                       &options) != wmf_E_None)
      return;
    auto* data = reinterpret_cast<unsigned char*>(const_cast<char*>(bytes.data()));
    opened_ = wmf_mem_open(api_, data, static_cast<long>(bytes.size())) == wmf_E_None;
  }
  ~Metafile() {
    if (opened_) wmf_mem_close(api_);
    if (api_) wmf_api_destroy(api_);
  }
  Metafile(const Metafile&) = delete;
  Metafile& operator=(const Metafile&) = delete;

  Picture Dibujar() {
    wmfD_Rect box{};
    if (!opened_ || wmf_scan(api_, 0, &box) != wmf_E_None) return {};
    unsigned w = 0, h = 0;
    if (wmf_display_size(api_, &w, &h, kDotsPerInch, kDotsPerInch) != wmf_E_None || w == 0 || h == 0)
      return {};
    const double shrink = std::min(1.0, static_cast<double>(kLongestSide) / std::max(w, h));
    wmf_gd_t* gd = WMF_GD_GetData(api_);
    gd->flags |= WMF_GD_OUTPUT_MEMORY | WMF_GD_OWN_BUFFER;
    gd->type = wmf_gd_image;
    gd->bbox = box;
    gd->width = std::max(1U, static_cast<unsigned>(w * shrink));
    gd->height = std::max(1U, static_cast<unsigned>(h * shrink));
    return wmf_play(api_, 0, &box) == wmf_E_None ? Tomar(*gd) : Picture();
  }

 private:
  static Picture Tomar(const wmf_gd_t& gd) {
    const int* pixels = gd.gd_image ? wmf_gd_image_pixels(gd.gd_image) : nullptr;
    if (!pixels) return {};
    Picture picture(static_cast<int>(gd.width), static_cast<int>(gd.height));
    std::uint32_t* to = picture.Writable();
    for (std::size_t i = 0; i < picture.PixelCount(); ++i)
      to[i] = static_cast<std::uint32_t>(pixels[i]) | 0xFF000000U;
    return picture;
  }

  wmfAPI* api_ = nullptr;
  bool opened_ = false;
};

}  // namespace

Picture DibujarMetafile(std::string_view bytes) {
  return Metafile(bytes).Dibujar();
}

}  // namespace pixmosa
