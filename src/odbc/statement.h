#pragma once

#include <deque>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "odbc/calls.h"

namespace db {

class OdbcConnection;

/// A prepared statement with its parameters and, once it was run, the row it stands on. Made by
/// OdbcConnection::prepare; where the connection closes first, every use raises Error.
class OdbcStatement {
 public:
  OdbcStatement(OdbcConnection& connection, std::string_view sql);
  ~OdbcStatement();
  OdbcStatement(const OdbcStatement&) = delete;
  OdbcStatement& operator=(const OdbcStatement&) = delete;

  /// Sets the parameter at `place`, counted from 1.
  void bind(std::size_t place, const Value& value);

  /// Which columns of a prepared SELECT hold numbers.
  std::vector<bool> numberColumns();
  /// Has the result take names and kinds from that of another statement, column by column.
  void resemble(const OdbcStatement& other);

  /// Runs the statement with its parameters, after which it stands before the first row. `table` names the
  /// table being written, for the description of a failure.
  void run(std::string_view table = {});
  /// Runs a statement that writes one record and would do the same if what was done since it was repeated:
  /// the engine may count on that to undo a later failure.
  void runRepeatable(std::string_view table);
  /// Runs it once more in the course of undoing a failure, without protection against another one.
  void repeat();

  /// Goes on to the next row; false where there is none.
  bool next();

  /// How many records the run has changed.
  SQLLEN changes() const { return changes_; }

  const std::string& sql() const { return sql_; }
  /// The values of the parameters, in their order.
  const std::vector<Value>& bound() const { return bound_; }

  /// The names of the result's columns; empty for a statement that yields no records.
  const std::vector<std::string>& names() const { return names_; }
  /// A column of the row, read when it is first asked for. A text is as the driver gives it, trailing blanks
  /// included.
  const Value& value(std::size_t column);

  /// Has every column read as its text, numbers too.
  void readTexts() { textsOnly_ = true; }

 private:
  friend class OdbcConnection;

  /// A parameter's value in the form that the driver reads when the statement runs.
  struct Parameter {
    double number = 0;
    SQLINTEGER whole = 0;
    std::string text;
    SQLLEN length = 0;
  };
  /// How a column of the result is read.
  enum class Reading { Number, Decimal, Text, Bytes };

  void requireConnection() const;
  void execute(std::string_view table);
  void bindText(std::size_t place, Parameter& parameter, const std::string& text);
  void bindBytes(std::size_t place, Parameter& parameter, const std::string& bytes);
  void check(SQLRETURN code, std::string_view table = {});
  Reading readingOf(SQLSMALLINT type) const;
  void describe();
  Value read(std::size_t column);
  void forgetRow();
  Value readNumber(SQLUSMALLINT column);
  Value readDecimal(SQLUSMALLINT column);
  Value readLong(SQLUSMALLINT column, SQLSMALLINT type);

  OdbcConnection* connection_;
  OdbcCalls calls_;
  std::string sql_;
  OdbcHandle<SQL_HANDLE_STMT> handle_;
  std::vector<Value> bound_;
  std::deque<Parameter> parameters_;
  std::vector<std::string> names_;
  std::vector<Reading> readings_;
  std::vector<std::optional<Value>> row_;  // nothing where a column has not been read
  SQLLEN changes_ = 0;
  bool described_ = false;
  bool ended_ = false;  // the run yielded nothing at all
  bool textsOnly_ = false;
};

}  // namespace db
