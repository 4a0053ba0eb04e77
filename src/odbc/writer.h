#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "odbc/connection.h"

namespace db {

/// Writes records of one table: takes the fields one by one, then inserts or changes the record with a
/// statement that is kept for the next record with the same fields.
class OdbcWriter {
 public:
  /// What tells a record from the others: the engine's own key alone, or the values of all columns.
  using Key = std::vector<Value>;

  OdbcWriter(std::shared_ptr<OdbcConnection> connection, std::string table);

  const std::vector<ColumnDefinition>& columns() const { return columns_; }
  const std::string& table() const { return table_; }

  /// Forgets all fields.
  void clear() { fields_.clear(); }
  /// Takes a field. Raises Error, naming the column, where the table has no such column.
  void set(std::string_view name, const Value& value);
  /// Inserts a record of the fields taken.
  void insert();
  /// Puts the fields taken into the record with this key and returns the key that it has from then on. Raises
  /// Error where that record is gone.
  Key change(const Key& key);
  /// Deletes the record with this key. Raises Error where that record is gone.
  void remove(const Key& key);
  /// A statement that reads the record with this key, ready to run.
  OdbcStatement& reading(const Key& key);

 private:
  struct Field {
    std::size_t column;
    Value value;
  };
  /// What a column's type makes of a value.
  struct ColumnKind {
    std::string quotedName;
    bool texts = false;
    bool numbers = false;
  };
  struct Prepared {
    std::string sql;
    std::unique_ptr<OdbcStatement> statement;
  };

  std::size_t find(std::string_view name) const;
  OdbcStatement& prepared(const std::string& sql, bool reads = false);
  OdbcStatement& inserting();
  std::string insertSql() const;
  std::string changeSql() const;
  std::string condition(const Key& key) const;
  void bindKey(OdbcStatement& statement, std::size_t place, const Key& key) const;
  void bindFields(OdbcStatement& statement) const;
  Value stored(const Field& field) const;
  void requireOnlyRecord(const Key& key);
  void insertCopies(const Key& key, SQLLEN count);
  Error gone() const;

  std::shared_ptr<OdbcConnection> connection_;
  std::string table_;
  std::string quotedTable_;
  bool hasKeyColumn_;
  std::vector<ColumnDefinition> columns_;
  std::vector<ColumnKind> kinds_;  // by column
  std::vector<Field> fields_;
  std::vector<Prepared> prepared_;
  std::vector<std::size_t> insertColumns_;  // those of the last insertion: the next one mostly names the same
  OdbcStatement* insert_ = nullptr;         // for them
};

}  // namespace db
