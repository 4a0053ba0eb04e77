#pragma once

#include <memory>
#include <string>
#include <vector>

#include "odbc/connection.h"
#include "odbc/writer.h"

namespace db {

/// The records of one table for deleting, adding and changing. Their keys are read first, so that writing
/// does not disturb the walk; a record's fields are read when they are asked for.
class OdbcEditor final : public Recordset {
 public:
  /// `sql` is "SELECT * FROM table [WHERE …] [ORDER BY …]" in the engine's own form, `table` the table's name
  /// as the caller wrote it. Stands on the first record.
  OdbcEditor(std::shared_ptr<OdbcConnection> connection, const std::string& sql, const std::string& table);

  bool eof() const override { return at_ >= keys_.size(); }
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
  void begin(Pending what);
  void load() const;
  void readKeys(const std::string& sql);

  std::shared_ptr<OdbcConnection> connection_;
  mutable OdbcWriter writer_;
  ResultColumns columns_;
  std::vector<OdbcWriter::Key> keys_;
  std::size_t at_ = 0;
  bool deleted_ = false;               // the present record
  mutable std::vector<Value> fields_;  // of the present record; empty before they are read
  Pending pending_ = Pending::None;
};

}  // namespace db
