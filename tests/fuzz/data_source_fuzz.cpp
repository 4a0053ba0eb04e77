#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "odbc/data_source.h"

namespace {

using Keys = std::vector<std::pair<std::string, std::string>>;

void require(bool holds) {
  if (!holds) std::abort();
}

/// The value that begins at `at` in a connection string, which goes behind its semicolon.
std::string takeValue(std::string_view text, std::size_t& at) {
  std::string value;
  const bool inBraces = at < text.size() && text[at] == '{';
  if (inBraces) ++at;
  for (; at < text.size(); ++at) {
    if (!inBraces && text[at] == ';') break;
    if (inBraces && text[at] == '}') {
      ++at;
      if (at >= text.size() || text[at] != '}') break;
    }
    value += text[at];
  }
  require(at < text.size() && text[at] == ';');
  ++at;
  return value;
}

/// The keys of a connection string as a driver manager reads them.
Keys keysOf(std::string_view text) {
  Keys keys;
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t equals = text.find('=', at);
    require(equals != std::string_view::npos && equals > at);
    std::string key(text.substr(at, equals - at));
    at = equals + 1;
    std::string value = takeValue(text, at);
    keys.emplace_back(std::move(key), std::move(value));
  }
  return keys;
}

}  // namespace

/// Any bytes are taken as a file data source: what a driver manager reads from the connection string is each
/// key once with its value, and nothing that a value has smuggled in.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const db::DataSource source =
      db::readDataSource(std::string_view(reinterpret_cast<const char*>(data), size));
  std::string again = "[ODBC]\n";
  for (const auto& [key, value] : keysOf(source.connectionString())) {
    require(source.value(key) == value);
    require(value.find('\n') == std::string::npos);
    again += key + "={" + value + "}\n";
  }
  require(db::readDataSource(again).connectionString() == source.connectionString());
  return 0;
}
