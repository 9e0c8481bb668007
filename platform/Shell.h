// The desktop around the program: opening things, the clipboard.
#pragma once

#include <string>
#include <string_view>

#include "platform/Picture.h"

namespace pixmosa {

class Shell {
 public:
  virtual ~Shell() = default;
  // Opens a file or a link with the program that the desktop has for it. False where there is none.
  virtual bool Open(const std::string& fileOrLink) = 0;
  // Starts the system's character map. False where there is none.
  virtual bool StartCharacterMap() = 0;
  // Puts plain text (8-bit code page) on the clipboard in place of what is there.
  virtual void CopyText(std::string_view text) = 0;
  // The same of UTF-8, for a text with characters that the code page lacks.
  virtual void CopyUtf8(std::string_view utf8) = 0;
  // Rich text, a fragment of HTML, with the same as plain text for programs that take no other; both UTF-8.
  virtual void CopyRichText(std::string_view html, std::string_view plain) = 0;
  virtual void CopyPicture(const Picture& picture) = 0;
  // The text on the clipboard as UTF-8; empty where there is none.
  virtual std::string ClipboardUtf8() = 0;
};

}  // namespace pixmosa
