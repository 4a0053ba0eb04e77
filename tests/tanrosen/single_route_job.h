#pragma once

#include "support/small_job.h"

namespace test {

/// A small job that shows its single-route results.
class SingleRouteJob : public SmallJob {
 public:
  using SmallJob::SmallJob;

  /// The saved records in their order, without the job.
  std::vector<std::string> saved() const {
    return records("SELECT * FROM KansokuSeikaDataTanrosen ORDER BY SaveOrder",
                   {"事業番号", "路線番号", "DataKubun", "SaveOrder", "水準点番号", "距離", "標高",
                    "単路線補正数", "単路線補正結果", "備考1", "備考2", "RosenEndDataFlg", "中数"});
  }
};

}  // namespace test
