#pragma once

#include <string>
#include <string_view>

namespace db {

/// The ODBC connection string for an Access file: with Microsoft's driver, or what unixODBC offers for such
/// files. Raises Error where neither is installed.
std::string accessConnection(std::string_view path);

/// The ODBC connection string that the text of a file data source stands for. `path` is its file, for
/// descriptions. Raises Error where the text has no [ODBC] section or its driver is not installed.
std::string dataSourceConnection(std::string_view path, std::string_view content);

}  // namespace db
