#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace db {

/// The keys of an ODBC connection with their values, in their order. Keys are found whatever their letter
/// case.
class DataSource {
 public:
  /// The value of a key; "" where there is none.
  std::string value(std::string_view key) const;
  /// Sets a key that has no value yet.
  void setDefault(std::string_view key, std::string_view value);
  /// "KEY=value;" one behind the other; values with special characters stand in braces.
  std::string connectionString() const;

 private:
  std::vector<std::pair<std::string, std::string>> keys_;
};

/// The [ODBC] section of a file data source (the content of a *.dsn file, UTF-8 with or without its mark);
/// without any key where the text has no such section.
DataSource readDataSource(std::string_view content);

}  // namespace db
