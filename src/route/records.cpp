#include "route/records.h"

#include <new>

#include "open/open.h"
#include "route/selection.h"
#include "text/number.h"
#include "text/padding.h"

namespace route {
namespace {

/// Reports the error being handled again, with what it has left of the former results.
[[noreturn]] void raiseUnchanged(const text::RuntimeError& error) {
  const std::string description = std::string(error.what()) + " 保存前の成果はそのまま残っています。";
  if (error.code() == text::ErrorCode::Database) throw db::Error(description);
  throw text::RuntimeError(error.code(), description);
}

}  // namespace

Extent extentOn(const ui::Desktop* desktop) {
  return desktop != nullptr && desktop->safeguards() ? Extent::AllOrNothing : Extent::AsFarAsItCame;
}

void save(std::string_view dbPath, Extent extent, const std::function<void(db::Database&)>& write) {
  const auto database = db::openDatabase(dbPath);
  try {
    if (extent == Extent::AllOrNothing) database->keepWhole();
    write(*database);
  } catch (const std::bad_alloc&) {
    database->discard();
    throw;
  } catch (const text::RuntimeError& error) {
    if (extent == Extent::AsFarAsItCame) throw;
    database->discard();
    raiseUnchanged(error);
  }
  database->close();
}

void replaceRecords(std::string_view dbPath, const db::Sql& sql,
                    const std::function<void(db::Recordset&)>& write, Extent extent) {
  save(dbPath, extent, [&](db::Database& database) { replaceRecords(database, sql, write); });
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

std::size_t countBenchMarks(const ui::Grid& grid, int flagCol, bool firstRouteOnly) {
  std::size_t count = 0;
  bool ended = false;
  forEachBenchMark(grid, flagCol, [&](int row, int) {
    if (!ended) ++count;
    ended = ended || (firstRouteOnly && grid.text(row, flagCol) == routeEnd);
  });
  return count;
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
