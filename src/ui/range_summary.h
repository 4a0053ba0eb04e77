#pragma once

#include <string>

namespace ui {

class Grid;

/// The numbers of a selected range, added up and compared as they are shown, with the decimals of the one
/// that has most of them.
struct RangeSummary {
  int count = 0;  ///< cells that show a number; the three texts are empty where there is none
  std::string sum;
  std::string least;
  std::string greatest;
};

/// Looks through the selected cells of visible columns. A number is a sign, digits and a decimal point, at
/// most 12 digits before the point and 9 after it; other texts are passed over. Sums are exact.
RangeSummary summarize(const Grid& grid);

/// The summary for the operator: "件数 3  合計 6.0000  最小 1.0000  最大 3.0000"; "" where it counts nothing.
std::string summaryText(const RangeSummary& summary);

}  // namespace ui
