#include "odbc/source.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <vector>

#include "db/database.h"
#include "odbc/data_source.h"
#include "odbc/handle.h"
#include "platform/files.h"
#include "text/padding.h"

namespace db {
namespace {

/// Every driver that the machine offers programs of this bitness; their names are ASCII.
std::vector<std::string> installedDrivers() {
  const auto environment = odbcEnvironment();
  std::vector<std::string> result;
  SQLUSMALLINT direction = SQL_FETCH_FIRST;
  for (;; direction = SQL_FETCH_NEXT) {
    std::string name(256, '\0');
    std::string attributes(1024, '\0');
    SQLSMALLINT length = 0;
    const SQLRETURN code = SQLDrivers(environment.get(), direction, reinterpret_cast<SQLCHAR*>(name.data()),
                                      static_cast<SQLSMALLINT>(name.size()), &length,
                                      reinterpret_cast<SQLCHAR*>(attributes.data()),
                                      static_cast<SQLSMALLINT>(attributes.size()), &length);
    if (!SQL_SUCCEEDED(code)) return result;
    result.emplace_back(name.c_str());
  }
}

bool isInstalled(const std::vector<std::string>& drivers, std::string_view name) {
  return std::any_of(drivers.begin(), drivers.end(),
                     [name](const std::string& one) { return text::equalIgnoringCase(one, name); });
}

Error missingDriver(std::string_view path, std::string_view driver) {
  const std::string bits = std::to_string(sizeof(void*) * 8);
  return Error("データベース「" + std::string(path) + "」を開くための ODBC ドライバー「" +
                   std::string(driver) + "」がありません。このプログラムと同じ " + bits +
                   " ビット版のドライバーが必要です。",
               Cause::NoDriver);
}

/// The path as drivers take it: absolute, in the platform's form.
std::string driverPath(std::string_view path) {
  std::error_code ignored;
  return platform::pathText(std::filesystem::absolute(platform::nativePath(path), ignored));
}

bool holdsIgnoringCase(std::string_view text, std::string_view part) {
  for (std::size_t i = 0; i + part.size() <= text.size(); ++i)
    if (text::equalIgnoringCase(text.substr(i, part.size()), part)) return true;
  return false;
}

/// True for the drivers without wide functions; on Windows the driver manager itself converts for them.
bool isNarrow([[maybe_unused]] std::string_view driver) {
#ifdef _WIN32
  return false;
#else
  return holdsIgnoringCase(driver, "sqlite") || holdsIgnoringCase(driver, "mdb");
#endif
}

/// What a driver has to be told so that it behaves as job databases do.
void addSettings(DataSource& source, std::string_view driver) {
  if (holdsIgnoringCase(driver, "sqlite")) {
    source.setDefault("NoCreat", "1");
    source.setDefault("Timeout", "3000");
    source.setDefault("StepAPI", "1");
  }
  if (holdsIgnoringCase(driver, "postgres") || holdsIgnoringCase(driver, "psqlodbc"))
    source.setDefault("Protocol", "7.4-0");  // failures are undone here, statement by statement
}

}  // namespace

OdbcSource accessSource(std::string_view path) {
  static constexpr std::array<std::string_view, 3> fitting = {"Microsoft Access Driver (*.mdb, *.accdb)",
                                                              "Microsoft Access Driver (*.mdb)", "MDBTools"};
  const std::vector<std::string> drivers = installedDrivers();
  for (const std::string_view driver : fitting) {
    if (!isInstalled(drivers, driver)) continue;
    DataSource source;
    source.setDefault("DRIVER", driver);
    source.setDefault("DBQ", driverPath(path));
    return {source.connectionString(), isNarrow(driver), std::string(driver)};
  }
  throw missingDriver(path, fitting[0]);
}

OdbcSource fileSource(std::string_view path, std::string_view content) {
  DataSource source = readDataSource(content);
  const std::string driver = source.value("DRIVER");
  if (driver.empty() && source.value("DSN").empty())
    throw Error("「" + std::string(path) + "」は ODBC のファイルデータソースではありません。");
  const bool library = driver.find('/') != std::string::npos || driver.find('\\') != std::string::npos;
  if (library && !platform::isFile(driver)) throw missingDriver(path, driver);
  if (!driver.empty() && !library && !isInstalled(installedDrivers(), driver))
    throw missingDriver(path, driver);
  addSettings(source, driver);
  return {source.connectionString(), isNarrow(driver), std::string(driver)};
}

}  // namespace db
