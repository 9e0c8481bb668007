// A folder of its own for a test, gone afterwards.
#pragma once

#include <filesystem>
#include <string>
#include <unistd.h>

namespace pixmosa::test {

class TestFolder {
 public:
  TestFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "pixmosa-prueba-XXXXXX").string();
    if (::mkdtemp(name.data())) path_ = name;
  }
  ~TestFolder() {
    std::error_code ec;
    std::filesystem::remove_all(path_, ec);
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }
  std::string File(const std::string& name) const { return (path_ / name).string(); }

 private:
  std::filesystem::path path_;
};

}  // namespace pixmosa::test
