// A plug-in that teaches the platform's picture readers the Windows metafile, drawn by libwmf. It is a
// plug-in so that the program starts without loading libwmf's many libraries.
#include <algorithm>
#include <cstdint>
#include <memory>

#include <QImageIOHandler>
#include <QImageIOPlugin>
#include <QVariant>

#include <libwmf/api.h>
#include <libwmf/gd.h>

namespace pixmosa {
namespace {

constexpr double kDotsPerInch = 96;
constexpr unsigned kLongestSide = 8192;
constexpr qint64 kLargestFile = 256 << 20;

// The placeable header, or a bare metafile header of type 1 or 2 with nine words.
bool LooksLikeWmf(const QByteArray& head) {
  if (head.startsWith(QByteArrayLiteral("\xD7\xCD\xC6\x9A"))) return true;
  return head.size() >= 6 && (head[0] == 1 || head[0] == 2) && head[1] == 0 && head[2] == 9 && head[3] == 0 &&
         head[4] == 0 && (head[5] == 1 || head[5] == 3);
}

// One metafile opened in memory and drawn on white.
class Metafile {
 public:
  explicit Metafile(const QByteArray& bytes) {
    wmfAPI_Options options{};
    options.function = wmf_gd_function;
    if (wmf_api_create(&api_,
                       WMF_OPT_FUNCTION | WMF_OPT_IGNORE_NONFATAL | WMF_OPT_NO_ERROR | WMF_OPT_NO_DEBUG,
                       &options) != wmf_E_None)
      return;
    auto* data = reinterpret_cast<unsigned char*>(const_cast<char*>(bytes.constData()));
    if (wmf_mem_open(api_, data, static_cast<long>(bytes.size())) != wmf_E_None) return;
    opened_ = true;
    wmfD_Rect box{};
    if (wmf_scan(api_, 0, &box) != wmf_E_None) return;
    unsigned w = 0, h = 0;
    if (wmf_display_size(api_, &w, &h, kDotsPerInch, kDotsPerInch) != wmf_E_None || w == 0 || h == 0) return;
    const double shrink = std::min(1.0, static_cast<double>(kLongestSide) / std::max(w, h));
    wmf_gd_t* gd = WMF_GD_GetData(api_);
    gd->flags |= WMF_GD_OUTPUT_MEMORY | WMF_GD_OWN_BUFFER;
    gd->type = wmf_gd_image;
    gd->bbox = box;
    gd->width = std::max(1U, static_cast<unsigned>(w * shrink));
    gd->height = std::max(1U, static_cast<unsigned>(h * shrink));
    if (wmf_play(api_, 0, &box) == wmf_E_None) Take(*gd);
  }

  ~Metafile() {
    if (opened_) wmf_mem_close(api_);
    if (api_) wmf_api_destroy(api_);
  }
  Metafile(const Metafile&) = delete;
  Metafile& operator=(const Metafile&) = delete;

  QImage Image() const { return image_; }

 private:
  void Take(const wmf_gd_t& gd) {
    const int* pixels = gd.gd_image ? wmf_gd_image_pixels(gd.gd_image) : nullptr;
    if (!pixels) return;
    const int w = static_cast<int>(gd.width), h = static_cast<int>(gd.height);
    image_ = QImage(w, h, QImage::Format_RGB32);
    for (int y = 0; y < h; ++y) {
      auto* to = reinterpret_cast<std::uint32_t*>(image_.scanLine(y));
      for (int x = 0; x < w; ++x) to[x] = static_cast<std::uint32_t>(*pixels++) | 0xFF000000U;
    }
  }

  wmfAPI* api_ = nullptr;
  bool opened_ = false;
  QImage image_;
};

class WmfHandler final : public QImageIOHandler {
 public:
  bool canRead() const override { return !done_ && LooksLikeWmf(device()->peek(6)); }

  bool read(QImage* image) override {
    Draw();
    *image = drawn_;
    return !drawn_.isNull();
  }

  bool supportsOption(ImageOption option) const override { return option == Size; }

  QVariant option(ImageOption option) const override {
    if (option != Size) return {};
    const_cast<WmfHandler*>(this)->Draw();
    return drawn_.isNull() ? QVariant() : drawn_.size();
  }

 private:
  void Draw() {
    if (done_) return;
    done_ = true;
    drawn_ = Metafile(device()->read(kLargestFile)).Image();
  }

  bool done_ = false;
  QImage drawn_;
};

}  // namespace

class WmfPlugin final : public QImageIOPlugin {
  Q_OBJECT
  Q_PLUGIN_METADATA(IID QImageIOHandlerFactoryInterface_iid FILE "wmf.json")

 public:
  Capabilities capabilities(QIODevice* device, const QByteArray& format) const override {
    if (format == "wmf") return CanRead;
    return format.isEmpty() && device && LooksLikeWmf(device->peek(6)) ? Capabilities(CanRead)
                                                                       : Capabilities();
  }

  QImageIOHandler* create(QIODevice* device, const QByteArray& format) const override {
    auto handler = std::make_unique<WmfHandler>();
    handler->setDevice(device);
    handler->setFormat(format.isEmpty() ? "wmf" : format);
    return handler.release();
  }
};

}  // namespace pixmosa

#include "WmfPlugin.moc"
