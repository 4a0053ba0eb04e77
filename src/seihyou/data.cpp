#include "seihyou/data.h"

#include <optional>
#include <string>

#include "db/database.h"
#include "db/sql.h"
#include "route/filler.h"
#include "route/observations.h"
#include "route/records.h"
#include "seihyou/columns.h"
#include "text/number.h"
#include "ui/error_trap.h"

namespace seihyou {
namespace {

/// The saved end of the route listed before, where it is this bench mark.
db::Sql savedEndSql(const job::JobContext& context, const route::Selection& selection,
                    const std::string& benchMark) {
  return "SELECT 標高 FROM " + db::sqlName(context.tables.gTblKansokuSeikaDataSeihyou) +
         " WHERE 水準点番号 = " + db::sqlValue(benchMark) + " AND RosenEndDataFlg = '-1'" +
         " AND 事業番号 = " + db::sqlValue(selection.jigyoBango) +
         " AND 路線番号 = " + db::sqlValue(selection.previousRosen) +
         " AND DataKubun =" + db::sqlValue(selection.dataKubun) +
         " AND JobId = " + db::sqlValue(context.gJobId);
}

/// Saved results beside the observed heights of today.
db::Sql savedSql(const job::JobContext& context, const route::Selection& selection) {
  const db::Sql saved = db::sqlName(context.tables.gTblKansokuSeikaDataSeihyou);
  const db::Sql observed = db::sqlName(context.tables.gTblKansokuSeikaData);
  const auto same = [&](db::SourceText ours, db::SourceText theirs) {
    return " (" + observed + "." + ours + " = " + saved + "." + theirs + ")";
  };
  return " SELECT " + saved + ".*," + observed + ".標高 AS 観測標高" + " FROM " + saved + " LEFT JOIN " +
         observed + " ON" + same("JobId", "JobId") + " AND " + same("DataKubun", "DataKubun") + " AND " +
         same("SaveOrder", "SaveOrder") + " AND " + same("事業番号", "事業番号") + " AND" +
         same("路線番号", "路線番号") + " AND" + same("標石番号", "水準点番号") +
         route::routeKeys(context, selection, saved + ".") +
         route::loadCategoryCondition(selection.dataKubun, saved + ".") + " ORDER BY " + saved + ".SaveOrder";
}

/// Lays observation records into the grid, one after another.
class ObservedRoute {
 public:
  ObservedRoute(const route::Selection& selection, const job::JobContext& context, db::Database& database,
                const db::Recordset& records, ui::Grid& grid)
      : selection_(selection),
        context_(context),
        database_(database),
        records_(records),
        rows_(records, grid),
        pattern_(context.grade().heights()) {}

  /// Adds the present record. Returns false where the grid could not take it (already reported).
  bool add() {
    const std::string flag = rows_.text(flag_);
    if (heights_.atStart()) heights_.begin(startHeight());
    if (!rows_.addBenchMark()) return false;
    benchMark(flag);
    if (flag != route::routeEnd && !rows_.addSection()) return false;
    if (flag != route::routeEnd && flag != route::repeatedPoint)
      rows_.section(colHeight, meanDifference_, pattern_);
    heights_.leave(flag, rows_.value(meanDifference_));
    return true;
  }

 private:
  db::Value startHeight() const {
    db::Value start = rows_.value(height_);
    if (selection_.previousRosen.empty()) return start;
    const auto ends = database_.openRecordset(savedEndSql(context_, selection_, rows_.text(benchMark_)));
    if (!ends->eof() && !ends->field("標高").isBlank()) start = ends->field("標高");
    ends->close();
    return start;
  }

  void benchMark(const std::string& flag) {
    rows_.benchMark(colBenchMark, benchMark_);
    rows_.benchMark(colHeight, height_, pattern_);
    rows_.benchMark(colResult, heights_.reach(flag));
    rows_.benchMark(colFlag, flag);
    rows_.benchMark(colRoute, rows_.value(route_).text());
  }

  const route::Selection& selection_;
  const job::JobContext& context_;
  db::Database& database_;
  const db::Recordset& records_;
  route::Filler rows_;
  const text::Pattern& pattern_;
  const db::Column benchMark_ = records_.column("標石番号");
  const db::Column height_ = records_.column("標高");
  const db::Column meanDifference_ = records_.column("中数");
  const db::Column flag_ = records_.column("RosenEndDataFlg");
  const db::Column route_ = records_.column("路線番号");
  route::RunningHeights heights_{pattern_, route::tenthsOfMillimetre};
};

/// Lays saved records into the grid, one after another.
class SavedRoute {
 public:
  SavedRoute(const job::JobContext& context, const db::Recordset& records, ui::Grid& grid)
      : records_(records), rows_(records, grid), grade_(context.grade()), pattern_(grade_.heights()) {}

  /// Adds the present record. Returns false where the grid could not take it (already reported).
  bool add() {
    const std::string flag = rows_.text(flag_);
    if (!rows_.addBenchMark()) return false;
    benchMark(flag);
    pairedMean_ = flag == route::repeatedPoint && takePaired(rows_.value(result_));
    if (flag != route::routeEnd) return section();
    height_.reset();
    repeated_.restart();
    return true;
  }

