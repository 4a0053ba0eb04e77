#include <memory>
#include <string>
#include <vector>

#include "measured_route.h"
#include "tanrosen/calculation.h"
#include "tanrosen/checks.h"
#include "tanrosen/columns.h"
#include "tanrosen/data.h"
#include "text/number.h"
#include "ui/controls.h"

namespace bench {
namespace {

/// The grid of the measuring route, about every 32nd bench mark of which is a known point, worked and saved,
/// and the doubles in it.
struct SingleRoute : MeasuredRoute {
  explicit SingleRoute(const Job& job) : MeasuredRoute(job, tanrosen::columnCount) {
    load();
    knownNumbers = knownPoints.items();
    takeNumbers();
    calculate();
    save();
  }

  void load() { tanrosen::FcDBOpen(selection, context, grid, lists); }
  void reopen() { tanrosen::FcDBReOpen(selection, context, grid, lists); }
  void calculate() { tanrosen::FcCalcTanrosen(grid, knownNumbers, context.grade(), selection.dataKubun); }
  void save() { tanrosen::FcDbSave(selection, context, grid); }
  void check() {
    findings = tanrosen::checks(grid, knownNumbers, context.grade(), selection.dataKubun, {}, &memory).size();
  }

  /// A calculation leaves its results where the known heights stood.
  void restoreKnownHeights() {
    for (std::size_t i = 0; i < known.size(); ++i)
      grid.setText(static_cast<int>(2 * known[i] + 1), tanrosen::colResult, knownTexts[i]);
  }

  /// As an operator does it: from the known heights.
  void calculateAnew() {
    restoreKnownHeights();
    calculate();
  }

  void takeNumbers() {
    for (int row = 1; row < grid.rows(); row += 2) {
      heights.push_back(text::readNumber(grid.text(row, tanrosen::colHeight)));
      distances.push_back(text::readNumber(grid.text(row, tanrosen::colDistance)));
      if (grid.text(row, tanrosen::colResult).empty()) continue;
      known.push_back(heights.size() - 1);
      knownTexts.push_back(grid.text(row, tanrosen::colResult));
      knownHeights.push_back(text::readNumber(knownTexts.back()));
    }
    cells.resize(2 * heights.size());
  }

  /// The calculation bare: closure errors from known point to known point, shares and corrected heights.
  void distributeAndFormat() {
    const text::Pattern& pattern = context.grade().heights();
    double before = 0;  // closure error at the known point before, m
    for (std::size_t i = 0; i < known.size(); ++i) {
      const std::size_t at = known[i];
      const double closure = text::readNumber(pattern.format(knownHeights[i] - heights[at]));
      if (i > 0) distribute(known[i - 1], at, closure - before);
      before = closure;
      cells[2 * at] =
          text::numberText(text::Fix(text::readNumber(pattern.format(closure * context.grade().factor()))));
    }
  }

  void distribute(std::size_t from, std::size_t to, double change) {
    const double factor = context.grade().factor();
    double total = 0;
    for (std::size_t i = from; i < to; ++i) total += distances[i];
    double behind = 0;
    for (std::size_t i = from + 1; i <= to; ++i) {
      behind += distances[i - 1];
      const double share = change * behind / total * factor;
      const double units = share >= 0 ? text::FcIntOfText(share + 0.5) : -text::FcIntOfText(-share + 0.5);
      cells[2 * i] = text::numberText(units);
      cells[2 * i + 1] = context.grade().heights().format(units / factor + heights[i]);
    }
  }

  ui::ListBox benchMarks{"lstSuijyun", nullptr};
  ui::ListBox knownPoints{"lstKiti", nullptr};
  const tanrosen::BenchMarkLists lists{benchMarks, knownPoints};
  route::CheckMemory memory;
  std::size_t findings = 0;  // of the last check
  std::vector<std::string> knownNumbers;
  std::vector<double> heights;          // observed, m
  std::vector<double> distances;        // to the next bench mark
  std::vector<std::size_t> known;       // which bench marks are known points
  std::vector<std::string> knownTexts;  // their heights as the grid shows them
  std::vector<double> knownHeights;     // m
  std::vector<std::string> cells;       // written by the bare pass
};

}  // namespace

std::vector<Measure> tanrosenMeasures(const Job& job) {
  const auto route = std::make_shared<SingleRoute>(job);
  const std::string observed = "SELECT * FROM KansokuSeikaData" + route->keys() + " ORDER BY SaveOrder";
  const std::string saved =
      "SELECT A.*, B.標高 FROM KansokuSeikaDataTanrosen A LEFT JOIN KansokuSeikaData B ON A.JobId = B.JobId "
      "AND A.事業番号 = B.事業番号 AND A.路線番号 = B.路線番号 AND A.SaveOrder = B.SaveOrder" +
      route->keys("A.") + " ORDER BY A.SaveOrder";
  const auto clear = [route] { route->clear(); };
  return {
      {"single route load", 3, clear, [route] { route->load(); }, bareReading(job, observed), Work::Reading},
      {"single route reopen", 3, clear, [route] { route->reopen(); }, bareReading(job, saved), Work::Reading},
      {"single route calculate", 1.5, [route] { route->restoreKnownHeights(); },
       [route] { route->calculate(); }, [route] { route->distributeAndFormat(); }},
      {"single route checks", 0.1, [route] { route->calculateAnew(); }, [route] { route->check(); },
       [route] { route->calculate(); }},
      {"single route save",
       2,
       {},
       [route] { route->save(); },
       bareReplacing(job, "KansokuSeikaDataTanrosen", route->keys()),
       Work::Saving},
  };
}

}  // namespace bench
