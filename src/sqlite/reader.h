#pragma once

#include <memory>
#include <string>

#include "sql/result_columns.h"
#include "sqlite/connection.h"

namespace db {

/// The records of a SELECT, read straight from the engine as one goes forward; nothing is kept.
class SqliteReader final : public Recordset {
 public:
  /// `sql` is a SELECT in SQLite's own form. Stands on the first record.
  SqliteReader(std::shared_ptr<SqliteConnection> connection, std::string sql);

  bool eof() const override { return eof_; }
  void moveNext() override;
  Column column(std::string_view name) const override;
  Value value(Column column) const override;
  void close() override;

  void addNew() override { refuse(); }
  void edit() override { refuse(); }
  void set(std::string_view, const Value&) override { refuse(); }
  void update() override { refuse(); }
  void remove() override { refuse(); }

 private:
  [[noreturn]] void refuse() const;
  void requireRecord() const;

  std::shared_ptr<SqliteConnection> connection_;
  SqliteStatement statement_;
  ResultColumns columns_;
  bool eof_ = false;
};

}  // namespace db
