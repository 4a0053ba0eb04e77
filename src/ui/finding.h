#pragma once

#include <string>
#include <vector>

namespace ui {

/// How much a finding matters.
enum class Severity {
  Error,   ///< 誤り: a wrong or useless number would be saved, or work lost
  Warning  ///< 注意: worth a look
};

/// How the cell of a finding is drawn beside its text.
enum class CellMark {
  None,
  NotTaken,  ///< an entry that no calculation has taken up yet
  ByHand     ///< a value changed by hand since the calculation
};

/// What a check has found on a screen: it says what is the matter and changes nothing.
struct Finding {
  Severity severity = Severity::Warning;
  int row = -1;  ///< grid row and column that it belongs to, from 0; −1 where it belongs to no cell
  int col = -1;
  std::string text;    ///< in Japanese, with the bench marks and numbers that it is about
  std::string wayOut;  ///< what can be done, in Japanese; "" where the text says it all
  CellMark mark = CellMark::None;

  bool operator==(const Finding&) const = default;
};

using Findings = std::vector<Finding>;

/// Puts findings in the order in which they are shown: errors first, then by row and column; what belongs to
/// no cell comes first of its kind.
void sortFindings(Findings& findings);

/// How many findings are of this severity.
int countFindings(const Findings& findings, Severity severity);

}  // namespace ui
