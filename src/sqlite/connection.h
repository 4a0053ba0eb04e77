#pragma once

#include <sqlite3.h>

#include <chrono>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engine/link.h"

namespace db {

struct FinalizeStatement {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

/// A prepared statement; it may outlive the connection it was prepared on.
using SqliteStatement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// A value as the engine holds it in a column of the row a statement stands on. Raises std::bad_alloc where
/// there is no memory for it.
Value columnValue(sqlite3_stmt* statement, int column);

/// The names of a statement's result columns in their order.
std::vector<std::string> columnNames(sqlite3_stmt* statement);

/// The connection to one database file, shared by the database and its record sets, with the transaction in
/// which writing is gathered. All members take SQLite's own SQL; failures raise Error.
class SqliteConnection final : public Link {
 public:
  /// Opens `file`, the path text as the operator wrote it; `create` makes the file. A file with a write-ahead
  /// log that can be neither read nor made, as on a medium that is read-only, is opened for reading alone.
  explicit SqliteConnection(std::string_view file, bool create = false);
  ~SqliteConnection() override;

  bool isOpen() const override { return handle_ != nullptr; }

  /// Prepares one statement. Anything but blanks, comments and semicolons behind it is an Error.
  SqliteStatement prepare(std::string_view sql);

  /// Goes on to the next row; false when there is none. Where it fails, what the failure means for the
  /// gathered writing is settled first. `table` names the table being written, for the description.
  bool step(sqlite3_stmt* statement, std::string_view table = {});

  /// Runs a statement to its end and makes it ready to run again.
  void run(sqlite3_stmt* statement, std::string_view table = {});

  /// Prepares and runs one statement.
  void run(std::string_view sql);

  /// Raises what SQLite's result code tells, unless it tells success, and settles what that means for the
  /// gathered writing.
  void requireDone(int code, std::string_view table);

  /// Begins to gather what is written, unless that has begun already. Other writers are kept out from here.
  void gather();

  /// The same; from here on any refusal loses all that was gathered, and so does the end of the connection
  /// without close.
  void keepWhole();

  /// What would keep a writer out now, told without waiting for a lock.
  WriteBar writeBar();

  /// How many records the last statement changed.
  int changes() const { return sqlite3_changes(handle_); }

  std::vector<ColumnDefinition> columns(std::string_view table) override;

  /// Writes one state of this database, whole, over that of `target`, while others may work on this one.
  void copyInto(SqliteConnection& target);

  /// Commits what was gathered and ends the connection, also where the commit fails. A second call does
  /// nothing.
  void close();

  /// Drops what was gathered and ends the connection.
  void discard();

 private:
  [[noreturn]] void raise(int code, std::string_view table = {});
  void openFile(const std::string& name, int flags);
  bool isLogOutOfReach();
  void prepareSettings();
  static int waitForLock(void* connection, int);
  void settle(int code, bool gathering);
  std::optional<Error> commit();
  void rollBack();
  void resetStatements();
  bool isGathering() const { return sqlite3_get_autocommit(handle_) == 0; }

  sqlite3* handle_ = nullptr;
  SqliteStatement rollBack_;            // ready as long as something is gathered
  std::chrono::milliseconds patience_;  // how much longer locks are waited for
};

}  // namespace db
