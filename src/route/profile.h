#pragma once

#include <string>

#include "report/diagram.h"
#include "ui/grid.h"

namespace route {

/// How a route grid shows heights and corrections. Bench marks stand on rows with a number in `benchMarkCol`;
/// the row below each carries the section to the next one.
struct ProfileLook {
  int benchMarkCol = 0;
  int distanceCol = -1;            ///< −1 where the grid has no distances (km)
  bool distanceOnSection = false;  ///< distances stand on section rows, else on bench-mark rows
  int endCol = -1;                 ///< route flags of bench marks; −1 where the grid holds one route
  int heightCol = 0;               ///< heights (m) of bench marks; with `sums`, differences of sections (m)
  bool sums = false;               ///< heights are sums of differences, from 0 at the first bench mark
  int correctionCol = 0;
  bool correctionOnSection = false;
  double correctionFactor = 1;  ///< what a correction is multiplied by to be in `correctionUnit`
  std::string heightName = "標高";
  std::string correctionName = "補正数";
  std::string correctionUnit = "mm";
  int decimals = 3;  ///< of a height
};

/// The height profile of the routes in a grid, one behind the other: heights on the left scale, corrections
/// on the right one, a correction of a section at the bench mark where it begins. Sums begin anew with each
/// route.
report::Diagram profileOf(const ui::Grid& grid, const ProfileLook& look);

}  // namespace route
