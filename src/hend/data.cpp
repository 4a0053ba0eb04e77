#include "hend/data.h"

#include <algorithm>
#include <array>
#include <optional>

#include "db/database.h"
#include "db/sql.h"
#include "hend/calculation.h"
#include "hend/columns.h"
#include "open/open.h"
#include "route/filler.h"
#include "route/observations.h"
#include "route/records.h"
#include "text/date.h"
#include "text/padding.h"
#include "ui/error_trap.h"

namespace hend {
namespace {

constexpr std::string_view familyCategory = "1";

/// The keys of a selection but for route and category; numbers are taken without blanks around them.
db::Sql projectKeys(const job::JobContext& context, const route::Selection& selection) {
  return " WHERE JobId =" + db::sqlValue(context.gJobId) +
         " AND 事業番号 =" + db::sqlValue(text::trimmed(selection.jigyoBango));
}

db::Sql exactRoute(const route::Selection& selection) {
  return " AND 路線番号 =" + db::sqlValue(text::trimmed(selection.rosenBango));
}

db::Sql familyOfRoute(const route::Selection& selection) {
  return " AND MID(路線番号,3,4) =" + db::sqlValue(route::routeFamily(text::trimmed(selection.rosenBango)));
}

db::Sql observedSql(const job::JobContext& context, const route::Selection& selection,
                    const db::Sql& routeCondition) {
  return " SELECT * FROM " + db::sqlName(context.tables.gTblKansokuSeikaData) +
         projectKeys(context, selection) + routeCondition +
         route::loadCategoryCondition(selection.dataKubun) + " ORDER BY DataKubun,SaveOrder";
}

/// A stored date as the grid shows it: eight digits get their slashes, ten characters stay, any other text is
/// written anew where it is a date.
std::string shownDate(const std::string& stored) {
  const bool digits = std::all_of(stored.begin(), stored.end(),
                                  [](char character) { return character >= '0' && character <= '9'; });
  if (digits && stored.size() == 8)
    return stored.substr(0, 4) + "/" + stored.substr(4, 2) + "/" + stored.substr(6, 2);
  if (text::length(stored) == 10) return stored;
  const std::optional<text::Date> date = text::Date::parse(stored);
  return date ? date->text() : stored;
}

/// Lays observation records into the grid.
class ObservedRoute {
 public:
  ObservedRoute(const db::Recordset& records, const job::JobContext& context, ui::Grid& grid)
      : records_(records), rows_(records, grid), heights_(context.grade().heights()) {}

  bool add() {
    if (!rows_.addPair()) return false;
    const std::string mark = rows_.text(mark_);
    rows_.benchMark(colBenchMark, benchMark_);
    rows_.benchMark(colOrder, order_);
    rows_.benchMark(colCategory, category_);
    rows_.benchMark(colMark, mark);
    if (mark == route::routeEnd) return true;
    rows_.benchMark(colNewDate, shownDate(rows_.text(newDate_)));
    rows_.benchMark(colOldDate, shownDate(rows_.text(oldDate_)));
    if (mark == route::repeatedPoint) return true;
    rows_.section(colNewHeight, newHeight_, heights_);
    rows_.section(colOldHeight, oldHeight_, heights_);
    return true;
  }

 private:
  const db::Recordset& records_;
  route::Filler rows_;
  const text::Pattern& heights_;
  const db::Column benchMark_ = records_.column("標石番号");
  const db::Column order_ = records_.column("SaveOrder");
  const db::Column category_ = records_.column("DataKubun");
  const db::Column mark_ = records_.column("RosenEndDataFlg");
  const db::Column newDate_ = records_.column("観測年月日");
  const db::Column newHeight_ = records_.column("中数");
  const db::Column oldDate_ = records_.column("前回観測日");
  const db::Column oldHeight_ = records_.column("前回中数");
};

/// Lays saved records into the grid and remembers their reference date.
class SavedRoute {
 public:
  SavedRoute(const db::Recordset& records, const job::JobContext& context, ui::Grid& grid,
             std::string& referenceDate)
      : records_(records),
        rows_(records, grid),
        heights_(context.grade().heights()),
        referenceDate_(referenceDate) {}

