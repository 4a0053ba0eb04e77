#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "intake/block.h"
#include "intake/columns.h"

namespace intake {

/// How many bench marks a route may have: row numbers are of 16 bits, and a grid has two rows for each.
inline constexpr int mostBenchMarks = 16383;

/// What every record of a block shares where the block has no column for it.
struct Defaults {
  std::string jobId;           ///< job that the observations belong to
  std::string project;         ///< 事業番号; "" where the block must tell
  std::string route;           ///< 路線番号; "" where the block must tell
  std::string category = "0";  ///< データ区分
};

/// One observation as it will be stored. Texts are as read; numbers are decimal texts in the field's own
/// unit.
struct Observation {
  std::size_t line = 0;  ///< of the block, from 1
  std::string project;   ///< at most 8 characters
  std::string route;     ///< at most 8 characters
  std::string category;
  int order = 0;  ///< SaveOrder, from 1
  std::string benchMark;
  std::string prefecture, county, town;
  std::string date, formerDate;              ///< "YYYY/MM/DD" or ""
  std::string distance;                      ///< km, or ""
  std::string difference, formerDifference;  ///< m, or ""
  std::string height;                        ///< m, or ""
  std::string remark;
  std::string end;  ///< "", "-1" or "-2"
};

/// A route of a plan.
struct PlannedRoute {
  std::string project;
  std::string route;
  std::string category;
  int benchMarks = 0;

  bool operator==(const PlannedRoute&) const = default;
};

/// A line that cannot be taken, with the reason in Japanese.
struct Refusal {
  std::size_t line = 0;
  std::string why;

  bool operator==(const Refusal&) const = default;
};

/// What an import would store.
struct Plan {
  std::string jobId;
  std::vector<Observation> observations;  ///< in the order of the block
  std::vector<PlannedRoute> routes;       ///< in the order in which they begin
  std::vector<Refusal> refusals;     ///< in the order of the lines; nothing is stored while there are any
  std::vector<std::string> remarks;  ///< what was made or is worth a look, in Japanese
};

/// Reads the lines of a block as observations. A project, route or category that a line leaves blank is that
/// of the line before it, in the first line that of `defaults`. Missing orders (SaveOrder) are made where a
/// whole route has none, 1, 2, 3 … in the order of the lines (routes of a family in category "1" are numbered
/// on); a missing end mark is put on the last bench mark of a route. Both are said in the remarks.
Plan planObservations(const Block& block, const Matching& matching, const Defaults& defaults);

}  // namespace intake
