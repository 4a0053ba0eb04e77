#pragma once

#include <memory>

#include "db/database.h"
#include "sqlite/connection.h"

namespace db {

/// A job database in an SQLite file.
class SqliteDatabase final : public Database {
 public:
  explicit SqliteDatabase(std::shared_ptr<SqliteConnection> connection);
  ~SqliteDatabase() override;
  SqliteDatabase(const SqliteDatabase&) = delete;
  SqliteDatabase& operator=(const SqliteDatabase&) = delete;

  std::unique_ptr<Recordset> openRecordset(std::string_view sql, Access access) override;
  void execute(std::string_view sql) override;
  std::vector<ColumnDefinition> tableDefinition(std::string_view table) override;
  void gather() override { connection_->gather(); }
  void keepWhole() override { connection_->keepWhole(); }
  std::vector<std::string> damage() override;
  WriteBar writeBar() override { return connection_->writeBar(); }
  void discard() override { connection_->discard(); }
  void close() override { connection_->close(); }

 private:
  std::shared_ptr<SqliteConnection> connection_;
};

/// Opens the SQLite database at `path`, which begins as one. Raises Error where its content cannot be read.
std::unique_ptr<Database> openSqliteDatabase(std::string_view path);

/// Makes an empty SQLite database at `path`, where nothing stands yet, and opens it. Raises Error where that
/// fails.
std::unique_ptr<Database> createSqliteDatabase(std::string_view path);

}  // namespace db
