#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "db/database.h"
#include "open/open.h"
#include "support/database_steps.h"
#include "support/other_program.h"
#include "support/temporary_folder.h"

namespace test {

/// The engine that a test program tries. Each program has one of its own.
class Engine {
 public:
  virtual ~Engine() = default;
  /// The path by which a new, empty database is opened; what belongs to it stands in `folder`.
  virtual std::string newDatabase(const TemporaryFolder& folder) = 0;
  /// Runs the statements of `schema` in that database.
  virtual void make(const std::string& path, const std::string& schema) = 0;
  /// What another program finds there now: the first field of the first record as text; "none" where there is
  /// no record, "null" for Null.
  virtual std::string ask(const std::string& path, const std::string& sql) = 0;
};

/// The engine of this test program.
Engine& engine();

/// A test with a database of its own, made by the statements of a schema.
class DatabaseTest : public testing::Test {
 protected:
  void make(const std::string& schema) { engine().make(path_, schema); }

  std::unique_ptr<db::Database> open() const { return db::openDatabase(path_); }

  /// What the database holds now, read by another program.
  std::string ask(const std::string& sql) const { return engine().ask(path_, sql); }

  /// The texts of one column of all records as another connection finds them, "-" for Null.
  std::string listed(const std::string& sql, const std::string& column, const std::string& separator) const {
    std::string result;
    const auto database = open();
    for (const auto records = database->openRecordset(sql); !records->eof(); records->moveNext()) {
      const db::Value value = records->field(column);
      result += (result.empty() ? "" : separator) + (value.isNull() ? "-" : value.text());
    }
    return result;
  }

  /// The texts of one column of all records, in their order.
  static std::vector<std::string> texts(db::Database& database, const std::string& sql,
                                        const std::string& column) {
    std::vector<std::string> result;
    const auto records = database.openRecordset(sql);
    for (const db::Column wanted = records->column(column); !records->eof(); records->moveNext())
      result.push_back(records->value(wanted).text());
    return result;
  }

  TemporaryFolder folder_;
  std::string path_ = engine().newDatabase(folder_);
};

}  // namespace test
