// Picture files through the platform's readers and writers: every format it knows, and WMF by the plug-in
// beside the program. Needs a QCoreApplication for the plug-in to be found.
#pragma once

#include "platform/PictureCodec.h"

namespace pixmosa {

class QtPictureCodec final : public PictureCodec {
 public:
  QtPictureCodec();

  Picture Read(const std::filesystem::path& file) override;
  Picture ReadBytes(const std::string& bytes, const std::string& name) override;
  Picture ReadStretched(const std::filesystem::path& file,
                        const std::function<Extent(Extent)>& size) override;
  std::string Encode(const Picture& picture, const std::string& format) override;
};

}  // namespace pixmosa
