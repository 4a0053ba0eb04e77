#include "daen/data.h"

#include <string>

#include "daen/columns.h"
#include "daen/loaded_heights.h"
#include "db/database.h"
#include "db/sql.h"
#include "route/filler.h"
#include "route/observations.h"
#include "route/records.h"
#include "text/number.h"
#include "text/padding.h"
#include "ui/error_trap.h"

namespace daen {
namespace {

/// "JobId ='…' AND 事業番号 ='…'" and the route. `jobId` is the column's name as this query spells it.
db::Sql routeKeys(db::SourceText jobId, const job::JobContext& context, const route::Selection& selection) {
  return db::Sql(jobId) + " =" + db::sqlValue(context.gJobId) +
         " AND 事業番号 =" + db::sqlValue(route::paddedKey(selection.jigyoBango)) +
         route::routeCondition(selection);
}

db::Sql loadSql(const job::JobContext& context, const route::Selection& selection) {
  return " SELECT * FROM " + db::sqlName(context.tables.gTblKansokuSeikaData) + " WHERE " + " " +
         routeKeys("JobId", context, selection) + route::loadCategoryCondition(selection.dataKubun) +
         " ORDER BY DataKubun,SaveOrder";
}

db::Sql savedSql(const job::JobContext& context, const route::Selection& selection) {
  return " SELECT * FROM " + db::sqlName(context.tables.gTblKansokuSeikaDataDaen) + " WHERE  " +
         routeKeys("JobId", context, selection) + route::plainCategoryCondition(selection.dataKubun);
}

/// What observed and saved records have in common: a bench-mark row and a segment row to each.
class RouteRows {
 public:
  RouteRows(const db::Recordset& records, const Formats& formats, ui::Grid& grid)
      : formats_(formats), records_(records), rows_(records, grid) {}

 protected:
  /// Adds the two rows of the present record with what every record has. Returns false where the grid could
  /// not take them (already reported).
  bool addRows() {
    if (!rows_.addPair()) return false;
    flag_ = rows_.text(flagColumn_);
    rows_.benchMark(colBenchMark, benchMark_);
    rows_.benchMark(colDataForm, dataKubun_);
    rows_.benchMark(colSaveOrder, saveOrder_);
    rows_.benchMark(colEndMark, flag_);
    rows_.benchMark(colFlag, flag_);
    if (!ends()) rows_.section(colDistance, distance_, formats_.distance);
    return true;
  }

  std::string benchMark() const { return rows_.text(benchMark_); }
  const std::string& flag() const { return flag_; }
  /// True where the present record ends a route.
  bool ends() const { return flag_ == route::routeEnd; }

  const Formats& formats_;
  const db::Recordset& records_;
  route::Filler rows_;

 private:
  const db::Column benchMark_ = records_.column("標石番号");
  const db::Column distance_ = records_.column("距離");
  const db::Column dataKubun_ = records_.column("DataKubun");
  const db::Column saveOrder_ = records_.column("SaveOrder");
  const db::Column flagColumn_ = records_.column("RosenEndDataFlg");
  std::string flag_;
};

/// Lays observation records into the grid, one after another.
class ObservedRows : public RouteRows {
 public:
  using RouteRows::RouteRows;

  bool add() {
    if (!addRows()) return false;
    const auto height = heights_.reach(benchMark(), flag(), rows_.value(height_).number());
    if (height) rows_.benchMark(colHeight, formats_.loaded.format(*height));
    if (!ends()) rows_.section(colHeight, difference_, formats_.difference);
    heights_.leave(rows_.value(difference_).number());
    return true;
  }

 private:
  const db::Column height_ = records_.column("標高");
  const db::Column difference_ = records_.column("中数");
  LoadedHeights heights_;
};

/// Lays saved records into the grid, one after another.
class SavedRows : public RouteRows {
 public:
  using RouteRows::RouteRows;

  bool add() {
    if (!addRows()) return false;
    rows_.benchMark(colHeight, height_, formats_.loaded);
    rows_.benchMark(colCorrection, correction_, formats_.correction);
    rows_.benchMark(colResult, result_, formats_.height);
    rows_.benchMark(colRemark, remark1_);
    if (!ends()) rows_.section(colRemark, remark2_);
    return true;
  }

