#pragma once

#include <string>
#include <string_view>

namespace db {

/// How a database is reached.
struct OdbcSource {
  std::string connectionString;
  /// The driver takes texts in bytes alone, and unixODBC would spoil a wide connection string for it.
  bool narrow = false;
  std::string driver;  ///< its name; "" where a data source of the system names it
};

/// The way to an Access file: with Microsoft's driver, or what unixODBC offers for such files. Raises Error
/// where neither is installed.
OdbcSource accessSource(std::string_view path);

/// The way that the text of a file data source tells. `path` is its file, for descriptions. Raises Error
/// where the text has no [ODBC] section or its driver is not installed.
OdbcSource fileSource(std::string_view path, std::string_view content);

}  // namespace db