  bool add() {
    referenceDate_ = rows_.text(reference_);
    if (!rows_.addPair()) return false;
    const std::string mark = rows_.text(mark_);
    benchMark(mark);
    section(mark);
    return true;
  }

 private:
  void benchMark(const std::string& mark) {
    rows_.benchMark(colBenchMark, benchMark_);
    rows_.benchMark(colOrder, order_);
    rows_.benchMark(colCategory, category_);
    rows_.benchMark(colMark, mark);
    rows_.benchMark(colNewDate, newDate_);
    rows_.benchMark(colOldDate, oldDate_);
    rows_.benchMark(colRemark, remark1_);
    if (mark == route::routeEnd) return;
    rows_.benchMark(colDaysNewOld, daysNewOld_);
    rows_.benchMark(colDaysReference, daysReference_);
    rows_.benchMark(colCorrection, newPointCorrection_, heights_);
  }

  void section(const std::string& mark) {
    rows_.section(colRemark, remark2_);
    if (mark == route::routeEnd) return;
    rows_.section(colNewHeight, newHeight_, heights_);
    rows_.section(colOldHeight, oldHeight_, heights_);
    rows_.section(colDifference, difference_, heights_);
    rows_.section(colRate, rate_, dailyChange());
    rows_.section(colCorrection, correction_, heights_);
    rows_.section(colResult, result_, heights_);
  }

  const db::Recordset& records_;
  route::Filler rows_;
  const text::Pattern& heights_;
  std::string& referenceDate_;
  const db::Column benchMark_ = records_.column("標石番号");
  const db::Column order_ = records_.column("SaveOrder");
  const db::Column category_ = records_.column("DataKubun");
  const db::Column mark_ = records_.column("RosenEndDataFlg");
  const db::Column reference_ = records_.column("基準観測日");
  const db::Column newDate_ = records_.column("新観測年月日");
  const db::Column newHeight_ = records_.column("新観測比高");
  const db::Column oldDate_ = records_.column("旧測年月日");
  const db::Column oldHeight_ = records_.column("旧観測比高");
  const db::Column difference_ = records_.column("比高差");
  const db::Column daysNewOld_ = records_.column("新_旧経過日数");
  const db::Column rate_ = records_.column("日毎比高変化");
  const db::Column daysReference_ = records_.column("基準_新経過日数");
  const db::Column correction_ = records_.column("変動補正量");
  const db::Column result_ = records_.column("変動補正結果");
  const db::Column newPointCorrection_ = records_.column("新設点用変動補正量");
  const db::Column remark1_ = records_.column("備考1");
  const db::Column remark2_ = records_.column("備考2");
};

/// A cell as it goes into a record; Null too where the grid has no such row below its header.
db::Value stored(const ui::Grid& grid, int row, int col) {
  return row < 1 || row >= grid.rows() ? db::Value() : route::cellValue(grid, row, col);
}

/// Where a companion column comes from: a cell of the bench-mark row or of the section row of the values.
struct Companion {
  const char* name;
  Column col;
};

constexpr std::array<Companion, 6> companionsOfSection = {{{"新設点用変動補正量", colCorrection},
                                                           {"新設点用新観測比高", colNewHeight},
                                                           {"新設点用旧観測比高", colOldHeight},
                                                           {"新設点用比高差", colDifference},
                                                           {"新設点用日毎比高変化", colRate},
                                                           {"新設点用変動補正結果", colResult}}};
constexpr std::array<Companion, 2> companionsOfDays = {
    {{"新設点用新_旧経過日数", colDaysNewOld}, {"新設点用基準_新経過日数", colDaysReference}}};

/// Fills the companion columns of a record, Null where they have no value, and their flags.
class Companions {
 public:
  Companions(db::Recordset& records, const ui::Grid& grid) : records_(records), grid_(grid) {}

  void fill(int row) {
    const bool atEnd = grid_.text(row, colMark) == route::routeEnd;
    const bool atNewPoint = isNewPoint(grid_, row);
    blank_ = true;
    if (atEnd) values(row, row - 1, row - 2);
    if (atNewPoint) values(row, row, row);
    records_.set("新設点Flg", atEnd || atNewPoint ? -1 : 0);
    records_.set("新設点BrankFlg", blank_ ? -1 : 0);
  }

