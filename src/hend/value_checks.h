#pragma once

#include <initializer_list>
#include <string>
#include <string_view>

#include "hend/checks.h"
#include "job/grade.h"
#include "ui/finding.h"
#include "ui/grid.h"

namespace hend {

/// Looks through the height differences, corrections and results of a variation grid.
class ValueChecks {
 public:
  /// Grid and findings outlive this object.
  ValueChecks(const ui::Grid& grid, job::Grade grade, const CheckBounds& bounds, ui::Findings& findings)
      : grid_(grid), grade_(grade), bounds_(bounds), unit_(1 / grade.factor()), findings_(findings) {}

  /// Takes the bench mark on `row` with the section row below it.
  void benchMark(int row);

 private:
  /// What a row with values holds (m, m per day).
  struct Line {
    int row = 0;
    int daysRow = 0;
    double newHeight = 0;
    double difference = 0;
    double rate = 0;
    double correction = 0;
  };

  bool blank(int row, int col) const;
  double number(int row, int col) const;
  std::string metres(double value) const { return grade_.heights().format(value); }

  void section(int row);
  void pair(int row);
  void newPoint(int row);
  void twoInOneSection(int row);
  bool isGap(int row, int col);
  void line(int row, int daysRow, double slack);
  void fastRate(const Line& line);
  void correction(const Line& line);
  void sum(const Line& line);
  void resultAlone(int row);
  void notSaved(int row, std::initializer_list<int> columns);
  void notCalculated(int row);
  void differs(int row, int col, double expected, std::string_view why);
  void add(ui::Severity severity, int row, int col, std::string text, std::string wayOut);

  const ui::Grid& grid_;
  job::Grade grade_;
  CheckBounds bounds_;
  double unit_;  // m, of the last decimal shown
  ui::Findings& findings_;
};

}  // namespace hend
