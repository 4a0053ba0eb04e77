#include "route/observations.h"

#include "open/open.h"
#include "text/padding.h"

namespace route {

db::Sql routeKeys(const job::JobContext& context, const Selection& selection, const db::Sql& prefix) {
  return " WHERE " + prefix + "JobId =" + db::sqlValue(context.gJobId) + " AND " + prefix +
         "事業番号 =" + db::sqlValue(selection.jigyoBango) + routeCondition(selection, prefix);
}

db::Sql observationsSql(const job::JobContext& context, const Selection& selection) {
  return " SELECT * FROM " + db::sqlName(context.tables.gTblKansokuSeikaData) +
         routeKeys(context, selection) + loadCategoryCondition(selection.dataKubun) + " ORDER BY SaveOrder";
}

db::Sql savedRecordsSql(const job::JobContext& context, const Selection& selection, std::string_view table) {
  return "SELECT * FROM " + db::sqlName(table) + routeKeys(context, selection) +
         plainCategoryCondition(selection.dataKubun);
}

void saveBenchMarks(const job::JobContext& context, const Selection& selection, std::string_view table,
                    const ui::Grid& grid, int flagCol,
                    const std::function<void(db::Recordset&, int, int, int)>& add) {
  const auto write = [&](db::Recordset& records) {
    int order = 0;
    forEachBenchMark(grid, flagCol, [&](int row, int sectionRow) { add(records, row, sectionRow, ++order); });
  };
  replaceRecords(context.gDbPath, savedRecordsSql(context, selection, table), write,
                 extentOn(grid.desktop()));
}

void readRecords(std::string_view dbPath, const db::Sql& sql,
                 const std::function<void(db::Database&, db::Recordset&)>& read) {
  const auto database = db::openDatabase(dbPath);
  const auto records = database->openRecordset(sql);
  read(*database, *records);
  records->close();
  database->close();
}

std::string fieldText(const db::Recordset& records, db::Column column) {
  return db::FcNullToBlank(records.value(column));
}

void beginRecord(db::Recordset& records, const job::JobContext& context, const Selection& selection,
                 std::string_view ownRoute, int order) {
  records.addNew();
  records.set("JobId", context.gJobId);
  records.set("事業番号", selection.jigyoBango);
  records.set("路線番号", paddedKey(text::trimmed(ownRoute).empty() ? selection.rosenBango : ownRoute));
  records.set("DataKubun", selection.dataKubun);
  records.set("SaveOrder", order);
}

db::Value sectionValue(const ui::Grid& grid, int sectionRow, int col) {
  return sectionRow == 0 ? db::Value() : cellValue(grid, sectionRow, col);
}

void RunningHeights::begin(const db::Value& height) {
  start_ = height;
  height_ = height.number();
  repeated_.restart();
  mean_.reset();
}

std::string RunningHeights::reach(std::string_view flag) {
  std::string height = shown();
  if (flag == repeatedPoint && repeated_.add(height_)) mean_ = repeated_.mean();
  return height;
}

std::string RunningHeights::shown() {
  if (atStart_) return formatted(start_, pattern_);
  const double height = mean_.value_or(height_);
  mean_.reset();
  return pattern_.format(height);
}

void RunningHeights::leave(std::string_view flag, const db::Value& meanDifference) {
  height_ += meanDifference.number();
  atStart_ = flag == routeEnd;
}

}  // namespace route
