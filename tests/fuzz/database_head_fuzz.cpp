#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "db/database.h"
#include "open/open.h"
#include "support/temporary_folder.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

/// Opens the file and reads what tables it has; every failure is an error that names it.
void open(const std::string& file) {
  try {
    const auto database = db::openDatabase(file);
    database->damage();
    database->openRecordset("SELECT * FROM JobData");
    database->close();
  } catch (const db::Error& error) {
    require(std::string_view(error.what()).find(file) != std::string_view::npos);
  }
}

}  // namespace

/// Any bytes are taken as a job's file: a file is a database by its first bytes alone, and no file that is
/// none, or a damaged one, is more than an error. What stands behind the head of an Access file is its
/// driver's matter.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const test::TemporaryFolder folder;
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::string file = folder.write("job", bytes);
  const std::string_view behind = bytes.substr(size < 4 ? size : 4);
  const bool isAccess = behind.starts_with("Standard Jet DB") || behind.starts_with("Standard ACE DB");
  const bool isSqlite = bytes.starts_with(std::string_view("SQLite format 3\0", 16));
  require(db::isDatabase(file) == (isAccess || isSqlite));
  if (isSqlite || !isAccess) open(file);
  return 0;
}
