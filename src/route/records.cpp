#include "route/records.h"

#include "open/open.h"
#include "route/selection.h"
#include "text/number.h"
#include "text/padding.h"

namespace route {

void replaceRecords(std::string_view dbPath, const db::Sql& sql,
                    const std::function<void(db::Recordset&)>& write) {
  const auto database = db::openDatabase(dbPath);
  replaceRecords(*database, sql, write);
  database->close();
}

void replaceRecords(db::Database& database, const db::Sql& sql,
                    const std::function<void(db::Recordset&)>& write) {
  const auto records = database.openRecordset(sql, db::Access::Edit);
  for (; !records->eof(); records->moveNext()) records->remove();
  write(*records);
  records->close();
}

db::Value cellValue(const ui::Grid& grid, int row, int col) {
  const std::string& text = grid.text(row, col);
  return text::trimmed(text).empty() ? db::Value() : db::Value(text);
}

std::string formatted(const db::Value& value, const text::Pattern& pattern) {
  return value.isNumber() ? pattern.format(value.number()) : pattern.formatText(value.text());
}

void reportSaved(ui::Desktop& desktop) { desktop.message({{}, "保存しました", ui::Icon::None}); }

void forEachBenchMark(const ui::Grid& grid, int flagCol, const std::function<void(int, int)>& visit) {
  for (int row = 1; row < grid.rows(); ++row) {
    if (text::trimmed(grid.text(row, 0)).empty()) continue;
    const bool hasSection = row + 1 < grid.rows() && grid.text(row, flagCol) != routeEnd;
    visit(row, hasSection ? row + 1 : 0);
  }
}

bool PairMean::add(double height) {
  sum_ += height;
  if (++count_ < 2) return false;
  mean_ = text::roundHalfUp(sum_ / 2, units_);
  restart();
  return true;
}

void PairMean::restart() {
  sum_ = 0;
  count_ = 0;
}

}  // namespace route
