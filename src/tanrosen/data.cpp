#include "tanrosen/data.h"

#include <string>

#include "db/database.h"
#include "db/sql.h"
#include "route/filler.h"
#include "route/observations.h"
#include "route/records.h"
#include "tanrosen/columns.h"
#include "tanrosen/saved_bench_marks.h"
#include "ui/error_trap.h"

namespace tanrosen {
namespace {

/// Saved results (A) beside the heights of today (B), which tell whose they are.
db::Sql savedSql(const job::JobContext& context, const route::Selection& selection) {
  return " SELECT A.*,B.標高,B.標石番号,B.DataKubun FROM " +
         db::sqlName(context.tables.gTblKansokuSeikaDataTanrosen) + " A" + " LEFT JOIN " +
         db::sqlName(context.tables.gTblKansokuSeikaData) + " B" + " ON A.JobId = B.JobId" +
         " AND A.事業番号 = B.事業番号" + " AND A.路線番号 = B.路線番号" + " AND A.SaveOrder = B.SaveOrder" +
         route::routeKeys(context, selection, db::Sql("A.")) +
         route::loadCategoryCondition(selection.dataKubun, db::Sql("A.")) + " ORDER BY A.SaveOrder";
}

bool isKnown(const db::Value& height) { return height.number() != 0; }

/// Both lists beside the grid, as bench marks come.
void list(const BenchMarkLists& lists, const std::string& benchMark, bool known) {
  if (benchMark.empty()) return;
  lists.lstSuijyun.addItem(benchMark);
  if (known) lists.lstKiti.addItem(benchMark);
}

/// Lays observation records into the grid, one after another.
class ObservedRoute {
 public:
  ObservedRoute(const job::JobContext& context, const db::Recordset& records, ui::Grid& grid,
                const BenchMarkLists& lists)
      : records_(records), rows_(records, grid), lists_(lists), grade_(context.grade()) {}

  /// Adds the present record. Returns false where the grid could not take it (already reported).
  bool add() {
    const std::string flag = rows_.text(flag_);
    const db::Value height = rows_.value(height_);
    if (heights_.atStart()) heights_.begin(height);
    if (!rows_.addPair()) return false;
    benchMark(flag, height);
    const db::Value meanDifference = rows_.value(meanDifference_);
    if (hasSection(flag)) {
      rows_.benchMark(colDistance, distance_);
      rows_.section(colHeight, meanDifference_, grade_.heights());
    }
    heights_.leave(flag, meanDifference);
    return true;
  }

 private:
  static bool hasSection(const std::string& flag) {
    return flag != route::routeEnd && flag != route::repeatedPoint;
  }

  void benchMark(const std::string& flag, const db::Value& height) {
    const std::string name = rows_.text(benchMark_);
    rows_.benchMark(colBenchMark, name);
    rows_.benchMark(colHeight, heights_.reach(flag));
    if (isKnown(height)) rows_.benchMark(colResult, route::formatted(height, grade_.heights()));
    rows_.benchMark(colFlag, flag);
    rows_.benchMark(colRoute, rows_.value(route_).text());
    list(lists_, name, isKnown(height));
  }

  const db::Recordset& records_;
  route::Filler rows_;
  const BenchMarkLists& lists_;
  const job::Grade grade_;
  const db::Column benchMark_ = records_.column("標石番号");
  const db::Column distance_ = records_.column("距離");
  const db::Column height_ = records_.column("標高");
  const db::Column meanDifference_ = records_.column("中数");
  const db::Column flag_ = records_.column("RosenEndDataFlg");
  const db::Column route_ = records_.column("路線番号");
  route::RunningHeights heights_{grade_.heights(), grade_.factor()};
};

/// Lays saved bench marks into the grid, one after another.
class SavedRoute {
 public:
  SavedRoute(const job::JobContext& context, ui::Grid& grid, const BenchMarkLists& lists)
      : rows_(grid), lists_(lists), pattern_(context.grade().heights()) {}

