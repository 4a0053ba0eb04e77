#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "support/small_job.h"

namespace test {

/// A small job with points that are observed twice.
class VariationJob : public SmallJob {
 public:
  using SmallJob::SmallJob;

  /// One observation record of project "1001"; values as SQL literals ("NULL" for Null).
  void observedTwice(int order, std::string_view benchMark, std::string_view date,
                     std::string_view difference, std::string_view oldDate, std::string_view oldDifference,
                     std::string_view flag = "NULL", std::string_view route = "'01E00101'",
                     std::string_view category = "'0'") const {
    std::string values;
    for (const std::string_view value :
         {route, category, benchMark, date, difference, oldDate, oldDifference, flag})
      values += "," + std::string(value);
    sql("INSERT INTO KansokuSeikaData (JobId, 事業番号, SaveOrder, 路線番号, DataKubun, 標石番号, "
        "観測年月日, 中数,"
        " 前回観測日, 前回中数, RosenEndDataFlg) VALUES ('3','1001'," +
        std::to_string(order) + values + ")");
  }

  /// E1 ordinary, E2 with the section that the newly established E3 parts, E4 the end.
  void routeWithNewPoint() const {
    observedTwice(1, "'E1'", "'20220511'", "1.5", "'20190815'", "1.49");
    observedTwice(2, "'E2'", "'2022/05/11'", "1.2", "'2019/08/15'", "2.01");
    observedTwice(3, "'E3'", "'20220521'", "0.8", "NULL", "NULL");
    observedTwice(4, "'E4'", "'20220521'", "NULL", "NULL", "NULL", "'-1'");
  }

  /// Columns of all saved records in their order.
  std::vector<std::string> saved(const std::vector<std::string>& columns) const {
    return records("SELECT * FROM KansokuSeikaDataHend ORDER BY SaveOrder", columns);
  }
};

}  // namespace test
