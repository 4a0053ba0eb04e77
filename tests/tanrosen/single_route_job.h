#pragma once

#include "support/small_job.h"

namespace test {

/// A small job with the table of the single-route results.
class SingleRouteJob : public SmallJob {
 public:
  explicit SingleRouteJob(std::int16_t grade = 1) : SmallJob(grade) {
    sql("CREATE TABLE KansokuSeikaDataTanrosen (JobId TEXT, 事業番号 TEXT, 路線番号 TEXT, DataKubun TEXT,"
        " SaveOrder INTEGER, 水準点番号 TEXT, 距離 REAL, 標高 REAL, 単路線補正数 REAL, 単路線補正結果 REAL,"
        " 備考1 TEXT, 備考2 TEXT, RosenEndDataFlg TEXT, 中数 REAL)");
  }

  /// The saved records in their order, without the job.
  std::vector<std::string> saved() const {
    return records("SELECT * FROM KansokuSeikaDataTanrosen ORDER BY SaveOrder",
                   {"事業番号", "路線番号", "DataKubun", "SaveOrder", "水準点番号", "距離", "標高",
                    "単路線補正数", "単路線補正結果", "備考1", "備考2", "RosenEndDataFlg", "中数"});
  }
};

}  // namespace test