 private:
  void benchMark(const std::string& flag) {
    const bool isObserved = !rows_.value(observedHeight_).isBlank();
    rows_.benchMark(colBenchMark, benchMark_);
    rows_.benchMark(colHeight, isObserved ? observedHeight_ : savedHeight_, pattern_);
    rows_.benchMark(colResult, resultText(flag));
    rows_.benchMark(colRemark, remark1_);
    rows_.benchMark(colFlag, flag);
    rows_.benchMark(colRoute, rows_.value(route_).text());
    if (!height_) difference_ = 0;
    height_ = text::readNumber(rows_.shownAtBenchMark(colResult));
  }

  /// Returns true where this result is the second of a pair.
  bool takePaired(const db::Value& result) {
    if (!result.isBlank()) return repeated_.add(result.number());
    repeated_.restart();
    return false;
  }

  /// A route end has no saved result: its height follows from the bench mark before it, or is the mean of the
  /// two repeated ones before it.
  std::string resultText(const std::string& flag) const {
    if (flag != route::routeEnd) return route::formatted(rows_.value(result_), pattern_);
    if (pairedMean_) return pattern_.format(repeated_.mean());
    return height_ ? pattern_.format(*height_ + difference_) : std::string();
  }

  bool section() {
    if (!rows_.addSection()) return false;
    const std::string correction = rows_.text(correction_);
    rows_.section(colHeight, meanDifference_, pattern_);
    rows_.section(colCorrection, correction);
    rows_.section(colRemark, remark2_);
    const std::string shown = rows_.shownAtSection(colHeight);
    if (shown.empty() && correction.empty()) return true;
    difference_ = text::readNumber(shown) + text::readNumber(correction) / grade_.factor();
    rows_.section(colResult, pattern_.format(difference_));
    return true;
  }

  const db::Recordset& records_;
  route::Filler rows_;
  const job::Grade grade_;
  const text::Pattern& pattern_;
  const db::Column benchMark_ = records_.column("水準点番号");
  const db::Column observedHeight_ = records_.column("観測標高");
  const db::Column savedHeight_ = records_.column("標高");
  const db::Column meanDifference_ = records_.column("中数");
  const db::Column correction_ = records_.column("正標高補正数");
  const db::Column result_ = records_.column("正標高結果");
  const db::Column remark1_ = records_.column("備考1");
  const db::Column remark2_ = records_.column("備考2");
  const db::Column flag_ = records_.column("RosenEndDataFlg");
  const db::Column route_ = records_.column("路線番号");
  route::PairMean repeated_{route::tenthsOfMillimetre};
  bool pairedMean_ = false;       // the last record was the second of a pair
  std::optional<double> height_;  // shown at the bench mark before on the route, m
  double difference_ = 0;         // last corrected difference of the route, m
};

/// Adds one bench mark to the saved results.
void addRecord(db::Recordset& records, const route::Selection& selection, const job::JobContext& context,
               const ui::Grid& grid, int row, int sectionRow, int order) {
  route::beginRecord(records, context, selection, grid.text(row, colRoute), order);
  records.set("水準点番号", grid.text(row, colBenchMark));
  records.set("標高", route::cellValue(grid, row, colHeight));
  records.set("備考1", route::cellValue(grid, row, colRemark));
  records.set("備考2", route::sectionValue(grid, sectionRow, colRemark));
  records.set("RosenEndDataFlg", route::cellValue(grid, row, colFlag));
  if (grid.text(row, colFlag) != route::routeEnd) {
    records.set("中数", route::sectionValue(grid, sectionRow, colHeight));
    records.set("正標高補正数", route::sectionValue(grid, sectionRow, colCorrection));
    records.set("正標高結果", route::cellValue(grid, row, colResult));
  }
  records.update();
}

}  // namespace

bool FcDBOpen(const route::Selection& selection, const job::JobContext& context, ui::Grid& grid) {
  return route::fill(grid, "FcDBOpen", context.gDbPath, route::observationsSql(context, selection),
                     [&](db::Database& database, db::Recordset& records) {
                       ObservedRoute observed(selection, context, database, records, grid);
                       return route::layRecords(records, observed);
                     });
}

bool FcDBReOpen(const route::Selection& selection, const job::JobContext& context, ui::Grid& grid) {
  return route::fill(grid, "FcDBReOpen", context.gDbPath, savedSql(context, selection),
                     [&](db::Database&, db::Recordset& records) {
                       SavedRoute saved(context, records, grid);
                       return route::layRecords(records, saved);
                     });
}

bool FcDbSave(const route::Selection& selection, const job::JobContext& context, const ui::Grid& grid) {
  return ui::trapped(grid.desktop(), "FcDbSave", [&] {
    route::saveBenchMarks(context, selection, context.tables.gTblKansokuSeikaDataSeihyou, grid, colFlag,
                          [&](db::Recordset& records, int row, int sectionRow, int order) {
                            addRecord(records, selection, context, grid, row, sectionRow, order);
                          });
  });
}

}  // namespace seihyou
