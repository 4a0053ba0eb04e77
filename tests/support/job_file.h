#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "exchange/create.h"
#include "open/open.h"
#include "support/temporary_folder.h"

namespace test {

/// Carries out statements on a job database.
inline void sql(const std::string& path, const std::vector<std::string>& statements) {
  const auto database = db::openDatabase(path);
  for (const std::string& statement : statements) database->execute(statement);
  database->close();
}

/// All records of a table in their order, fields joined with "|": Null as "-", numbers as they are, texts in
/// quotes.
inline std::vector<std::string> records(const std::string& path, const std::string& table) {
  std::vector<std::string> lines;
  const auto database = db::openDatabase(path);
  const auto columns = database->tableDefinition(table);
  const auto found = database->openRecordset("SELECT * FROM " + table);
  for (; !found->eof(); found->moveNext()) {
    std::string& line = lines.emplace_back();
    for (const auto& column : columns) {
      const db::Value value = found->field(column.name);
      if (&column != &columns.front()) line += '|';
      line += value.isNull() ? "-" : value.isText() ? "'" + value.text() + "'" : value.text();
    }
  }
  return lines;
}

/// A new job database with every table, named with Japanese letters and a blank.
class JobFile {
 public:
  explicit JobFile(std::string_view name = "仕事 1.sqlite") : path_(folder_.path(name)) {
    exchange::createJob(path_);
  }

  const std::string& path() const { return path_; }
  const TemporaryFolder& folder() const { return folder_; }
  void sql(const std::vector<std::string>& statements) const { test::sql(path_, statements); }
  std::vector<std::string> records(const std::string& table) const { return test::records(path_, table); }

  /// An observation of job "1", project "1001"; category and flag as SQL literals.
  void observed(std::string_view route, int order, std::string_view category = "'0'",
                std::string_view flag = "NULL") const {
    sql(
        {"INSERT INTO KansokuSeikaData (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 標石番号, "
         "RosenEndDataFlg) VALUES ('1','1001','" +
         std::string(route) + "'," + std::string(category) + "," + std::to_string(order) + ",'BM'," +
         std::string(flag) + ")"});
  }

 private:
  TemporaryFolder folder_;
  std::string path_;
};

/// The description of the db::Error that `action` raises; "" where it raises none.
inline std::string errorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const db::Error& error) {
    return error.what();
  }
  return {};
}

/// True where `whole` holds `part`.
inline bool holds(std::string_view whole, std::string_view part) {
  return whole.find(part) != std::string_view::npos;
}

}  // namespace test
