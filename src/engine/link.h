#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "sql/result_columns.h"

namespace db {

/// What record sets ask of the connection that they were opened on, whatever the engine: whether it is open,
/// what has become of the gathered writing, and errors that name the database.
class Link {
 public:
  /// `file` is the path that the operator knows the database by.
  explicit Link(std::string_view file) : file_(file) {}
  virtual ~Link() = default;
  Link(const Link&) = delete;
  Link& operator=(const Link&) = delete;

  const std::string& file() const { return file_; }

  virtual bool isOpen() const = 0;
  /// Raises Error once the connection is closed.
  void requireOpen() const {
    if (!isOpen()) raiseClosed();
  }

  /// True where writing is kept as a whole or not at all.
  bool keepsWhole() const { return whole_; }
  /// Raises Error where gathered writing was lost to an earlier failure: nothing may be written after it, or
  /// a part of a save would stand alone.
  void requireNothingLost() const;

  /// The columns of a table as "SELECT *" lists them; empty where there is no such table.
  virtual std::vector<ColumnDefinition> columns(std::string_view table) = 0;
  /// The column of that name in a result. Raises Error, naming the column, where there is none.
  Column find(const ResultColumns& result, std::string_view name);

  /// An Error about this database: the Japanese sentence `what` with its name.
  Error error(std::string_view what) const;

 protected:
  /// The Error that tells of gathered writing that was lost.
  Error lostError() const;
  /// The Error of a commit of which nobody knows whether it was carried out before the engine, which says
  /// `words`, failed.
  Error unsettledError(std::string_view words) const;

  bool whole_ = false;  ///< writing is kept as a whole or not at all
  bool lost_ = false;   ///< gathered writing was rolled back

 private:
  [[noreturn]] void raiseClosed() const;

  std::string file_;
};

}  // namespace db