 private:
  /// `sectionRow`, `daysRow`: where height differences and counts of days stand for the bench mark on `row`.
  void values(int row, int sectionRow, int daysRow) {
    for (const Companion& one : companionsOfSection) set(one.name, sectionRow, one.col);
    for (const Companion& one : companionsOfDays) set(one.name, daysRow, one.col);
    set("新設点用旧測年月日", row - 2, colOldDate);
    set("新設点用平均_新観測年月日", row - 1, colNewDate);
  }

  void set(const char* name, int row, int col) {
    const db::Value value = stored(grid_, row, col);
    blank_ = blank_ && value.isNull();
    records_.set(name, value);
  }

  db::Recordset& records_;
  const ui::Grid& grid_;
  bool blank_ = true;
};

void setBenchMark(db::Recordset& records, const ui::Grid& grid, int row) {
  const auto set = [&](const char* name, int col) { records.set(name, stored(grid, row, col)); };
  set("SaveOrder", colOrder);
  set("標石番号", colBenchMark);
  set("RosenEndDataFlg", colMark);
  set("新観測年月日", colNewDate);
  set("旧測年月日", colOldDate);
  set("新_旧経過日数", colDaysNewOld);
  set("基準_新経過日数", colDaysReference);
  set("備考1", colRemark);
}

void setSection(db::Recordset& records, const ui::Grid& grid, int row) {
  const auto set = [&](const char* name, int col) { records.set(name, stored(grid, row, col)); };
  set("新観測比高", colNewHeight);
  set("旧観測比高", colOldHeight);
  set("比高差", colDifference);
  set("日毎比高変化", colRate);
  set("変動補正量", colCorrection);
  set("変動補正結果", colResult);
  set("備考2", colRemark);
}

void addRecords(db::Recordset& records, const route::Selection& selection, const job::JobContext& context,
                const ui::Grid& grid, std::string_view referenceDate) {
  for (int row = 1; row < grid.rows(); row += 2) {
    if (stored(grid, row, colBenchMark).isNull()) continue;
    records.addNew();
    records.set("JobId", context.gJobId);
    records.set("事業番号", selection.jigyoBango);
    records.set("路線番号", selection.rosenBango);
    records.set("DataKubun", selection.dataKubun);
    records.set("基準観測日", db::FcBlankToNull(referenceDate));
    setBenchMark(records, grid, row);
    setSection(records, grid, row + 1);
    Companions(records, grid).fill(row);
    records.update();
  }
}

}  // namespace

db::Sql savedSql(const job::JobContext& context, const route::Selection& selection) {
  return " SELECT * FROM " + db::sqlName(context.tables.gTblKansokuSeikaDataHend) +
         projectKeys(context, selection) + exactRoute(selection) +
         route::plainCategoryCondition(selection.dataKubun);
}

bool FcHendDBOpen(const route::Selection& selection, const job::JobContext& context, ui::Grid& grid) {
  const auto database = db::openDatabase(context.gDbPath);
  auto records = database->openRecordset(observedSql(context, selection, exactRoute(selection)));
  if (!records->eof() && db::FcNullToBlank(records->field("DataKubun")) == familyCategory) {
    records->close();
    records = database->openRecordset(observedSql(context, selection, familyOfRoute(selection)));
  }
  ObservedRoute observed(*records, context, grid);
  const bool whole = route::layRecords(*records, observed);
  records->close();
  database->close();
  return whole;
}

bool FcHendDBReOpen(const route::Selection& selection, const job::JobContext& context, ui::Grid& grid,
                    std::string& referenceDate) {
  return route::fill(grid, "FcHendDBReOpen", context.gDbPath, savedSql(context, selection),
                     [&](db::Database&, db::Recordset& records) {
                       SavedRoute saved(records, context, grid, referenceDate);
                       return route::layRecords(records, saved);
                     });
}

bool FcHendDBSave(const route::Selection& selection, const job::JobContext& context, const ui::Grid& grid,
                  std::string_view referenceDate) {
  return ui::trapped(grid.desktop(), "FcHendDBSave", [&] {
    const auto write = [&](db::Recordset& records) {
      addRecords(records, selection, context, grid, referenceDate);
    };
    route::replaceRecords(context.gDbPath, savedSql(context, selection), write,
                          route::extentOn(grid.desktop()));
  });
}

}  // namespace hend
