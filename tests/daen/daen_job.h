#pragma once

#include <string>
#include <string_view>

#include "support/small_job.h"

namespace test {

/// A small job with the two tables of the ellipsoidal correction.
class DaenJob : public SmallJob {
 public:
  explicit DaenJob(std::int16_t grade = 1) : SmallJob(grade) {
    sql("CREATE TABLE KansokuSeikaDataDaen (JobId TEXT, SaveOrder INTEGER, 事業番号 TEXT, 路線番号 TEXT,"
        " 標石番号 TEXT, 距離 REAL, 楕円補正値 REAL, 標高 REAL, 楕円補正結果 REAL, 備考1 TEXT, 備考2 TEXT,"
        " DataKubun TEXT, RosenEndDataFlg TEXT)");
    sql("CREATE TABLE DaenHoseiChiHyouData (JobId TEXT, SaveOrder INTEGER, 事業番号 TEXT, 路線番号 TEXT,"
        " 自首末地 TEXT, 至首末地 TEXT, 自水準点番号 TEXT, 至水準点番号 TEXT, B1 REAL, B2 REAL, B1_B2 REAL,"
        " B1plusB2 REAL, k REAL, H REAL, CalK REAL, DataKubun TEXT)");
  }

  /// A saved section of project 1001 (job 3) with its bench marks and accumulated correction.
  void section(std::string_view route, std::string_view category, int order, std::string_view from,
               std::string_view to, std::string_view k) const {
    const auto text = [](std::string_view value) { return "'" + std::string(value) + "'"; };
    sql("INSERT INTO DaenHoseiChiHyouData (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 自水準点番号,"
        " 至水準点番号, k) VALUES ('3','1001'," +
        text(route) + "," + text(category) + "," + std::to_string(order) + "," + text(from) + "," + text(to) +
        "," + std::string(k) + ")");
  }
};

}  // namespace test
