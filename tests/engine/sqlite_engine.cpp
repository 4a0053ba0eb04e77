#include "support/database_test.h"

namespace test {
namespace {

/// SQLite itself; another program reads and writes the file without the house's help.
class SqliteEngine final : public Engine {
 public:
  std::string newDatabase(const TemporaryFolder& folder) override { return folder.path("作業 db.sqlite"); }
  void make(const std::string& path, const std::string& schema) override { OtherProgram(path).run(schema); }
  std::string ask(const std::string& path, const std::string& sql) override {
    return OtherProgram(path).ask(sql);
  }
};

}  // namespace

Engine& engine() {
  static SqliteEngine sqlite;
  return sqlite;
}

}  // namespace test
