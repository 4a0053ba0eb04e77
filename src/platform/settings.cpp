#include "platform/settings.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <utility>

#include "platform/file_lock.h"
#include "platform/files.h"
#include "text/error.h"

#ifdef _WIN32
#include "platform/wide.h"
#endif

namespace platform {
namespace {

/// A setting is one line of the file: line ends within a text are written as "\n", "\" as "\\".
std::string oneLine(std::string_view text) {
  std::string line;
  for (const char c : text) {
    if (c == '\\' || c == '\n') line += '\\';
    line += c == '\n' ? 'n' : c;
  }
  return line;
}

std::string wholeText(std::string_view line) {
  std::string text;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const bool escaped = line[i] == '\\' && i + 1 < line.size();
    if (escaped) ++i;
    text += escaped && line[i] == 'n' ? '\n' : line[i];
  }
  return text;
}

/// What a damaged file holds is rarely a key.
bool isKey(std::string_view text) {
  return !text.empty() && std::all_of(text.begin(), text.end(), [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '.' || c == '-';
  });
}

#ifdef _WIN32
std::string userFolder() {
  const wchar_t* const folder = _wgetenv(L"APPDATA");
  return folder == nullptr ? std::string() : utf8(folder);
}
#else
/// The system's rule: a relative path in $XDG_CONFIG_HOME does not count.
std::string userFolder() {
  const char* const folder = std::getenv("XDG_CONFIG_HOME");
  if (folder != nullptr && *folder == '/') return folder;
  const char* const home = std::getenv("HOME");
  return home == nullptr || *home == '\0' ? std::string() : std::string(home) + "/.config";
}
#endif

}  // namespace

Settings::Settings(std::string file) : file_(std::move(file)) { read(); }

/// Lines that are none of ours are passed over; what was put here stands above what the file says. A file
/// that cannot be read just now changes nothing.
void Settings::read() {
  const auto content = file_.empty() ? std::nullopt : readFile(file_);
  if (content) texts_.clear();
  std::string_view rest = content ? std::string_view(*content) : std::string_view();
  while (!rest.empty()) {
    const std::string_view line = rest.substr(0, rest.find('\n'));
    rest.remove_prefix(std::min(line.size() + 1, rest.size()));
    const std::size_t equals = line.find('=');
    if (equals == std::string_view::npos || !isKey(line.substr(0, equals))) continue;
    texts_.insert_or_assign(std::string(line.substr(0, equals)), wholeText(line.substr(equals + 1)));
  }
  for (const auto& [key, text] : own_) {
    if (text)
      texts_.insert_or_assign(key, *text);
    else
      texts_.erase(key);
  }
}

std::string Settings::text(std::string_view key, std::string_view otherwise) const {
  const auto found = texts_.find(key);
  return found == texts_.end() ? std::string(otherwise) : found->second;
}

int Settings::number(std::string_view key, int otherwise) const {
  const auto found = texts_.find(key);
  if (found == texts_.end()) return otherwise;
  const char* const end = found->second.data() + found->second.size();
  int number = 0;
  const auto [stop, error] = std::from_chars(found->second.data(), end, number);
  return error == std::errc() && stop == end ? number : otherwise;
}

bool Settings::set(std::string_view key, std::string_view text) {
  const auto found = texts_.find(key);
  if (found != texts_.end() && found->second == text) return true;
  own_.insert_or_assign(std::string(key), std::string(text));
  return write();
}

bool Settings::erase(std::string_view key) {
  if (!texts_.contains(key)) return true;
  own_.insert_or_assign(std::string(key), std::nullopt);
  return write();
}

/// Nobody else writes between the reading and the writing.
bool Settings::write() {
  read();
  if (file_.empty()) return true;
  try {
    makeFolder(pathText(nativePath(file_).parent_path()));
    const FileLock lock(file_ + ".lock");
    read();
    std::string content;
    for (const auto& [name, value] : texts_) content += name + "=" + oneLine(value) + "\n";
    writeFile(file_, content);
    return true;
  } catch (const text::RuntimeError&) {
    return false;
  }
}

std::vector<std::string> Settings::keys(std::string_view prefix) const {
  std::vector<std::string> result;
  for (auto at = texts_.lower_bound(prefix); at != texts_.end() && at->first.starts_with(prefix); ++at)
    result.push_back(at->first);
  return result;
}

std::string settingsFile() {
  const std::string folder = userFolder();
  return folder.empty() ? folder : folder + "/seikahyou/settings.txt";
}

}  // namespace platform
