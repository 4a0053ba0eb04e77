#include "platform/files.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <fstream>

#include "text/error.h"

namespace platform {
namespace {

constexpr std::string_view utf8Mark = "\xEF\xBB\xBF";

std::u8string utf8(std::string_view text) { return {text.begin(), text.end()}; }

}  // namespace

std::filesystem::path nativePath(std::string_view path) {
  std::u8string text = utf8(path);
#ifndef _WIN32
  std::replace(text.begin(), text.end(), u8'\\', u8'/');
#endif
  return {text};
}

std::string pathText(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

bool isFile(std::string_view path) {
  std::error_code ignored;
  return std::filesystem::is_regular_file(nativePath(path), ignored);
}

bool isFolder(std::string_view path) {
  std::error_code ignored;
  return std::filesystem::is_directory(nativePath(path), ignored);
}

std::optional<std::string> firstLine(std::string_view path) {
  std::ifstream file(nativePath(path), std::ios::binary);
  if (!file) return std::nullopt;
  std::string line;
  std::getline(file, line);
  if (file.bad()) return std::nullopt;
  if (line.starts_with(utf8Mark)) line.erase(0, utf8Mark.size());
  line.erase(std::min(line.find('\r'), line.size()));
  return line;
}

std::optional<std::string> readFile(std::string_view path) {
  std::ifstream file(nativePath(path), std::ios::binary);
  if (!file) return std::nullopt;
  std::string content;
  std::array<char, 65536> block;
  do {
    file.read(block.data(), block.size());
    content.append(block.data(), static_cast<std::size_t>(file.gcount()));
  } while (file);
  if (file.bad()) return std::nullopt;
  return content;
}

bool isSameFile(std::string_view path, std::string_view other) {
  std::error_code ignored;
  return std::filesystem::equivalent(nativePath(path), nativePath(other), ignored);
}

void writeFile(std::string_view path, std::string_view content) {
  const std::filesystem::path target = nativePath(path);
  const std::filesystem::path growing = nativePath(std::string(path) + ".part");
  std::ofstream file(growing, std::ios::binary);
  file.write(content.data(), static_cast<std::streamsize>(content.size()));
  file.close();
  std::error_code error;
  if (file) std::filesystem::rename(growing, target, error);
  if (file && !error) return;
  std::filesystem::remove(growing, error);
  throw text::RuntimeError(text::ErrorCode::PathNotFound);
}

void makeFolder(std::string_view path) {
  std::error_code error;
  std::filesystem::create_directories(nativePath(path), error);
  if (!isFolder(path)) throw text::RuntimeError(text::ErrorCode::PathNotFound);
}

void copyFile(std::string_view from, std::string_view to) {
  if (!isFile(from)) throw text::RuntimeError(text::ErrorCode::FileNotFound);
  std::error_code error;
  std::filesystem::copy_file(nativePath(from), nativePath(to),
                             std::filesystem::copy_options::overwrite_existing, error);
  if (error) throw text::RuntimeError(text::ErrorCode::PathNotFound);
}

void removeFile(std::string_view path) {
  std::error_code error;
  if (isFolder(path) || !std::filesystem::remove(nativePath(path), error))
    throw text::RuntimeError(text::ErrorCode::FileNotFound);
}

}  // namespace platform
