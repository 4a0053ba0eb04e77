#pragma once

#include <cstddef>
#include <memory>

#include "engine/link.h"

namespace db {

/// A SELECT that an engine runs forward, record by record.
class Cursor {
 public:
  virtual ~Cursor() = default;
  /// Goes on to the next record, at first to the first one; false where there is none.
  virtual bool next() = 0;
  /// A field of the record; columns are counted from 0.
  virtual Value value(std::size_t column) = 0;
};

/// The records of a SELECT, read straight from the engine as one goes forward; nothing is kept.
class Reader final : public Recordset {
 public:
  /// Stands on the first record. `columns` are those of the cursor's records.
  Reader(std::shared_ptr<Link> link, std::unique_ptr<Cursor> cursor, ResultColumns columns);

  bool eof() const override { return eof_; }
  void moveNext() override;
  Column column(std::string_view name) const override { return link_->find(columns_, name); }
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

  std::shared_ptr<Link> link_;
  std::unique_ptr<Cursor> cursor_;
  ResultColumns columns_;
  bool eof_ = false;
};

}  // namespace db
