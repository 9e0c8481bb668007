// Banners from typed text: the font reader and the layout.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace pixmosa {

// The one font in use. Texts are bytes of the 8-bit code page; numbers stay texts until they are used.
struct BasFigLet {
  std::string Height = "1", Baseline, MaxLength, OldLayout, CommentLines = "2";
  std::string Comment;  // each line preceded by CR LF
  std::string EndMark;  // stored, never used for cutting
  std::array<std::vector<std::string>, 256>
      Glyphs;                  // rows of each code, from the first; rows never loaded are missing
  std::int32_t TableRows = 0;  // rows that each code has in the table; set by a header
  std::int32_t NextCode = 32, NextRow = 1, LineNumber = 1;
  std::string Cabecera;  // the header's whole line, for the layout beside this one
  std::string Banner;    // as the panel shows it; not the reader's
};

// A header that cannot be parsed is reported through this; the load goes on.
using HeaderFailure = std::function<void(const std::string& text)>;

// Loads a font file, line by line where its lines end in CR LF or CR, as a whole where they end in LF alone.
// A file that cannot be read leaves the reset values and the glyphs of before.
void LoadFont(BasFigLet& font, const std::filesystem::path& file, const HeaderFailure& fail);

// The same from the bytes of a file.
void LoadFontBytes(BasFigLet& font, std::string_view bytes, const HeaderFailure& fail);

void ResetFontState(BasFigLet& font);

// Rows of a line of the banner; 0 where the height is no number of rows.
std::size_t FilasDeLetrero(const BasFigLet& font);

// The text as banner rows, each ended by CR LF. Glyphs stand edge to edge; every "$" becomes a blank.
std::string RenderBanner(const BasFigLet& font, std::string_view text);

}  // namespace pixmosa
