#include "open/copy.h"

#include "open/open.h"
#include "platform/files.h"
#include "sqlite/safe_copy.h"

namespace db {

bool copyByEngine(std::string_view from, std::string_view to) {
  if (kindOfFile(from) != FileKind::Sqlite) return false;
  std::error_code ignored;
  if (std::filesystem::exists(platform::nativePath(to), ignored))
    throw Error("「" + std::string(to) + "」はすでにあるため、そこに写せません。");
  copySqliteDatabase(from, to);
  return true;
}

}  // namespace db
