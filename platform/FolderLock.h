// One at a time in a folder, whatever the number of processes and threads. Uses the system's own file calls:
// the standard library has no such lock.
#pragma once

#include <filesystem>

namespace pixmosa {

class FolderLock {
 public:
  // Makes the folder if it is missing and waits until nobody else holds it. Throws FileError where files
  // cannot be written there.
  explicit FolderLock(const std::filesystem::path& folder);

  // Lets go. The lock file stays: to remove it would let two in at once.
  ~FolderLock();
  FolderLock(const FolderLock&) = delete;
  FolderLock& operator=(const FolderLock&) = delete;

 private:
  int file_;
};

}  // namespace pixmosa
