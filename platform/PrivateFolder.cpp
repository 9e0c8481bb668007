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

constexpr std::string_view kRandomEnding = "-XXXXXX";
constexpr int kTries = 100;

// The open folder is still the one of this name: its last user may have removed it meanwhile.
bool StandsAt(const fs::path& path, const struct stat& folder) {
  struct stat now {};
  return ::lstat(path.c_str(), &now) == 0 && now.st_dev == folder.st_dev && now.st_ino == folder.st_ino;
}

// A frame, or one that was never finished: ".Fotograma 01.bmp.0a1b2c3d.tmp".
bool EsBmp(const fs::path& file) {
  const std::string name = file.filename().string();
  return name.ends_with(".bmp") ||
         (name.starts_with('.') && name.ends_with(".tmp") && name.find(".bmp.") != std::string::npos);
}

}  // namespace

void BorrarBmp(const fs::path& folder) {
  std::error_code ec;
  std::vector<fs::path> files;
  for (fs::directory_iterator at(folder, ec), end; !ec && at != end; at.increment(ec))
    if (EsBmp(at->path())) files.push_back(at->path());
  for (const fs::path& file : files) fs::remove(file, ec);
}

PrivateFolder::PrivateFolder(const fs::path& parent, const std::string& name) {
  RemoveOrphans(parent, name);
  if (::mkdir((parent / name).c_str(), S_IRWXU) == 0 || errno == EEXIST)
    if (Take(parent / name)) return;
  // Another program that starts may clear a new folder before it is locked.
  for (int i = 0; i < kTries; ++i) {
    std::string other = (parent / (name + std::string(kRandomEnding))).string();
    if (!::mkdtemp(other.data())) break;
    if (Take(other)) return;
  }
  throw FileError("No se ha podido crear una carpeta en \"" + parent.string() +
                  "\": " + RazonDelError(errno) + ".");
}

void PrivateFolder::RemoveOrphans(const fs::path& parent, const std::string& name) {
  std::error_code ec;
  std::vector<fs::path> left;
  for (fs::directory_iterator at(parent, ec), end; !ec && at != end; at.increment(ec)) {
    const std::string found = at->path().filename().string();
    if (found == name ||
        (found.size() == name.size() + kRandomEnding.size() && found.starts_with(name + kRandomEnding[0])))
      left.push_back(at->path());
  }
  for (const fs::path& path : left) {
    PrivateFolder orphan;
    orphan.Take(path);
  }
}

bool PrivateFolder::Take(const fs::path& path) {
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
  if (lock_ < 0) return;
  BorrarBmp(path_);
  std::error_code ec;
  fs::remove(path_, ec);
  ::close(lock_);
}

}  // namespace pixmosa
