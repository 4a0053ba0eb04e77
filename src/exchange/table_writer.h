#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "db/database.h"

namespace exchange {

/// The values of one record, in the order of the columns they go to.
using Row = std::vector<db::Value>;

/// Adds records to one table.
class TableWriter {
 public:
  /// `columns`: the columns of the table that are written, all of them by every record.
  TableWriter(db::Database& database, std::string table, std::vector<std::string> columns);

  /// Deletes every record of the table.
  void empty();
  /// Adds a record with these values, one for each column. Raises db::Error, naming the record by its number
  /// (from 1) and its keys, where the engine refuses it.
  void add(const Row& row);
  /// How many records were added.
  std::int64_t added() const { return added_; }

  /// Reads a table that was emptied first again. Raises db::Error where it does not hold exactly what was
  /// added: an engine may pad, round or cut a value without a word.
  void requireAsWritten();

 private:
  std::string described(const Row& row) const;
  static std::string keyOf(const Row& row);

  db::Database& database_;
  std::string table_;
  std::vector<std::string> columns_;
  std::unique_ptr<db::Recordset> records_;
  std::int64_t added_ = 0;
  std::size_t sum_ = 0;  // over the records added, whatever their order
};

/// Opens the database at `path`, lets `write` write to one table, and returns when all of it is safe on disk
/// in one commit. Where that fails the table is left as it was; the db::Error that is raised tells what went
/// wrong and how the table stands now.
void writeTable(const std::string& path, const std::string& table, const std::vector<std::string>& columns,
                const std::function<void(TableWriter&)>& write);

}  // namespace exchange
