#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "route/records.h"

namespace daen {

/// The heights (m) that bench marks get when a route is laid into the grid: their own, or the height that the
/// mean differences lead to from the bench mark before.
///
/// Two runs to one bench mark, each ended by a row flagged "-2", reach it at two heights: their mean is the
/// height of the row below the second one, where that row is the same bench mark and has no height of its
/// own. The mean is rounded to 0.1 mm in every grade, halves upwards; the running height goes on unchanged.
/// No pair reaches over a route end.
class LoadedHeights {
 public:
  /// Comes to the next bench mark with its route flag and its own height (m), 0 for none. Returns the height
  /// that it shows (m); nothing before the first height of the grid.
  std::optional<double> reach(std::string_view benchMark, std::string_view flag, double own);
  /// Leaves that bench mark by the mean difference to the next one (m), 0 for none.
  void leave(double meanDifference);

 private:
  std::optional<double> shown(std::string_view benchMark, double own) const;
  void take(std::string_view benchMark, std::string_view flag);

  /// The mean of a pair, waiting for the row below it.
  struct Mean {
    std::string benchMark;
    double height = 0;
  };

  std::optional<double> reached_;
  std::map<std::string, route::PairMean, std::less<>> runs_;  // by bench mark, those on one run so far
  std::optional<Mean> mean_;
};

}  // namespace daen
