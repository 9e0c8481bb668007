#include "platform/FolderLock.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include "platform/AtomicFile.h"

namespace pixmosa {

FolderLock::FolderLock(const std::filesystem::path& folder) {
  const auto fail = [&] {
    throw FileError("No se ha podido escribir en \"" + folder.string() + "\": " + RazonDelError(errno) + ".");
  };
  std::error_code ec;
  std::filesystem::create_directories(folder, ec);
  file_ = ::open((folder / ".pixmosa.lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0644);
  if (file_ < 0) fail();
  while (::flock(file_, LOCK_EX) != 0) {
    if (errno == EINTR) continue;
    ::close(file_);
    fail();
  }
}

FolderLock::~FolderLock() {
  ::close(file_);
}

}  // namespace pixmosa
