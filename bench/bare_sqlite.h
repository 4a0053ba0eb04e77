#pragma once

#include <sqlite3.h>

#include <stdexcept>
#include <string>

#include "bare.h"

namespace bench {

/// SQLite with the settings it comes with.
class BareSqlite final : public Bare {
 public:
  explicit BareSqlite(const std::string& path) {
    check(sqlite3_open_v2(path.c_str(), &handle_, SQLITE_OPEN_READWRITE, nullptr));
  }
  ~BareSqlite() override { sqlite3_close(handle_); }
  BareSqlite(const BareSqlite&) = delete;
  BareSqlite& operator=(const BareSqlite&) = delete;

  std::size_t readAll(const std::string& sql) override {
    sqlite3_stmt* statement = prepare(sql);
    const int columns = sqlite3_column_count(statement);
    std::size_t bytes = 0;
    while (sqlite3_step(statement) == SQLITE_ROW)
      for (int i = 0; i < columns; ++i) bytes += readField(statement, i);
    sqlite3_finalize(statement);
    return bytes;
  }

  Records records(const std::string& sql) override {
    sqlite3_stmt* statement = prepare(sql);
    const int columns = sqlite3_column_count(statement);
    Records result;
    while (sqlite3_step(statement) == SQLITE_ROW) {
      result.emplace_back();
      for (int i = 0; i < columns; ++i) result.back().push_back(fieldText(statement, i));
    }
    sqlite3_finalize(statement);
    return result;
  }

  void replace(const std::string& table, const std::string& conditions, const Records& records) override {
    execute("BEGIN IMMEDIATE");
    execute("DELETE FROM " + table + conditions);
    sqlite3_stmt* statement =
        prepare(insertion(table, records.at(0).size(), [](std::size_t) { return std::string("?"); }));
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
  void execute(const std::string& sql) {
    check(sqlite3_exec(handle_, sql.c_str(), nullptr, nullptr, nullptr));
  }

  sqlite3_stmt* prepare(const std::string& sql) {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v2(handle_, sql.c_str(), -1, &statement, nullptr));
    return statement;
  }

  static std::size_t readField(sqlite3_stmt* statement, int column) {
    switch (sqlite3_column_type(statement, column)) {
      case SQLITE_NULL:
        return 0;
      case SQLITE_TEXT:
        sqlite3_column_text(statement, column);
        return static_cast<std::size_t>(sqlite3_column_bytes(statement, column));
      default:
        return sqlite3_column_double(statement, column) != 0 ? sizeof(double) : 0;
    }
  }

  static std::string fieldText(sqlite3_stmt* statement, int column) {
    const void* text = sqlite3_column_text(statement, column);
    return text == nullptr ? std::string() : std::string(static_cast<const char*>(text));
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