  /// Returns false where the grid could not take it (already reported).
  bool add(const SavedBenchMark& saved) {
    if (!rows_.addPair()) return false;
    rows_.benchMark(colBenchMark, saved.name);
    rows_.benchMark(colDistance, saved.distance);
    rows_.benchMark(colCorrection, saved.correction);
    rows_.benchMark(colRemark, saved.remark1);
    rows_.benchMark(colFlag, saved.flag);
    rows_.benchMark(colRoute, saved.route);
    heights(saved);
    if (saved.flag == route::routeEnd) return true;
    rows_.section(colHeight, formatted(saved.meanDifference));
    rows_.section(colRemark, saved.remark2);
    return true;
  }

 private:
  std::string formatted(const db::Value& value) const { return route::formatted(value, pattern_); }

  void heights(const SavedBenchMark& saved) {
    const db::Value& today = saved.heightToday;
    rows_.benchMark(colHeight, formatted(saved.height.isBlank() ? today : saved.height));
    rows_.benchMark(colResult, formatted(saved.result.isBlank() && isKnown(today) ? today : saved.result));
    list(lists_, saved.name, isKnown(today));
  }

  route::RowPairs rows_;
  const BenchMarkLists& lists_;
  const text::Pattern& pattern_;
};

/// Returns false where the grid could not take all of them (already reported).
bool laySaved(db::Recordset& records, SavedRoute& route) {
  SavedBenchMarks saved(records);
  for (auto benchMarks = saved.next(); !benchMarks.empty(); benchMarks = saved.next())
    for (const SavedBenchMark& benchMark : benchMarks)
      if (!route.add(benchMark)) return false;
  return true;
}

/// Adds one bench mark to the saved results.
void addRecord(db::Recordset& records, const route::Selection& selection, const job::JobContext& context,
               const ui::Grid& grid, int row, int sectionRow, int order) {
  route::beginRecord(records, context, selection, grid.text(row, colRoute), order);
  records.set("水準点番号", grid.text(row, colBenchMark));
  records.set("距離", route::cellValue(grid, row, colDistance));
  records.set("標高", route::cellValue(grid, row, colHeight));
  records.set("単路線補正数", route::cellValue(grid, row, colCorrection));
  records.set("単路線補正結果", route::cellValue(grid, row, colResult));
  records.set("備考1", route::cellValue(grid, row, colRemark));
  records.set("備考2", route::sectionValue(grid, sectionRow, colRemark));
  records.set("RosenEndDataFlg", route::cellValue(grid, row, colFlag));
  if (grid.text(row, colFlag) != route::routeEnd)
    records.set("中数", route::sectionValue(grid, sectionRow, colHeight));
  records.update();
}

}  // namespace

bool FcDBOpen(const route::Selection& selection, const job::JobContext& context, ui::Grid& grid,
              const BenchMarkLists& lists) {
  lists.clear();
  return route::fill(grid, "FcDBOpen", context.gDbPath, route::observationsSql(context, selection),
                     [&](db::Database&, db::Recordset& records) {
                       ObservedRoute observed(context, records, grid, lists);
                       return route::layRecords(records, observed);
                     });
}

bool FcDBReOpen(const route::Selection& selection, const job::JobContext& context, ui::Grid& grid,
                const BenchMarkLists& lists) {
  lists.clear();
  return route::fill(grid, "FcDBReOpen", context.gDbPath, savedSql(context, selection),
                     [&](db::Database&, db::Recordset& records) {
                       SavedRoute saved(context, grid, lists);
                       return laySaved(records, saved);
                     });
}

bool FcDbSave(const route::Selection& selection, const job::JobContext& context, const ui::Grid& grid) {
  return ui::trapped(grid.desktop(), "FcDbSave", [&] {
    route::saveBenchMarks(context, selection, context.tables.gTblKansokuSeikaDataTanrosen, grid, colFlag,
                          [&](db::Recordset& records, int row, int sectionRow, int order) {
                            addRecord(records, selection, context, grid, row, sectionRow, order);
                          });
  });
}

}  // namespace tanrosen
