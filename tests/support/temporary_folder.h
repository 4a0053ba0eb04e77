#pragma once

#include <filesystem>
#include <fstream>
#include <random>
#include <stdexcept>
#include <string>
#include <string_view>

namespace test {

/// A folder of its own for one test, gone with everything in it when the test is over.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device chance;
    do {
      folder_ = std::filesystem::temp_directory_path() / ("seikahyou-" + std::to_string(chance()));
    } while (!std::filesystem::create_directory(folder_));
  }
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(folder_, ignored);
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;

  /// The folder without a separator at its end, with "/" between folders (UTF-8).
  std::string path() const {
    const std::u8string text = folder_.generic_u8string();
    return {text.begin(), text.end()};
  }
  /// The path of `name` (UTF-8) in the folder.
  std::string path(std::string_view name) const { return path() + "/" + std::string(name); }

  /// Writes a file with exactly these bytes and returns its path.
  std::string write(std::string_view name, std::string_view bytes) const {
    std::ofstream file(folder_ / std::u8string(name.begin(), name.end()), std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path(name));
    return path(name);
  }

 private:
  std::filesystem::path folder_;
};

}  // namespace test
