#pragma once

#include "odbc/product.h"

namespace db {

/// SQLite files through their ODBC driver.
class OdbcSqlite : public OdbcProduct {
 public:
  void prepare(OdbcConnection& connection) override;
  std::string statement(OdbcConnection& connection, std::string_view sql) override;
  void beginReading(OdbcConnection& connection, std::string_view sql) override;
  void endReading(OdbcConnection& connection) override;
  std::vector<ColumnDefinition> columns(OdbcConnection& connection, std::string_view table) override;
  std::string keyColumn() const override { return "_rowid_"; }
  std::string defaultRecord(const std::vector<ColumnDefinition>&) const override { return "DEFAULT VALUES"; }
  bool convertsTexts() const override { return true; }
  bool roundsNumbers() const override { return true; }
  std::string exactSql(const std::string& sql, const std::vector<bool>& numbers) const override;
  std::vector<std::string> damage(OdbcConnection& connection) override;
  void begin(OdbcConnection& connection) override;
  void commit(OdbcConnection& connection) override;
  void rollBack(OdbcConnection& connection) override;
  bool restore(OdbcConnection& connection) override;
  Error describe(const OdbcDiagnosis& diagnosis, std::string_view file,
                 std::string_view table) const override;
  bool isMediumFailure(const OdbcDiagnosis& diagnosis) const override;

 private:
  bool wantsIndex(OdbcConnection& connection, std::string_view sql);
  bool joinsByIndex(OdbcConnection& connection, const std::vector<std::string>& blanksSql) const;

  bool steady_ = false;            // a transaction keeps what is read as it is
  bool automaticIndexes_ = false;  // SQLite may make up indexes for joins
};

}  // namespace db
