#pragma once

#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>

namespace test {

/// A folder of its own for one test, gone with everything in it when the test is over.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "seikahyou-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder: " + name);
    folder_ = name;
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// The folder without a separator at its end.
  std::string path() const { return folder_.string(); }
  /// The path of `name` (UTF-8) in the folder.
  std::string path(std::string_view name) const { return path() + "/" + std::string(name); }

  /// Writes a file with exactly these bytes and returns its path.
  std::string write(std::string_view name, std::string_view bytes) const {
    std::ofstream file(path(name), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path(name));
    return path(name);
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace test
