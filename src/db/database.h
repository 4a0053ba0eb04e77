#pragma once

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "db/value.h"
#include "text/error.h"

namespace db {

/// What stands behind an error, as far as an operator can do something about it.
enum class Cause {
  Other,
  InUse,        ///< another program holds the database
  Damaged,      ///< the file is damaged, or only looks like a database
  NoDriver,     ///< the driver that the database needs is not installed for programs of this bitness
  NoLogin,      ///< the server does not take user and password
  Unreachable,  ///< the server does not answer, or has no such database
  Forbidden     ///< no right to read or write it
};

/// An error of the job database. Its description is Japanese, names the table, column or file, and ends with
/// the engine's own words.
class Error : public text::RuntimeError {
 public:
  explicit Error(const std::string& description, Cause cause = Cause::Other)
      : text::RuntimeError(text::ErrorCode::Database, description), cause_(cause) {}

  Cause cause() const { return cause_; }

 private:
  Cause cause_;
};

/// What a record set is opened for.
enum class Access {
  Read,  ///< walking forward and reading fields
  Edit   ///< deleting, adding and changing records of one table as well
};

/// A column of a result: its position, counted from 0. Obtained once from Recordset::column, used for every
/// record.
enum class Column : std::size_t {};

/// The records that an SQL text selects, walked once from the first to the last.
///
/// A new record set stands on its first record, or at the end when there is none. Every member may raise
/// Error.
class Recordset {
 public:
  virtual ~Recordset() = default;

  /// True past the last record.
  virtual bool eof() const = 0;
  /// Goes on to the next record. At the end it is an Error.
  virtual void moveNext() = 0;

  /// The column of that name, whatever its letter case. Where a result holds two columns of one name, the
  /// plain name is the first of them and "A.標高", with the table's name or alias before the point, tells
  /// them apart. Raises Error, naming the column, where the result has no such column.
  virtual Column column(std::string_view name) const = 0;
  /// The value of a column in the present record. At the end it is an Error.
  virtual Value value(Column column) const = 0;
  /// The value of the column of that name in the present record.
  Value field(std::string_view name) const { return value(column(name)); }

  /// Begins a new record; a field that is not set takes the table's default, which is Null where it names
  /// none. Only on a record set opened with Access::Edit, like all that follow.
  virtual void addNew() = 0;
  /// Begins a change of the present record.
  virtual void edit() = 0;
  /// Sets a field of the record that addNew or edit began; the column must be one of the table.
  virtual void set(std::string_view name, const Value& value) = 0;
  /// Writes the record that addNew or edit began. After a new record the present record is what it was
  /// before.
  virtual void update() = 0;
  /// Deletes the present record; moveNext goes on to the one after it.
  virtual void remove() = 0;

  /// Gives the records free. What was written is safe on disk only when the database is closed too.
  virtual void close() = 0;
};

/// A column as the table definition lists it.
struct ColumnDefinition {
  std::string name;
  std::string type;  ///< as declared, such as "TEXT(2)"
};

/// What keeps writers out of a database.
enum class WriteBar {
  None,      ///< nothing that could be told ahead
  ReadOnly,  ///< the file, its medium or the connection is read-only
  Locked     ///< another program keeps all others from writing
};

/// An open job database.
///
/// The SQL texts are those of the survey suite: MID(text, start, length) counting characters from 1,
/// DISTINCTROW, "= Null" (never true), TEXT(n), unquoted Japanese names, and texts compared without their
/// trailing blanks. Each engine makes them its own. One statement at a time; a second one behind a semicolon
/// is an Error.
///
/// Writing through an edit record set takes effect record by record, as far as it came when something failed;
/// yet it is gathered, so that all of it reaches the disk in one piece when the database is closed. What is
/// executed after such a record set was opened is gathered with it; what is executed before is on disk at
/// once. A process that dies before the close leaves the old records. Where the medium itself refuses (disk
/// full, read error, no memory left), nothing of what was gathered is kept, nothing more can be written, and
/// close raises Error.
class Database {
 public:
  virtual ~Database() = default;

  /// The records that `sql` (one SELECT) yields. With Access::Edit it must be "SELECT * FROM one table [WHERE
  /// …]"; other writers are kept out from here until close.
  virtual std::unique_ptr<Recordset> openRecordset(std::string_view sql, Access access = Access::Read) = 0;

  /// Carries out one statement that yields no records (INSERT, DELETE, ALTER TABLE …).
  virtual void execute(std::string_view sql) = 0;

  /// Begins to gather what is executed too, unless that has begun already: from here on all that is written,
  /// table definitions included, reaches the disk in one piece when the database is closed.
  virtual void gather() = 0;

  /// Begins to gather as `gather` does, and from here on keeps all that is written or nothing of it, in
  /// however many tables: after any statement that the database refuses, and where it is destroyed before
  /// close has returned, it is what it was before, and close raises Error.
  virtual void keepWhole() = 0;

  /// What the engine's own examination finds wrong with the database, in its words, a sentence each; nothing
  /// where it finds nothing or has no such examination. Reads the whole file. Raises Error
  /// where the damage is such that the engine cannot even examine it.
  virtual std::vector<std::string> damage() = 0;

  /// What would keep a writer out now. Writes nothing and waits for nobody; an engine that cannot tell ahead,
  /// of a full medium for one, tells nothing. Raises nothing.
  virtual WriteBar writeBar() { return WriteBar::None; }

  /// The columns of a table in their order. Raises Error, naming the table, where there is none of that name.
  virtual std::vector<ColumnDefinition> tableDefinition(std::string_view table) = 0;

  /// Brings what was written safely to disk and ends the connection. Raises Error where that fails; a second
  /// call does nothing. The destructor does the same but cannot report: call close before you tell an
  /// operator "saved".
  virtual void close() = 0;

  /// Ends the connection and drops what was gathered: the database is what it was before. Does nothing where
  /// it is closed already.
  virtual void discard() = 0;
};

}  // namespace db
