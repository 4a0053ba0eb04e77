#include "daen/checks.h"

#include <utility>

#include "daen/columns.h"
#include "daen/entry_checks.h"
#include "daen/section_checks.h"
#include "route/checks.h"
#include "route/selection.h"
#include "text/padding.h"

namespace daen {
namespace {

using ui::Severity;

constexpr int namesTold = 5;  // bench marks that a finding about many names

bool isBlank(const ui::Grid& grid, int row, int col) {
  return row >= grid.rows() || text::trimmed(grid.text(row, col)).empty();
}

/// Bench marks of which one finding tells: how many, where the first stands, and the names of the first few.
struct Several {
  int count = 0;
  int firstRow = 0;
  std::string names;

  void add(const ui::Grid& grid, int row) {
    if (++count == 1) firstRow = row;
    if (count <= namesTold) names += (count > 1 ? "、" : "") + grid.text(row, colBenchMark);
    if (count == namesTold + 1) names += " ほか";
  }
};

/// Looks through the rows of the route grid.
class RouteChecks {
 public:
  RouteChecks(const ui::Grid& grid, bool anySection, ui::Findings& findings)
      : grid_(grid), computed_(anySection), findings_(findings) {}

  void run() {
    for (int row = 1; row < grid_.rows(); row += 2) benchMark(row);
    tellUncorrected();
    tellNotSaved();
  }

 private:
  void benchMark(int row) {
    if (isBlank(grid_, row, colBenchMark)) {
      if (!isBlank(grid_, row, colHeight) || !isBlank(grid_, row + 1, colDistance))
        findings_.push_back(route::nameless(row));
      return;
    }
    if (isBlank(grid_, row, colHeight)) noHeight(row);
    if (leadsOn(row) && route::numberIn(grid_, row + 1, colDistance) == 0) noDistance(row + 1);
    saved(row);
  }

  /// A segment leads to a further bench mark of the route.
  bool leadsOn(int row) const {
    const std::string& flag = grid_.text(row, colFlag);
    return flag != route::routeEnd && flag != route::repeatedPoint && !isBlank(grid_, row + 2, colBenchMark);
  }

  /// A save goes as far as the first route end.
  void saved(int row) {
    if (end_ != 0) return notSaved_.add(grid_, row);
    if (first_ == 0) first_ = row;
    ++savedCount_;
    isBlank(grid_, row, colCorrection) ? uncorrected_.add(grid_, row) : void(computed_ = true);
    if (grid_.text(row, colEndMark) == route::routeEnd) end_ = row;
  }

  void noHeight(int row) {
    findings_.push_back({Severity::Error, row, colHeight,
                         route::placeName(grid_, row) + "に標高がありません。0 m として計算されます。",
                         "観測成果の標高を入れてください。"});
  }

  void noDistance(int row) {
    findings_.push_back({Severity::Warning, row, colDistance,
                         route::placeName(grid_, row) + "に距離がありません。0 km として配分されます。",
                         "観測成果の距離を入れてください。"});
  }

  /// Nothing to tell before anything is computed.
  void tellUncorrected() {
    if (!computed_ || uncorrected_.count == 0) return;
    findings_.push_back({Severity::Error, uncorrected_.firstRow, colCorrection,
                         "楕円補正のない水準点が " + std::to_string(uncorrected_.count) + " 点あります(" +
                             uncorrected_.names + ")。空のまま保存されます。",
                         "残りの区間を計算してください。"});
  }

  void tellNotSaved() {
    if (notSaved_.count == 0) return;
    findings_.push_back(
        {Severity::Error, notSaved_.firstRow, colBenchMark,
         "保存されるのは最初の路線 " + grid_.text(first_, colBenchMark) + "-" +
             grid_.text(end_, colBenchMark) + " の " + std::to_string(savedCount_) + " 点だけです。後ろの " +
             std::to_string(notSaved_.count) + " 点(" + notSaved_.names +
             ")は保存されず、前に保存した分も消えます。",
         "データ形式 1 "
         "では、まとまりの最初の路線番号で開いてください。後ろの路線の結果は写して残してください。"});
  }

  const ui::Grid& grid_;
  bool computed_;
  ui::Findings& findings_;
  int first_ = 0;
  int end_ = 0;  // row of the first route end
  int savedCount_ = 0;
  Several uncorrected_;
  Several notSaved_;
};

}  // namespace

ui::Findings check(const ui::Grid& Grid1, const ui::Grid& Grid2, const CheckConditions& conditions,
                   job::Grade grade, route::CheckMemory* memory) {
  ui::Findings findings;
  RouteChecks(Grid1, Grid2.rows() > 2, findings).run();
  SectionChecks(Grid1, Grid2, grade, findings).run();
  EntryChecks(Grid1, Grid2, conditions, findings).run();
  route::findTextsThatAreNoNumber(Grid1, {colDistance, colHeight, colCorrection, colResult}, findings,
                                  memory);
  route::findNamesTwice(Grid1, colEndMark, findings, memory);
  ui::sortFindings(findings);
  return findings;
}

}  // namespace daen
