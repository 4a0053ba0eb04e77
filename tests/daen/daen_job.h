#pragma once

#include <string>
#include <string_view>

#include "support/small_job.h"

namespace test {

/// A small job with computed sections.
class DaenJob : public SmallJob {
 public:
  using SmallJob::SmallJob;

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
