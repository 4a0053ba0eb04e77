#include <memory>
#include <string>
#include <vector>

#include "measured_route.h"
#include "platform/system.h"
#include "seihyou/calculation.h"
#include "seihyou/checks.h"
#include "seihyou/columns.h"
#include "seihyou/data.h"
#include "text/number.h"

namespace bench {
namespace {

/// The orthometric grid of the measuring route, worked and saved, and the doubles in it.
struct Orthometric : MeasuredRoute {
  explicit Orthometric(const Job& job) : MeasuredRoute(job, seihyou::columnCount) {
    load();
    int correction = -20;
    for (int row = 2; row < grid.rows(); row += 2) {
      grid.setText(row, seihyou::colCorrection, std::to_string(correction));
      if (++correction > 20) correction = -20;
    }
    recalculate();
    takeNumbers();
    save();
  }

  void load() { seihyou::FcDBOpen(selection, context, grid); }
  void reopen() { seihyou::FcDBReOpen(selection, context, grid); }
  void recalculate() { seihyou::FcCalcSeihyou(grid, 1, context.grade()); }
  /// From another start height than before: every height changes.
  void recalculateFromAnother() {
    raised = !raised;
    grid.setText(1, seihyou::colResult, raised ? "10.0001" : "10.0000");
    recalculate();
  }

  void check() { findings = seihyou::checks(grid, context.grade(), {}, &memory).size(); }
  void save() { seihyou::FcDbSave(selection, context, grid); }

  void takeNumbers() {
    for (int row = 2; row < grid.rows(); row += 2) {
      differences.push_back(text::readNumber(grid.text(row, seihyou::colHeight)));
      corrections.push_back(text::readNumber(grid.text(row, seihyou::colCorrection)) /
                            context.grade().factor());
    }
    cells.resize(2 * differences.size());
  }

  /// The recalculation bare: adds and formats.
  void addAndFormat() {
    const text::Pattern& pattern = context.grade().heights();
    double height = 0;
    std::size_t cell = 0;
    for (std::size_t i = 0; i < differences.size(); ++i) {
      const double difference = differences[i] + corrections[i];
      height += difference;
      cells[cell++] = pattern.format(difference);
      cells[cell++] = pattern.format(height);
    }
  }

  route::CheckMemory memory;
  bool raised = false;
  std::size_t findings = 0;         // of the last check
  std::vector<double> differences;  // m
  std::vector<double> corrections;  // m
  std::vector<std::string> cells;   // written by the bare pass
};

}  // namespace

std::vector<Measure> seihyouMeasures(const Job& job) {
  const auto route = std::make_shared<Orthometric>(job);
  const std::string observed = "SELECT * FROM KansokuSeikaData" + route->keys() + " ORDER BY SaveOrder";
  const std::string saved =
      "SELECT S.*, K.標高 AS 観測標高 FROM KansokuSeikaDataSeihyou S LEFT JOIN KansokuSeikaData K ON K.JobId "
      "= S.JobId AND K.DataKubun = S.DataKubun AND K.SaveOrder = S.SaveOrder AND K.事業番号 = S.事業番号 AND "
      "K.路線番号 = S.路線番号 AND K.標石番号 = S.水準点番号" +
      route->keys("S.") + " ORDER BY S.SaveOrder";
  const auto clear = [route] { route->clear(); };
  return {
      {"orthometric load", 3, clear, [route] { route->load(); }, bareReading(job, observed), Work::Reading},
      {"orthometric reopen", 3, clear, [route] { route->reopen(); }, bareReading(job, saved), Work::Reading},
      {"orthometric recalculate",
       1.5,
       {},
       [route] { route->recalculate(); },
       [route] { route->addAndFormat(); }},
      {"orthometric checks", 0.1, [route] { route->recalculateFromAnother(); }, [route] { route->check(); },
       [route] { route->recalculate(); }},
      {"orthometric save",
       2,
       {},
       [route] { route->save(); },
       bareReplacing(job, "KansokuSeikaDataSeihyou", route->keys()),
       Work::Saving},
  };
}

void saveOrthometricResults(const Job& job) { const Orthometric route(job); }

double memoryPerBenchMark(const Job& job) {
  const std::size_t before = platform::peakMemory();
  const Orthometric route(job);
  return static_cast<double>(platform::peakMemory() - before) / job.benchMarks;
}

}  // namespace bench
