#include "sqlite/safe_copy.h"

#include "platform/files.h"
#include "sqlite/connection.h"

namespace db {

void copySqliteDatabase(std::string_view from, std::string_view to) {
  SqliteConnection source(from);
  try {
    SqliteConnection target(to, true);
    source.copyInto(target);
    target.close();
  } catch (const Error&) {
    if (platform::isFile(to)) platform::removeFile(to);
    throw;
  }
}

}  // namespace db