 private:
  const db::Column height_ = records_.column("標高");
  const db::Column correction_ = records_.column("楕円補正値");
  const db::Column result_ = records_.column("楕円補正結果");
  const db::Column remark1_ = records_.column("備考1");
  const db::Column remark2_ = records_.column("備考2");
};

/// Returns true where no error was reported.
template <class Rows>
bool fill(ui::Grid& grid, std::string_view procedure, const db::Sql& sql, const job::JobContext& context,
          const Formats& formats) {
  return route::fill(grid, procedure, context.gDbPath, sql, [&](db::Database&, db::Recordset& records) {
    Rows rows(records, formats, grid);
    return route::layRecords(records, rows);
  });
}

/// Adds one bench mark to the saved results; a route end has no segment behind it.
void addRecord(db::Recordset& records, const route::Selection& selection, const job::JobContext& context,
               const ui::Grid& grid, int row) {
  const bool ends = grid.text(row, colEndMark) == route::routeEnd;
  const int segmentRow = ends || row + 1 >= grid.rows() ? 0 : row + 1;
  records.addNew();
  records.set("JobId", context.gJobId);
  records.set("SaveOrder", text::Fix(text::readNumber(grid.text(row, colSaveOrder))));
  records.set("事業番号", route::paddedKey(selection.jigyoBango));
  records.set("路線番号", route::paddedKey(selection.rosenBango));
  records.set("標石番号", grid.text(row, colBenchMark));
  records.set("距離", route::sectionValue(grid, segmentRow, colDistance));
  records.set("楕円補正値", route::cellValue(grid, row, colCorrection));
  records.set("標高", route::cellValue(grid, row, colHeight));
  records.set("楕円補正結果", route::cellValue(grid, row, colResult));
  records.set("備考1", route::cellValue(grid, row, colRemark));
  records.set("備考2", route::sectionValue(grid, segmentRow, colRemark));
  records.set("DataKubun", selection.dataKubun);
  records.set("RosenEndDataFlg", route::cellValue(grid, row, colEndMark));
  records.update();
}

bool hasNumber(const ui::Grid& grid, int row) { return !text::trimmed(grid.text(row, colBenchMark)).empty(); }

}  // namespace

bool FcDHseiDBOpen(const route::Selection& selection, const job::JobContext& context, const Formats& formats,
                   ui::Grid& Grid1) {
  return fill<ObservedRows>(Grid1, "FcDHseiDBOpen", loadSql(context, selection), context, formats);
}

bool FcDHseiDBReOpen(const route::Selection& selection, const job::JobContext& context,
                     const Formats& formats, ui::Grid& Grid1) {
  return fill<SavedRows>(Grid1, "FcDHseiDBReOpen", savedSql(context, selection), context, formats);
}

db::Sql savedRouteSql(const job::JobContext& context, const route::Selection& selection) {
  return "select * from " + db::sqlName(context.tables.gTblKansokuSeikaDataDaen) + " WHERE " +
         routeKeys("JobID", context, selection) + route::plainCategoryCondition(selection.dataKubun);
}

void replaceRoute(db::Database& database, const route::Selection& selection, const job::JobContext& context,
                  const ui::Grid& Grid1) {
  route::replaceRecords(database, savedRouteSql(context, selection), [&](db::Recordset& records) {
    for (int row = 1; row < Grid1.rows(); row += 2) {
      if (hasNumber(Grid1, row)) addRecord(records, selection, context, Grid1, row);
      if (Grid1.text(row, colEndMark) == route::routeEnd) break;
    }
  });
}

bool FcDHseiSave(const route::Selection& selection, const job::JobContext& context, const ui::Grid& Grid1) {
  return ui::trapped(Grid1.desktop(), "FcDHseiSave", [&] {
    route::save(context.gDbPath, route::Extent::AsFarAsItCame,
                [&](db::Database& database) { replaceRoute(database, selection, context, Grid1); });
    if (Grid1.desktop() != nullptr) route::reportSaved(*Grid1.desktop());
  });
}

bool FcDaenSetLstHyouseki(const ui::Grid& Grid1, ui::ListBox& LstHyousekiNo1, ui::ListBox& LstHyousekiNo2) {
  return ui::trapped(Grid1.desktop(), "FcDaenSetLstHyouseki", [&] {
    LstHyousekiNo1.clear();
    LstHyousekiNo2.clear();
    for (int row = 1; row < Grid1.rows(); row += 2) {
      if (!hasNumber(Grid1, row)) continue;
      LstHyousekiNo1.addItem(Grid1.text(row, colBenchMark));
      LstHyousekiNo2.addItem(Grid1.text(row, colBenchMark));
    }
  });
}

}  // namespace daen
