#include <cstdlib>

#include "open/open.h"
#include "sql/split_statements.h"
#include "support/database_test.h"
#include "support/postgres_server.h"
#include "support/server_tests.h"

// The engine behind ODBC that SEIKAHYOU_TEST_ENGINE names: "sqlite" or "postgres". The tests of the SQLite
// engine are compiled into this program too and so meet the same expectations through a driver.

namespace test {
namespace {

/// Databases behind a file data source, made and asked through the house itself, each time with a connection
/// of its own.
class OdbcEngine : public Engine {
 public:
  std::string newDatabase(const TemporaryFolder& folder) override {
    return folder.write("作業 db.dsn", dataSource(folder));
  }
  void make(const std::string& path, const std::string& schema) override {
    const auto database = db::openDatabase(path);
    for (const std::string& statement : db::splitStatements(schema)) database->execute(statement);
    database->close();
  }
  std::string ask(const std::string& path, const std::string& sql) override {
    const auto database = db::openDatabase(path);
    const auto records = database->openRecordset(sql);
    if (records->eof()) return "none";
    const db::Value value = records->value(db::Column{0});
    return value.isNull() ? "null" : value.text();
  }

 private:
  virtual std::string dataSource(const TemporaryFolder& folder) = 0;
};

class SqliteOverOdbc final : public OdbcEngine {
  std::string dataSource(const TemporaryFolder& folder) override {
    const std::string file = folder.path("作業 db.sqlite");
    db::createDatabase(file)->close();
    return "[ODBC]\nDRIVER=SQLite3\nDATABASE=" + file + "\n";
  }
};

class PostgresOverOdbc final : public OdbcEngine {
  std::string dataSource(const TemporaryFolder&) override { return server_.newDatabase(); }
  PostgresServer server_;
};

std::string chosen() {
  const char* name = std::getenv("SEIKAHYOU_TEST_ENGINE");
  return name == nullptr ? "sqlite" : name;
}

std::unique_ptr<Engine> makeEngine() {
  if (chosen() == "postgres") return std::make_unique<PostgresOverOdbc>();
  return std::make_unique<SqliteOverOdbc>();
}

}  // namespace

Engine& engine() {
  static const std::unique_ptr<Engine> one = makeEngine();
  return *one;
}

}  // namespace test

int main(int count, char** arguments) {
  return test::runServerTests(count, arguments, test::chosen() == "postgres");
}
