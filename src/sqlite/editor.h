#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "sql/result_columns.h"
#include "sqlite/writer.h"

namespace db {

/// The records of one table that a SELECT yields, for deleting, adding and changing them. Only their rowids
/// are kept; a record is read when one of its fields is asked for.
class SqliteEditor final : public Recordset {
 public:
  /// `sql` is "SELECT * FROM one table [WHERE …] [ORDER BY …]" in SQLite's own form. Stands on the first
  /// record.
  SqliteEditor(std::shared_ptr<SqliteConnection> connection, const std::string& sql);

  bool eof() const override { return at_ >= rowids_.size(); }
  void moveNext() override;
  Column column(std::string_view name) const override { return connection_->find(columns_, name); }
  Value value(Column column) const override;

  void addNew() override;
  void edit() override;
  void set(std::string_view name, const Value& value) override;
  void update() override;
  void remove() override;
  void close() override;

 private:
  enum class Pending { None, Added, Changed };

  void requireRecord() const;
  void forgetRecord();
  void begin(Pending what);

  std::shared_ptr<SqliteConnection> connection_;
  SqliteWriter writer_;
  SqliteStatement record_;  // reads the record of one rowid
  ResultColumns columns_;
  std::vector<std::int64_t> rowids_;
  std::size_t at_ = 0;
  bool deleted_ = false;         // the present record
  mutable bool loaded_ = false;  // record_ stands on the present record
  Pending pending_ = Pending::None;
};

}  // namespace db
