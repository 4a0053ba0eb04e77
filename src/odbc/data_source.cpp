#include "odbc/data_source.h"

#include "text/padding.h"

namespace db {
namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// A value without the braces that may stand around it.
std::string_view withoutBraces(std::string_view value) {
  if (value.size() >= 2 && value.front() == '{' && value.back() == '}')
    return value.substr(1, value.size() - 2);
  return value;
}

/// True for what may be the key of a connection; with other characters it would part the text.
bool isKey(std::string_view text) {
  return !text.empty() && text.find_first_of("[]{}(),;?*=!@\\") == std::string_view::npos;
}

std::string inBraces(const std::string& value) {
  std::string result = "{";
  for (const char c : value) result.append(c == '}' ? 2 : 1, c);
  return result + '}';
}

/// The first line of `content`, which is moved behind it.
std::string_view takeLine(std::string_view& content) {
  const std::size_t end = content.find('\n');
  std::string_view line = content.substr(0, end);
  content.remove_prefix(end == std::string_view::npos ? content.size() : end + 1);
  while (line.ends_with('\r')) line.remove_suffix(1);
  return text::trimmed(line);
}

}  // namespace

std::string DataSource::value(std::string_view key) const {
  for (const auto& [known, value] : keys_)
    if (text::equalIgnoringCase(known, key)) return value;
  return {};
}

void DataSource::setDefault(std::string_view key, std::string_view value) {
  for (auto& [known, present] : keys_) {
    if (!text::equalIgnoringCase(known, key)) continue;
    if (present.empty()) present = value;
    return;
  }
  keys_.emplace_back(key, value);
}

std::string DataSource::connectionString() const {
  std::string result;
  for (const auto& [key, value] : keys_) {
    const bool plain =
        value.find_first_of("[]{}(),;?*=!@") == std::string::npos && !text::equalIgnoringCase(key, "DRIVER");
    result += key + "=" + (plain ? value : inBraces(value)) + ";";
  }
  return result;
}

DataSource readDataSource(std::string_view content) {
  if (content.starts_with(byteOrderMark)) content.remove_prefix(byteOrderMark.size());
  DataSource result;
  bool inside = false;
  while (!content.empty()) {
    const std::string_view line = takeLine(content);
    if (line.empty() || line.front() == ';' || line.front() == '#') continue;
    if (line.front() == '[') inside = text::equalIgnoringCase(line, "[ODBC]");
    const std::size_t equals = line.find('=');
    if (!inside || equals == std::string_view::npos) continue;
    const std::string_view key = text::trimmed(line.substr(0, equals));
    if (isKey(key)) result.setDefault(key, withoutBraces(text::trimmed(line.substr(equals + 1))));
  }
  return result;
}

}  // namespace db
