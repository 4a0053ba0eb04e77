#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/date.h"
#include "ui/finding.h"
#include "ui/grid.h"

namespace hend {

/// Looks through the dates and counts of days of a variation grid, and at the reference date.
class DateChecks {
 public:
  /// `referenceDate`: the text in its box. All of them outlive this object.
  DateChecks(const ui::Grid& grid, std::string_view referenceDate, ui::Findings& findings)
      : grid_(grid), referenceText_(referenceDate), findings_(findings) {}

  void run();

 private:
  using MaybeDate = std::optional<text::Date>;

  /// A bench mark whose days to the reference date are other than its date says.
  struct Astray {
    int row = 0;
    text::Date date;
  };

  void readReference();
  MaybeDate dateIn(int row, int col);
  void benchMark(int row);
  void newPoint(int row, const MaybeDate& newDate);
  void ordinary(int row, const MaybeDate& newDate, const MaybeDate& oldDate);
  void missingDate(int row);
  void reversed(int row);
  void noDaysBetween(int row);
  void midpoint(int row, const text::Date& middle, const MaybeDate& newDate);
  void daysBetweenEpochs(int row, const MaybeDate& from, const MaybeDate& to);
  void daysToReference(int row, const MaybeDate& from);
  void wrongDays(int row, int col, int counted);
  void tellReference();
  void notComputedWith();
  std::string computedWith() const;
  void add(ui::Severity severity, int row, int col, std::string text, std::string wayOut);

  const ui::Grid& grid_;
  std::string_view referenceText_;
  ui::Findings& findings_;
  MaybeDate reference_;
  MaybeDate beforeNew_;  // dates of the bench mark above in the same route
  MaybeDate beforeOld_;
  int matching_ = 0;            // bench marks whose days lead to the reference date
  std::vector<Astray> astray_;  // those whose days do not
  int early_ = 0;               // bench marks observed after the reference date
  int firstEarly_ = 0;          // row of the first of them
};

}  // namespace hend
