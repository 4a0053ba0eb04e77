#include <array>
#include <string>

#include "db/database.h"
#include "db/sql.h"
#include "hksnb/columns.h"
#include "hksnb/data.h"
#include "hksnb/grid_set_up.h"
#include "hksnb/procedure.h"
#include "open/open.h"
#include "route/observations.h"
#include "route/records.h"
#include "text/padding.h"
#include "ui/grid_helpers.h"

namespace hksnb {
namespace {

constexpr std::array<const char*, placeColumns> placeFields = {"事業番号", "路線番号", "都道府県", "郡市",
                                                               "町村"};

/// The conditions of a book's rows behind "WHERE JobId = '…'".
db::Sql bookCondition(Kind kind, const std::string& number) {
  return " AND 補正値フラグ = " + db::sqlValue(rowsCode(kind)) + " AND 変動観測簿No =" + db::sqlValue(number);
}

db::Sql periodsCondition(const job::JobContext& context, Kind kind, const std::string& number) {
  return " WHERE JobId = " + db::sqlValue(context.gJobId) +
         " AND 観測簿種類 =" + db::sqlValue(periodsCode(kind)) + " AND 変動観測簿No =" + db::sqlValue(number);
}

/// Lays stored rows into the grid, one after another.
class StoredBook {
 public:
  StoredBook(const job::JobContext& context, Kind kind, db::Recordset& records, ui::Grid& grid)
      : kind_(kind), records_(records), grid_(grid), formats_(FcHHKSB_DefToColNo(context.grade())) {}

  /// Adds the present record. Returns false where the grid could not take it (already reported).
  bool add() {
    if (!ui::FcGridMoveRow(grid_, ++row_)) return false;
    benchMarkRow();
    if (!ui::FcGridMoveRow(grid_, ++row_)) return false;
    sectionRow();
    return true;
  }

 private:
  void set(int col, db::Column column) { grid_.setText(row_, col, route::fieldText(records_, column)); }

  /// A number column of the database has lost the zeros that the cell showed.
  void set(int col, db::Column column, const text::Pattern& pattern) {
    const db::Value value = records_.value(column);
    grid_.setText(row_, col, value.isNumber() ? pattern.format(value.number()) : db::FcNullToBlank(value));
  }

  void benchMarkRow() {
    placeCells();
    set(colBenchMark, benchMark_);
    set(colHeight, height_, formats_.heights);
    if (kind_ == Kind::Ellipsoidal) set(colCorrection, correction_);
    set(colPresent, present_, formats_.heights);
    set(colPrevious, previous_, formats_.heights);
    set(colVariation, variation_, formats_.variation);
    set(colRemark, remark1_);
    set(colEndMark, endMark_);
  }

  /// Every row is stored with its project and route; the grid shows them where they change.
  void placeCells() {
    for (std::size_t i = 0; i < place_.size(); ++i) {
      const std::string text = route::fieldText(records_, place_[i]);
      const bool isKey = i < shown_.size();
      if (isKey && shown_[i] == text) continue;
      if (isKey) shown_[i] = text;
      grid_.setText(row_, static_cast<int>(i), text);
    }
  }

  void sectionRow() {
    set(colHeight, meanDifference_, formats_.heights);
    if (kind_ == Kind::Orthometric) {
      set(colCorrection, correction_);
      set(colPresent, result_, formats_.heights);
    }
    set(colRemark, remark2_);
  }

  db::Column column(const char* name) const { return records_.column(name); }

  const Kind kind_;
  db::Recordset& records_;
  ui::Grid& grid_;
  const Formats formats_;
  const std::array<db::Column, placeColumns> place_ = {column(placeFields[0]), column(placeFields[1]),
                                                       column(placeFields[2]), column(placeFields[3]),
                                                       column(placeFields[4])};
  const db::Column benchMark_ = column("水準点番号");
  const db::Column height_ = column("観測比高");
  const db::Column present_ = column("今回観測成果");
  const db::Column previous_ = column("前回観測成果");
  const db::Column meanDifference_ = column("今回中数");
  const db::Column correction_ = column("正標高補正値");
  const db::Column result_ = column("正標高補正結果");
  const db::Column variation_ = column("変動量");
  const db::Column remark1_ = column("備考1");
  const db::Column remark2_ = column("備考2");
  const db::Column endMark_ = column("RosenEndFlg");
  std::array<std::string, 2> shown_;  // project and route of the row before
  int row_ = 0;
};

/// Returns false where the grid was full.
bool readRows(db::Database& database, const job::JobContext& context, Kind kind, const std::string& number,
              BookBoxes& boxes, ui::Grid& grid) {
  const auto records = database.openRecordset(
      " SELECT * FROM " + db::sqlName(context.tables.gTblKansokuSeikaDataHKSNB) +
      " WHERE JobId = " + db::sqlValue(context.gJobId) + bookCondition(kind, number) + " ORDER BY SaveOrder");
  if (!records->eof()) {
    boxes.presentYear = db::FcNullToBlank(records->field("今回観測日付"));
    boxes.previousYear = db::FcNullToBlank(records->field("前回観測日付"));
    setYears(grid, boxes.presentYear, boxes.previousYear);
  }
  StoredBook book(context, kind, *records, grid);
  const bool whole = route::layRecords(*records, book);
  records->close();
  return whole;
}

void readPeriods(db::Database& database, const job::JobContext& context, Kind kind, const std::string& number,
                 BookBoxes& boxes) {
  const auto records = database.openRecordset(bookPeriodsSql(context, kind, number));
  const auto month = [&](const char* column) { return db::FcNullToBlank(records->field(column)); };
  if (!records->eof()) {
    boxes.present = Period::between(month("新観測年月From"), month("新観測年月To"));
    boxes.previous = Period::between(month("旧観測年月From"), month("旧観測年月To"));
  }
  records->close();
}

/// Adds the bench marks of a grid to the rows of a book.
class BookWriter {
 public:
  BookWriter(const job::JobContext& context, Kind kind, const std::string& number, const ui::Grid& grid,
             db::Recordset& records)
      : context_(context), kind_(kind), number_(number), grid_(grid), records_(records) {}

