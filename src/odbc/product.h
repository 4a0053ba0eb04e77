#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "odbc/calls.h"

namespace db {

class OdbcConnection;
class OdbcStatement;

/// The ways in which one engine behind ODBC differs from the others. The base class is an engine of which
/// nothing is known but what every driver tells; it takes the survey suite's SQL as it stands.
class OdbcProduct {
 public:
  virtual ~OdbcProduct() = default;

  /// What is set up once on a new connection.
  virtual void prepare(OdbcConnection&) {}

  /// A statement in the survey suite's SQL as this engine understands it.
  virtual std::string statement(OdbcConnection&, std::string_view sql) { return std::string(sql); }
  /// Called before a SELECT, still in the survey suite's SQL, is made ready and its first record is read, and
  /// afterwards; both see the same records.
  virtual void beginReading(OdbcConnection&, std::string_view) {}
  virtual void endReading(OdbcConnection&) {}
  /// Told after a statement that may have changed table definitions.
  virtual void definitionsChanged() {}

  /// A name as the engine takes it whatever it holds.
  virtual std::string quoted(std::string_view name) const;
  /// The columns of a table as "SELECT *" lists them; empty where there is no such table.
  virtual std::vector<ColumnDefinition> columns(OdbcConnection& connection, std::string_view table);
  /// The name of that table as the engine writes it.
  virtual std::string tableName(OdbcConnection&, std::string_view table) { return std::string(table); }

  /// The column by which the engine itself tells records apart within a transaction; "" where it has none,
  /// and a record is found by all its fields.
  virtual std::string keyColumn() const { return {}; }
  /// The condition that a record has the key given as the one parameter.
  virtual std::string keyCondition() const { return keyColumn() + "=?"; }
  /// The condition that a column holds exactly the value given as the parameter.
  virtual std::string fieldCondition(const ColumnDefinition& column) const {
    return quoted(column.name) + "=?";
  }
  /// True where a change of a record gives it another key, which "RETURNING" tells.
  virtual bool keyChanges() const { return false; }
  /// What follows INSERT INTO table for a record whose fields are all left to their defaults.
  virtual std::string defaultRecord(const std::vector<ColumnDefinition>& columns) const;
  /// True where the engine itself makes numbers of the texts that are written into a number's column.
  virtual bool convertsTexts() const { return false; }

  /// True where the driver rounds real numbers.
  virtual bool roundsNumbers() const { return false; }
  /// Then: the SELECT `sql` with these of its columns as texts of all their digits; "" where none needs it.
  virtual std::string exactSql(const std::string& /*sql*/, const std::vector<bool>& /*numbers*/) const {
    return {};
  }

  /// False where the driver tells numbers as texts alone.
  virtual bool givesNumbers() const { return true; }

  /// What the engine's own examination of the database finds wrong; nothing where it has none.
  virtual std::vector<std::string> damage(OdbcConnection&) { return {}; }

  /// Begins a transaction. Raises Error where the database can only be read.
  virtual void begin(OdbcConnection& connection);
  /// Keeps other writers of the table out until the transaction ends.
  virtual void lock(OdbcConnection&, const std::string&) {}
  virtual void commit(OdbcConnection& connection);
  virtual void rollBack(OdbcConnection& connection);
  /// Called before each statement within a transaction, so that its failure can be undone alone.
  virtual void protect(OdbcConnection&) {}
  /// Called after such a statement has done its work; null where it is none that can be repeated.
  virtual void done(const OdbcStatement*) {}
  /// Called after such a statement has failed. False where the transaction is lost.
  virtual bool restore(OdbcConnection&) { return true; }

  /// The Japanese description of a failure.
  virtual Error describe(const OdbcDiagnosis& diagnosis, std::string_view file, std::string_view table) const;
  virtual bool isMediumFailure(const OdbcDiagnosis& diagnosis) const;
};

/// The product behind a connection, by what its driver says it is; by the driver's own name where it says
/// nothing.
std::unique_ptr<OdbcProduct> odbcProduct(const OdbcCalls& calls, SQLHDBC connection, std::string_view driver);

}  // namespace db
