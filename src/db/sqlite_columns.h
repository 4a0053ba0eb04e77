#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "db/sqlite_connection.h"

namespace db {

/// The columns of a statement's result by name.
class SqliteColumns {
 public:
  /// The columns of `statement`, which was prepared from the SELECT `sql`.
  SqliteColumns(sqlite3_stmt* statement, std::string sql);

  std::size_t count() const { return names_.size(); }

  /// The column of that name; "A.標高" asks for the one that comes from the table or alias A. Raises Error,
  /// naming the column, where there is none.
  Column find(std::string_view name, SqliteConnection& connection) const;

 private:
  /// Where a column of the result comes from; both "" where that is not one table.
  struct Origin {
    std::string table;
    std::string alias;
  };

  std::optional<Column> findPlain(std::string_view name) const;
  std::optional<Column> findQualified(std::string_view name, SqliteConnection& connection) const;
  std::vector<Origin> origins(SqliteConnection& connection) const;

  std::vector<std::string> names_;
  std::string sql_;
};

}  // namespace db
