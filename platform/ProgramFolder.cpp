#include "platform/ProgramFolder.h"

#include <cstdlib>
#include <system_error>

namespace pixmosa {

std::filesystem::path ProgramFolder() {
  namespace fs = std::filesystem;
  std::error_code ec;
  const fs::path executable = fs::read_symlink("/proc/self/exe", ec);
  fs::path folder = ec ? fs::current_path(ec) : executable.parent_path();
  if (fs::exists(folder / "Fonts", ec) || fs::exists(folder / "Paleta 3x2.txt", ec)) return folder;
  const fs::path share = folder.parent_path() / "share" / "pixmosa";
  return fs::is_directory(share, ec) ? share : folder;
}

std::vector<std::filesystem::path> FontFolders() {
  const char* data = std::getenv("XDG_DATA_HOME");
  const char* home = std::getenv("HOME");
  const std::filesystem::path share = data && *data
                                          ? std::filesystem::path(data)
                                          : std::filesystem::path(home ? home : "") / ".local" / "share";
  return {ProgramFolder() / "Fonts", share / "pixmosa" / "Fonts"};
}

}  // namespace pixmosa
