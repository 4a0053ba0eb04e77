#pragma once

#include <chrono>
#include <map>
#include <set>

#include "odbc/postgres_scope.h"
#include "odbc/product.h"

namespace db {

/// A job on a PostgreSQL server.
class OdbcPostgres final : public OdbcProduct {
 public:
  void prepare(OdbcConnection& connection) override;
  std::string statement(OdbcConnection& connection, std::string_view sql) override;
  void definitionsChanged() override { known_ = false; }
  std::vector<ColumnDefinition> columns(OdbcConnection& connection, std::string_view table) override;
  std::string tableName(OdbcConnection& connection, std::string_view table) override;
  std::string keyColumn() const override { return "ctid"; }
  std::string keyCondition() const override { return "ctid=CAST(? AS tid)"; }
  bool keyChanges() const override { return true; }
  std::string defaultRecord(const std::vector<ColumnDefinition>&) const override { return "DEFAULT VALUES"; }
  void begin(OdbcConnection& connection) override;
  void lock(OdbcConnection& connection, const std::string& table) override;
  void commit(OdbcConnection& connection) override;
  void protect(OdbcConnection& connection) override;
  void done(const OdbcStatement* repeatable) override;
  bool restore(OdbcConnection& connection) override;

 private:
  /// A record that was written since the savepoint.
  struct Step {
    std::string sql;
    std::vector<Value> values;
  };

  const PostgresTable* find(OdbcConnection& connection, std::string_view name);
  void readTables(OdbcConnection& connection);
  void setPatience(OdbcConnection& connection) const;
  void countWait(OdbcConnection& connection, std::chrono::steady_clock::time_point start);

  std::map<std::string, PostgresTable> tables_;  // by the name in small letters
  bool known_ = false;                           // tables_ is up to date
  std::set<std::string> locked_;
  std::chrono::milliseconds patience_{3000};  // how much longer other operators' saves are waited for
  bool protected_ = false;                    // the savepoint is set
  std::vector<Step> steps_;                   // all that was done since
  bool unlisted_ = false;                     // something was done since that steps_ does not hold
};

}  // namespace db
