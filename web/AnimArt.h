// The animation page: one hidden block of character art for each frame and a script that shows them in turn.
#pragma once

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>

#include "platform/AtomicFile.h"

namespace pixmosa {

// Writes the page of `frames` frames, whole or not at all. `text(k)` gives the produced text of frame k
// (0-based, 8-bit code page, CR LF) and may let the window repaint; its "<" and ">" are replaced by their
// entities there, in the text it gives, and "&" stays. `face` is the font's name in the 8-bit code page.
// Throws FileError.
void EscribirAnimArt(const std::filesystem::path& file, std::size_t frames, const std::string& face,
                     const std::function<std::string&(std::size_t)>& text);

}  // namespace pixmosa
