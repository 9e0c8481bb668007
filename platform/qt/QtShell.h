// The desktop's opener, clipboard and character map.
#pragma once

#include "platform/Shell.h"

namespace pixmosa {

class QtShell final : public Shell {
 public:
  bool Open(const std::string& fileOrLink) override;
  bool StartCharacterMap() override;
  void CopyText(std::string_view text) override;
  void CopyUtf8(std::string_view utf8) override;
  void CopyRichText(std::string_view html, std::string_view plain) override;
  void CopyPicture(const Picture& picture) override;
  std::string ClipboardUtf8() override;
};

}  // namespace pixmosa
