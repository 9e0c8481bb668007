#include "platform/ProgramFolder.h"

#include <cstdlib>
#include <pwd.h>
#include <system_error>
#include <unistd.h>

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

namespace {

// The user's own folder; empty where the system knows of none.
std::filesystem::path Home() {
  if (const char* home = std::getenv("HOME"); home && *home == '/') return home;
  const passwd* user = ::getpwuid(::geteuid());
  return user && user->pw_dir && *user->pw_dir == '/' ? user->pw_dir : "";
}

// Where the user's data lies. A relative path would mean another folder at every start.
std::filesystem::path DataHome() {
  if (const char* data = std::getenv("XDG_DATA_HOME"); data && *data == '/') return data;
  const std::filesystem::path home = Home();
  return home.empty() ? home : home / ".local" / "share";
}

}  // namespace

std::vector<std::filesystem::path> FontFolders() {
  std::vector<std::filesystem::path> folders{ProgramFolder() / "Fonts"};
  if (const std::filesystem::path data = DataHome(); !data.empty())
    folders.push_back(data / "pixmosa" / "Fonts");
  return folders;
}

std::filesystem::path RecipeFolder() {
  const std::filesystem::path data = DataHome();
  return data.empty() ? data : data / "pixmosa" / "recetas";
}

std::filesystem::path DrawingFolder() {
  const std::filesystem::path data = DataHome();
  return data.empty() ? data : data / "pixmosa" / "dibujos";
}

}  // namespace pixmosa
