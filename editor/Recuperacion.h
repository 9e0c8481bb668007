// The drawing kept in a file of the user's while it is edited, for the next run if this one ends abruptly.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "editor/basEditor.h"

namespace pixmosa {

// The whole drawing as bytes: its canvas, inks, marks and the text that it was opened from.
std::string BytesDelDibujo(const BasEditor& editor);

// Makes the drawing of such bytes the editor's. False, with the editor as it was, for any others.
bool LeerDibujo(std::string_view bytes, BasEditor& editor);

// One file a process, in a folder that all share.
class Resguardo {
 public:
  // An empty folder keeps nothing.
  explicit Resguardo(std::filesystem::path folder) : folder_(std::move(folder)) {}

  // Writes the drawing whole or not at all. Throws FileError.
  void Guardar(const BasEditor& editor) const;

  // The editor was closed in order: removes this process's file.
  void Retirar() const;

  // Files of processes that are no longer there, the last written first.
  std::vector<std::filesystem::path> Huerfanos() const;

 private:
  std::filesystem::path folder_;
};

}  // namespace pixmosa
