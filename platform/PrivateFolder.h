// A folder for the program's own passing files, below a place where everybody may write. Uses the system's
// own file calls: the standard library cannot tell a folder's owner or lock it.
#pragma once

#include <filesystem>
#include <string>

namespace pixmosa {

class PrivateFolder {
 public:
  // Creates `parent`/`name` with access for nobody else, or takes over one that is this user's own, closed to
  // others, no link, and in use by no other running program. What cannot be trusted is left alone and a
  // folder `name`-XXXXXX is made. Folders of either name that a program left behind when it was ended are
  // emptied and removed first. Throws FileError where none can be made.
  PrivateFolder(const std::filesystem::path& parent, const std::string& name);

  // Deletes the files "*.bmp" and then the folder, if nothing else remains in it.
  ~PrivateFolder();
  PrivateFolder(const PrivateFolder&) = delete;
  PrivateFolder& operator=(const PrivateFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

 private:
  PrivateFolder() = default;
  static void RemoveOrphans(const std::filesystem::path& parent, const std::string& name);
  // Takes a folder and its lock, held as long as this lives; nothing where that cannot be.
  bool Take(const std::filesystem::path& path);

  std::filesystem::path path_;
  int lock_ = -1;
};

// Deletes the files of a folder whose names end in ".bmp", and those that were never finished. Errors are
// ignored.
void BorrarBmp(const std::filesystem::path& folder);

}  // namespace pixmosa
