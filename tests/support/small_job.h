#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "job/context.h"
#include "job/schema.h"
#include "open/open.h"
#include "sql/split_statements.h"
#include "support/temporary_folder.h"

namespace test {

/// A job database with every table, all of them empty, in a folder of its own, and the job context of
/// somebody who has started on it.
class SmallJob {
 public:
  /// Job "3" of the given grade.
  explicit SmallJob(std::int16_t grade = 1) {
    context_.gDbPath = folder_.path("仕事 1.sqlite");
    context_.gJobId = "3";
    context_.gTokyu = grade;
    context_.gExeDir = folder_.path("data") + "\\";
    job::FcSeiReadIni(context_.tables);
    job::FcSetNumberFormats(context_);
    const auto database = db::createDatabase(context_.gDbPath);
    database->gather();
    for (const std::string& statement : db::splitStatements(job::schemaSql())) database->execute(statement);
    database->close();
  }

  const job::JobContext& context() const { return context_; }
  const TemporaryFolder& folder() const { return folder_; }

  void sql(std::string_view statement) const {
    const auto database = db::openDatabase(context_.gDbPath);
    database->execute(statement);
    database->close();
  }

  /// Declares columns of an empty table anew, as another program may have declared them.
  void declare(const std::string& table, const std::vector<std::string>& columns,
               const std::string& type) const {
    sql("DROP INDEX IF EXISTS " + table + "Route");
    for (const std::string& column : columns) {
      sql("ALTER TABLE " + table + " DROP COLUMN " + column);
      sql("ALTER TABLE " + table + " ADD COLUMN " + column + " " + type);
    }
  }

  /// One observation record; values as SQL literals ("NULL" for Null).
  void observed(int order, std::string_view route, std::string_view benchMark, std::string_view height,
                std::string_view difference, std::string_view flag = "", std::string_view category = "'0'",
                std::string_view distance = "NULL") const {
    const auto text = [](std::string_view value) { return "'" + std::string(value) + "'"; };
    sql("INSERT INTO KansokuSeikaData (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 標石番号, 標高, 中数,"
        " RosenEndDataFlg, 距離) VALUES ('3','1001'," +
        text(route) + "," + std::string(category) + "," + std::to_string(order) + "," + text(benchMark) +
        "," + std::string(height) + "," + std::string(difference) + "," + text(flag) + "," +
        std::string(distance) + ")");
  }

  /// All records of a query, fields joined with "|", Null as "-".
  std::vector<std::string> records(std::string_view query, const std::vector<std::string>& columns) const {
    std::vector<std::string> lines;
    const auto database = db::openDatabase(context_.gDbPath);
    const auto found = database->openRecordset(query);
    for (; !found->eof(); found->moveNext()) {
      std::string line;
      for (const std::string& column : columns) {
        const db::Value value = found->field(column);
        line += (line.empty() ? "" : "|") + (value.isNull() ? std::string("-") : value.text());
      }
      lines.push_back(line);
    }
    return lines;
  }

 private:
  TemporaryFolder folder_;
  job::JobContext context_;
};

}  // namespace test
