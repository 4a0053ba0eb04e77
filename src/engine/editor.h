#pragma once

#include <cstddef>
#include <memory>

#include "engine/link.h"

namespace db {

/// The records of one table that a SELECT has chosen, as an engine reads and writes them. Records are told
/// apart by their place in the choice, counted from 0; the fields of a record to be written are taken one by
/// one.
class ChosenRecords {
 public:
  virtual ~ChosenRecords() = default;

  virtual const ResultColumns& columns() const = 0;
  virtual std::size_t count() const = 0;
  /// A field of a record, columns counted from 0; the record is read when one of its fields is first asked
  /// for. Raises Error where that record is gone.
  virtual Value value(std::size_t record, std::size_t column) = 0;
  /// Lets go of the record that was read.
  virtual void forgetRecord() = 0;

  /// Forgets the fields taken.
  virtual void clearFields() = 0;
  /// Takes a field. Raises Error, naming the column, where the table has no such column.
  virtual void setField(std::string_view name, const Value& value) = 0;
  /// Inserts a record of the fields taken.
  virtual void insert() = 0;
  /// Puts the fields taken into a record. Raises Error where that record is gone.
  virtual void change(std::size_t record) = 0;
  /// Deletes a record. Raises Error where it is gone.
  virtual void remove(std::size_t record) = 0;
};

/// The records of one table for deleting, adding and changing. Which they are is settled before the first is
/// looked at, so that writing does not disturb the walk; a record's fields are read when they are asked for.
class Editor final : public Recordset {
 public:
  /// Stands on the first record.
  Editor(std::shared_ptr<Link> link, std::unique_ptr<ChosenRecords> records);

  bool eof() const override { return at_ >= count_; }
  void moveNext() override;
  Column column(std::string_view name) const override { return link_->find(records_->columns(), name); }
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
  void leaveRecord();
  [[noreturn]] void raiseNothingBegun() const;

  std::shared_ptr<Link> link_;
  std::unique_ptr<ChosenRecords> records_;
  std::size_t count_;
  std::size_t at_ = 0;
  bool deleted_ = false;  // the present record
  Pending pending_ = Pending::None;
};

}  // namespace db