  void write() {
    for (int row = 1; row < grid_.rows(); row += 2) {
      for (std::size_t i = 0; i < key_.size(); ++i) {
        const db::Value cell = route::cellValue(grid_, row, static_cast<int>(i));
        if (!cell.isNull()) key_[i] = cell;
      }
      if (text::trimmed(grid_.text(row, colBenchMark)).empty()) continue;
      add(row, row + 1 < grid_.rows() ? row + 1 : 0);
    }
  }

 private:
  db::Value cell(int row, int col) const { return route::sectionValue(grid_, row, col); }

  void add(int row, int sectionRow) {
    records_.addNew();
    records_.set("JobId", context_.gJobId);
    records_.set("SaveOrder", ++order_);
    setPlace(row);
    records_.set("観測比高", cell(row, colHeight));
    records_.set("今回観測成果", cell(row, colPresent));
    records_.set("前回観測成果", cell(row, colPrevious));
    records_.set("今回中数", cell(sectionRow, colHeight));
    const int correctionRow = kind_ == Kind::Orthometric ? sectionRow : row;
    records_.set("正標高補正値", cell(correctionRow, colCorrection));
    records_.set("正標高補正結果", cell(correctionRow, colPresent));
    records_.set("変動量", cell(row, colVariation));
    records_.set("備考1", cell(row, colRemark));
    records_.set("備考2", cell(sectionRow, colRemark));
    records_.set("今回観測日付", presentYear_);
    records_.set("前回観測日付", previousYear_);
    records_.set("RosenEndFlg", cell(row, colEndMark));
    records_.update();
  }

  void setPlace(int row) {
    records_.set(placeFields[colProject], key_[colProject]);
    records_.set(placeFields[colRoute], key_[colRoute]);
    records_.set("変動観測簿No", number_);
    records_.set("補正値フラグ", rowsCode(kind_));
    for (std::size_t i = key_.size(); i < placeFields.size(); ++i)
      records_.set(placeFields[i], cell(row, static_cast<int>(i)));
    records_.set("水準点番号", cell(row, colBenchMark));
  }

  const job::JobContext& context_;
  const Kind kind_;
  const std::string& number_;
  const ui::Grid& grid_;
  db::Recordset& records_;
  const db::Value presentYear_ = db::FcBlankToNull(yearOf(grid_, colPresent));
  const db::Value previousYear_ = db::FcBlankToNull(yearOf(grid_, colPrevious));
  std::array<db::Value, 2> key_;  // project and route, as the last row that shows them
  int order_ = 0;
};

void replacePeriods(db::Database& database, const job::JobContext& context, Kind kind,
                    const std::string& number, const Period& present) {
  database.execute("DELETE FROM KansokuKikan" + periodsCondition(context, kind, number));
  database.execute("INSERT INTO KansokuKikan VALUES(" + db::sqlValue(context.gJobId) + "," +
                   db::sqlValue(periodsCode(kind)) + "," + db::sqlValue(number) + "," +
                   db::sqlValue(present.from()) + "," + db::sqlValue(present.to()) + ",' ',' ')");
}

}  // namespace

db::Sql bookRowsSql(const job::JobContext& context, Kind kind, const std::string& number) {
  return "SELECT * FROM " + db::sqlName(context.tables.gTblKansokuSeikaDataHKSNB) +
         " WHERE JobId =" + db::sqlValue(context.gJobId) + bookCondition(kind, number);
}

db::Sql bookPeriodsSql(const job::JobContext& context, Kind kind, const std::string& number) {
  return "SELECT * FROM KansokuKikan" + periodsCondition(context, kind, number);
}

Status FcHHKSB_Reopen(const job::JobContext& context, Kind kind, const std::string& number, BookBoxes& boxes,
                      ui::Grid& Grid1) {
  return fillingProcedure(Grid1.desktop(), "FcHHKSB_Reopen", [&] {
    const auto database = db::openDatabase(context.gDbPath);
    const bool whole = readRows(*database, context, kind, number, boxes, Grid1);
    readPeriods(*database, context, kind, number, boxes);
    database->close();
    return whole;
  });
}

Status FcHHKSB_HKSNBSave(const job::JobContext& context, Kind kind, const std::string& number,
                         const Period& present, const ui::Grid& Grid1) {
  return procedure(Grid1.desktop(), "FcHHKSB_HKSNBSave", [&] {
    route::save(context.gDbPath, route::extentOn(Grid1.desktop()), [&](db::Database& database) {
      route::replaceRecords(database, bookRowsSql(context, kind, number), [&](db::Recordset& records) {
        BookWriter(context, kind, number, Grid1, records).write();
      });
      replacePeriods(database, context, kind, number, present);
    });
    if (Grid1.desktop() != nullptr) route::reportSaved(*Grid1.desktop());
  });
}

}  // namespace hksnb
