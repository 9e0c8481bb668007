#include "platform/PrivateFolder.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include "platform/AtomicFile.h"

namespace pixmosa {
namespace fs = std::filesystem;
namespace {

// The open folder is still the one of this name: its last user may have removed it meanwhile.
bool StandsAt(const fs::path& path, const struct stat& folder) {
  struct stat now {};
  return ::lstat(path.c_str(), &now) == 0 && now.st_dev == folder.st_dev && now.st_ino == folder.st_ino;
}

}  // namespace

void BorrarBmp(const fs::path& folder) {
  std::error_code ec;
  std::vector<fs::path> files;
  for (fs::directory_iterator at(folder, ec), end; !ec && at != end; at.increment(ec))
    if (at->path().extension() == ".bmp") files.push_back(at->path());
  for (const fs::path& file : files) fs::remove(file, ec);
}

PrivateFolder::PrivateFolder(const fs::path& parent, const std::string& name) {
  if (Take(parent / name)) return;
  std::string other = (parent / (name + "-XXXXXX")).string();
  if (!::mkdtemp(other.data()) || !Take(other))
    throw FileError("No se ha podido crear una carpeta en \"" + parent.string() +
                    "\": " + RazonDelError(errno) + ".");
}

bool PrivateFolder::Take(const fs::path& path) {
  if (::mkdir(path.c_str(), S_IRWXU) != 0 && errno != EEXIST) return false;
  const int folder = ::open(path.c_str(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
  if (folder < 0) return false;
  struct stat about {};
  const bool mine = ::fstat(folder, &about) == 0 && about.st_uid == ::geteuid() && (about.st_mode & 077) == 0;
  if (!mine || ::flock(folder, LOCK_EX | LOCK_NB) != 0 || !StandsAt(path, about)) {
    ::close(folder);
    return false;
  }
  lock_ = folder;
  path_ = path;
  return true;
}

PrivateFolder::~PrivateFolder() {
  BorrarBmp(path_);
  std::error_code ec;
  fs::remove(path_, ec);
  ::close(lock_);
}

}  // namespace pixmosa
