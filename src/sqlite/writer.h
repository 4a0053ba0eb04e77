#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "sqlite/connection.h"

namespace db {

/// Writes records of one table: takes the fields one by one, then inserts or changes the record with a
/// statement that is kept for the next record with the same fields.
class SqliteWriter {
 public:
  SqliteWriter(std::shared_ptr<SqliteConnection> connection, std::string table);

  const std::vector<ColumnDefinition>& columns() const { return columns_; }
  const std::string& table() const { return table_; }

  /// Forgets all fields.
  void clear();
  /// Takes a field. Raises Error, naming the column, where the table has no such column.
  void set(std::string_view name, const Value& value);
  /// Inserts a record of the fields taken.
  void insert();
  /// Puts the fields taken into the record with this rowid. Raises Error where that record is gone.
  void change(std::int64_t rowid);
  /// Deletes the record with this rowid. Raises Error where that record is gone.
  void remove(std::int64_t rowid);

 private:
  /// A statement for one list of columns.
  struct Prepared {
    std::vector<std::size_t> columns;
    SqliteStatement statement;
  };

  std::size_t find(std::string_view name) const;
  sqlite3_stmt* prepared(std::vector<Prepared>& kept, std::string (SqliteWriter::*sql)() const);
  std::string insertSql() const;
  std::string changeSql() const;
  void bindFields(sqlite3_stmt* statement) const;
  int bind(sqlite3_stmt* statement, int parameter, std::size_t column) const;
  void requireChanged() const;

  std::shared_ptr<SqliteConnection> connection_;
  std::string table_;
  std::vector<ColumnDefinition> columns_;
  std::vector<bool> holdsTexts_;      // by column: a number written there is kept as its text
  std::vector<Value> values_;         // by column
  std::vector<bool> isSet_;           // by column
  std::vector<std::size_t> fields_;   // the columns set, in that order
  std::vector<std::size_t> earlier_;  // those of the record before: the next one mostly names the same
  std::vector<Prepared> inserts_;
  std::vector<Prepared> changes_;
  SqliteStatement remove_;
};

}  // namespace db
