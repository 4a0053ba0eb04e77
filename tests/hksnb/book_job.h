#pragma once

#include <string>
#include <string_view>

#include "support/small_job.h"

namespace test {

/// A small job with corrections to make books of. Its book table is of the age that has no column RosenEndFlg
/// yet.
class BookJob : public SmallJob {
 public:
  using SmallJob::SmallJob;

  /// A saved orthometric correction in project 1001, category 0; values as SQL literals.
  void orthometric(int order, std::string_view route, std::string_view benchMark, std::string_view height,
                   std::string_view correction, std::string_view result) const {
    sql("INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号, "
        "標高,"
        " 正標高補正数, 正標高結果, 備考1, 備考2) VALUES ('3','1001','" +
        std::string(route) + "','0'," + std::to_string(order) + ",'" + std::string(benchMark) + "'," +
        std::string(height) + "," + std::string(correction) + "," + std::string(result) + ",'一" +
        std::string(benchMark) + "','二" + std::string(benchMark) + "')");
  }

  /// A saved ellipsoidal correction; values as SQL literals.
  void ellipsoidal(int order, std::string_view route, std::string_view benchMark, std::string_view height,
                   std::string_view correction, std::string_view result) const {
    sql("INSERT INTO KansokuSeikaDataDaen (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 標石番号, 標高,"
        " 楕円補正値, 楕円補正結果) VALUES ('3','1001','" +
        std::string(route) + "','0'," + std::to_string(order) + ",'" + std::string(benchMark) + "'," +
        std::string(height) + "," + std::string(correction) + "," + std::string(result) + ")");
  }

  /// Dates, prefecture and town of the observations of a route.
  void place(std::string_view route, std::string_view date, std::string_view town) const {
    sql("UPDATE KansokuSeikaData SET 観測年月日 = '" + std::string(date) +
        "', 都道府県 = '長野県', 町村 = '" + std::string(town) + "' WHERE 路線番号 = '" + std::string(route) +
        "'");
  }

  /// Two routes that meet in C, the first with its saved orthometric correction: A 10 + 1.0005, B 11.0005 +
  /// 1.9997, C 13.0002; the second without.
  void twoRoutes() const {
    observed(1, "01A00101", "A", "10", "1");
    observed(2, "01A00101", "B", "NULL", "2");
    observed(3, "01A00101", "C", "13.1", "NULL", "-1");
    observed(1, "01A00201", "C", "13.1", "0.5");
    observed(2, "01A00201", "D", "13.6", "NULL", "-1");
    orthometric(1, "01A00101", "A", "10", "5", "10");
    orthometric(2, "01A00101", "B", "NULL", "-3", "11.0005");
    orthometric(3, "01A00101", "C", "13.1", "NULL", "NULL");
    place("01A00101", "20220511", "富士見町");
    place("01A00201", "2022/08/19", "原村");
  }
};

}  // namespace test
