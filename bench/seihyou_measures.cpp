#include <memory>
#include <string>
#include <vector>

#include "bare_sqlite.h"
#include "opened.h"
#include "platform/system.h"
#include "route/records.h"
#include "seihyou/calculation.h"
#include "seihyou/columns.h"
#include "seihyou/data.h"
#include "text/number.h"

namespace bench {
namespace {

using Records = std::vector<std::vector<std::string>>;

/// The orthometric grid of the measuring route and what the program and the bare road need to work on it.
struct Orthometric {
  explicit Orthometric(const Job& job) : context(started(job)), selection(onlyRoute(context)) {
    grid.setDesktop(&desktop);
    open();
    int correction = -20;
    for (int row = 2; row < grid.rows(); row += 2) {
      grid.setText(row, seihyou::colCorrection, std::to_string(correction));
      if (++correction > 20) correction = -20;
    }
    seihyou::FcCalcSeihyou(grid, 1, context.grade());
    takeNumbers();
    takeRecords();
    seihyou::FcDbSave(selection, context, grid);
  }

  void clear() {
    grid.setRows(2);
    grid.setCols(seihyou::columnCount);
    grid.clearText();
  }

  void open() {
    clear();
    seihyou::FcDBOpen(selection, context, grid);
  }

  std::string keys(const std::string& prefix = {}) const {
    return " WHERE " + prefix + "JobId = '" + context.gJobId + "' AND " + prefix + "事業番号 = '" +
           selection.jigyoBango + "' AND " + prefix + "路線番号 = '" + selection.rosenBango + "' AND " +
           prefix + "DataKubun = '" + selection.dataKubun + "'";
  }

  /// The doubles of the calculation, as a bare pass over them needs them.
  void takeNumbers() {
    for (int row = 2; row < grid.rows(); row += 2) {
      differences.push_back(text::readNumber(grid.text(row, seihyou::colHeight)));
      corrections.push_back(text::readNumber(grid.text(row, seihyou::colCorrection)) /
                            context.grade().factor());
    }
  }

  void takeRecords() {
    int order = 0;
    route::forEachBenchMark(grid, seihyou::colFlag, [&](int row, int section) {
      const auto ofSection = [&](int col) { return section == 0 ? std::string() : grid.text(section, col); };
      records.push_back({context.gJobId, selection.jigyoBango, selection.rosenBango, selection.dataKubun,
                         std::to_string(++order), grid.text(row, seihyou::colBenchMark),
                         grid.text(row, seihyou::colHeight), grid.text(row, seihyou::colRemark),
                         ofSection(seihyou::colRemark), grid.text(row, seihyou::colFlag),
                         ofSection(seihyou::colHeight), ofSection(seihyou::colCorrection),
                         grid.text(row, seihyou::colResult)});
    });
  }

  QuietDesktop desktop;
  job::JobContext context;
  route::Selection selection;
  ui::Grid grid;
  std::vector<double> differences;  // m
  std::vector<double> corrections;  // m
  Records records;
};

void addAndFormat(const Orthometric& route, std::vector<std::string>& cells) {
  const text::Pattern& pattern = route.context.grade().heights();
  double height = 0;
  std::size_t cell = 0;
  for (std::size_t i = 0; i < route.differences.size(); ++i) {
    const double difference = route.differences[i] + route.corrections[i];
    height += difference;
    cells[cell++] = pattern.format(difference);
    cells[cell++] = pattern.format(height);
  }
}

}  // namespace

std::vector<Measure> seihyouMeasures(const Job& job) {
  const auto route = std::make_shared<Orthometric>(job);
  const auto cells = std::make_shared<std::vector<std::string>>(2 * route->differences.size());
  const std::string reading = "SELECT * FROM KansokuSeikaData" + route->keys() + " ORDER BY SaveOrder";
  const std::string joined =
      "SELECT S.*, K.標高 AS 観測標高 FROM KansokuSeikaDataSeihyou S LEFT JOIN KansokuSeikaData K ON K.JobId "
      "= S.JobId"
      " AND K.DataKubun = S.DataKubun AND K.SaveOrder = S.SaveOrder AND K.事業番号 = S.事業番号 AND "
      "K.路線番号 = S.路線番号"
      " AND K.標石番号 = S.水準点番号" +
      route->keys("S.") + " ORDER BY S.SaveOrder";
  const std::string deletion = "DELETE FROM KansokuSeikaDataSeihyou" + route->keys();
  const std::string insertion =
      "INSERT INTO KansokuSeikaDataSeihyou (JobId, 事業番号, 路線番号, DataKubun, SaveOrder, 水準点番号, "
      "標高, 備考1, 備考2,"
      " RosenEndDataFlg, 中数, 正標高補正数, 正標高結果) VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?)";
  const auto clear = [route] { route->clear(); };
  const auto reopen = [route] { seihyou::FcDBReOpen(route->selection, route->context, route->grid); };
  return {
      {"orthometric load", 3, clear,
       [route] { seihyou::FcDBOpen(route->selection, route->context, route->grid); },
       [job, reading] { BareSqlite(job.path).readAll(reading); }},
      {"orthometric reopen", 3, clear, reopen, [job, joined] { BareSqlite(job.path).readAll(joined); }},
      {"orthometric recalculate",
       1.5,
       {},
       [route] { seihyou::FcCalcSeihyou(route->grid, 1, route->context.grade()); },
       [route, cells] { addAndFormat(*route, *cells); }},
      {"orthometric save",
       2,
       {},
       [route] { seihyou::FcDbSave(route->selection, route->context, route->grid); },
       [job, deletion, insertion, route] {
         BareSqlite(job.path).replace(deletion.c_str(), insertion, route->records);
       }},
  };
}

double memoryPerBenchMark(const Job& job) {
  const std::size_t before = platform::peakMemory();
  const Orthometric route(job);
  return static_cast<double>(platform::peakMemory() - before) / job.benchMarks;
}

}  // namespace bench
