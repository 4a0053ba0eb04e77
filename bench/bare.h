#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace bench {

/// Records as their fields' texts; "" stands for Null.
using Records = std::vector<std::vector<std::string>>;

/// A connection to a job through its engine's own client, as thin as it gets: what the program's own work is
/// compared with. Anything that fails raises std::runtime_error.
class Bare {
 public:
  virtual ~Bare() = default;

  /// Reads every column of every record, numbers as doubles and texts as they lie there. Returns the bytes
  /// seen.
  virtual std::size_t readAll(const std::string& sql) = 0;

  virtual Records records(const std::string& sql) = 0;

  /// Deletes with one statement and inserts these records, every column of the table, with another, in one
  /// transaction.
  virtual void replace(const std::string& table, const std::string& conditions, const Records& records) = 0;

 protected:
  /// The statement that inserts a record; `mark` names the parameter at a place, counted from 1.
  template <typename MARK>
  static std::string insertion(const std::string& table, std::size_t columns, MARK mark) {
    std::string marks = mark(1);
    for (std::size_t i = 2; i <= columns; ++i) marks += "," + mark(i);
    return "INSERT INTO " + table + " VALUES (" + marks + ")";
  }
};

}  // namespace bench
