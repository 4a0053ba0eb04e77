#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "job/context.h"
#include "open/open.h"
#include "support/temporary_folder.h"

namespace test {

/// A job database of a few tables in a folder of its own, and the job context of somebody who has started on
/// it.
class SmallJob {
 public:
  /// Job "3" of the given grade, with the tables of the observation results and of the orthometric
  /// correction.
  explicit SmallJob(std::int16_t grade = 1) {
    context_.gDbPath = folder_.path("仕事 1.sqlite");
    context_.gJobId = "3";
    context_.gTokyu = grade;
    context_.gExeDir = folder_.path("data") + "\\";
    job::FcSeiReadIni(context_.tables);
    job::FcSetNumberFormats(context_);
    db::createDatabase(context_.gDbPath)->close();
    sql("CREATE TABLE KansokuSeikaData (JobId TEXT, 事業番号 TEXT, 路線番号 TEXT, DataKubun TEXT, SaveOrder "
        "INTEGER,"
        " 標石番号 TEXT, 観測年月日 TEXT, 中数 REAL, 前回観測日 TEXT, 前回中数 REAL, 標高 REAL, 距離 REAL,"
        " 都道府県 TEXT, 郡市 TEXT, 町村 TEXT, RosenEndDataFlg TEXT)");
    sql("CREATE TABLE KansokuSeikaDataSeihyou (JobId TEXT, 事業番号 TEXT, 路線番号 TEXT, DataKubun TEXT,"
        " SaveOrder INTEGER, 水準点番号 TEXT, 標高 REAL, 備考1 TEXT, 備考2 TEXT, RosenEndDataFlg TEXT, 中数 "
        "REAL,"
        " 正標高補正数 TEXT, 正標高結果 REAL)");
  }

  const job::JobContext& context() const { return context_; }
  const TemporaryFolder& folder() const { return folder_; }

  void sql(std::string_view statement) const {
    const auto database = db::openDatabase(context_.gDbPath);
    database->execute(statement);
    database->close();
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
