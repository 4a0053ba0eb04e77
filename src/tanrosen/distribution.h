#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "job/grade.h"
#include "tanrosen/known_point_search.h"
#include "tanrosen/section_distances.h"
#include "ui/grid.h"

namespace tanrosen {

/// The way along the route from known point to known point, sharing out at each of them what the closure
/// error has changed by since the one before. See FcCalcTanrosen.
class Distribution {
 public:
  /// `knownPoints` and the grid must outlive this object.
  Distribution(ui::Grid& grid, job::Grade grade, Points points, const std::vector<std::string>& knownPoints);

  /// Goes on to a known point.
  void knownPoint(const std::string& name);

 private:
  bool isReturn(const std::string& name) const;
  int below(int row) const;
  int walkTo(const std::string& name);
  void close(int known);
  void distribute(int known, double change);
  bool isCorrected(int row) const;
  void leaveAgain(const std::string& name);

  ui::Grid& grid_;
  const job::Grade grade_;
  const Points points_;
  KnownPointSearch search_;
  SectionDistances distances_;
  int start_ = 1;        // row where the segment starts
  double closure_ = 0;   // error at the known point before, m
  double total_ = 0;     // distance of the segment
  std::string reached_;  // the last known point "…F" that its "…B" has not followed yet
};

}  // namespace tanrosen
