#pragma once

#include <sqlite3.h>

#include <cstddef>
#include <stdexcept>
#include <string>
#include <vector>

namespace bench {

/// SQLite as thin as it gets: what the program's own work is compared with.
class BareSqlite {
 public:
  explicit BareSqlite(const std::string& path) {
    check(sqlite3_open_v2(path.c_str(), &handle_, SQLITE_OPEN_READWRITE, nullptr));
  }
  ~BareSqlite() { sqlite3_close(handle_); }
  BareSqlite(const BareSqlite&) = delete;
  BareSqlite& operator=(const BareSqlite&) = delete;

  void execute(const char* sql) { check(sqlite3_exec(handle_, sql, nullptr, nullptr, nullptr)); }

  /// Reads every column of every record. Returns the bytes seen.
  std::size_t readAll(const std::string& sql) {
    sqlite3_stmt* statement = prepare(sql);
    const int columns = sqlite3_column_count(statement);
    std::size_t bytes = 0;
    while (sqlite3_step(statement) == SQLITE_ROW)
      for (int i = 0; i < columns; ++i)
        if (sqlite3_column_text(statement, i) != nullptr)
          bytes += static_cast<std::size_t>(sqlite3_column_bytes(statement, i));
    sqlite3_finalize(statement);
    return bytes;
  }

  /// Deletes with one statement and inserts these records with another, in one transaction. "" goes in as
  /// Null.
  void replace(const char* deletion, const std::string& insertion,
               const std::vector<std::vector<std::string>>& records) {
    execute("BEGIN IMMEDIATE");
    execute(deletion);
    sqlite3_stmt* statement = prepare(insertion);
    for (const auto& record : records) {
      int at = 0;
      for (const std::string& field : record) bind(statement, ++at, field);
      if (sqlite3_step(statement) != SQLITE_DONE) throw std::runtime_error(sqlite3_errmsg(handle_));
      sqlite3_reset(statement);
    }
    sqlite3_finalize(statement);
    execute("COMMIT");
  }

 private:
  sqlite3_stmt* prepare(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr));
    return statement;
  }

  static void bind(sqlite3_stmt* statement, int at, const std::string& field) {
    if (field.empty())
      sqlite3_bind_null(statement, at);
    else
      sqlite3_bind_text(statement, at, field.data(), static_cast<int>(field.size()), SQLITE_STATIC);
  }

  void check(int status) const {
    if (status != SQLITE_OK) throw std::runtime_error(sqlite3_errmsg(handle_));
  }

  sqlite3* handle_ = nullptr;
};

}  // namespace bench
