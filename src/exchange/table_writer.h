#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "db/database.h"

namespace exchange {

/// The values of one record, in the order of the columns they go to.
using Row = std::vector<db::Value>;

/// Adds records to one table and can put the table back to what it was.
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

  /// Deletes what was added and brings back what was deleted.
  void undo();

 private:
  /// How many records are alike.
  struct Alike {
    std::int64_t added = 0;
    std::int64_t before = 0;  ///< that are not to be deleted by undo
  };

  std::string described(const Row& row) const;
  std::string keyOf(const Row& row) const;
  bool wasAdded(const Row& row);
  void countAlike();
  std::unique_ptr<db::Recordset> open();

  db::Database& database_;
  std::string table_;
  std::vector<std::string> columns_;
  std::unique_ptr<db::Recordset> records_;
  std::vector<std::string> allColumns_;
  std::vector<Row> deleted_;                // with all columns
  bool emptied_ = false;                    // every record that stands in the table was added
  std::map<std::string, Alike> addedKeys_;  // not kept where the table was emptied
  std::int64_t added_ = 0;
  std::size_t sum_ = 0;  // over the records added, whatever their order
};

/// Opens the database at `path`, lets `write` write to one table, and returns when all of it is safe on disk
/// in one commit. Where that fails the table is put back to what it was; the db::Error that is raised tells
/// what went wrong and how the table stands now.
void writeTable(const std::string& path, const std::string& table, const std::vector<std::string>& columns,
                const std::function<void(TableWriter&)>& write);

}  // namespace exchange
