#include "route/checks.h"

#include <functional>
#include <optional>
#include <vector>

#include "route/selection.h"
#include "text/error.h"
#include "text/number.h"
#include "text/padding.h"
#include "text/pattern.h"

namespace route {
namespace {

std::string quoted(std::string_view text) { return "「" + std::string(text) + "」"; }

/// The header of a column and what stands in a cell of it: 正標高補正数「12a」.
std::string cellName(const ui::Grid& grid, int row, int col) {
  return grid.text(0, col) + quoted(grid.text(row, col));
}

/// The number a text begins with; nothing where it is too large for a double.
std::optional<double> readable(std::string_view text) {
  try {
    return text::readNumber(text);
  } catch (const text::RuntimeError&) {
    return std::nullopt;
  }
}

/// The rows of bench-mark numbers already met in a route, looked up by number.
class NamesMet {
 public:
  explicit NamesMet(const ui::Grid& grid) : grid_(grid) {
    std::size_t places = 16;
    while (places < static_cast<std::size_t>(grid.rows()) * 2) places *= 2;
    rows_.resize(places);
  }

  /// The row on which this number was met since the last forget(), and 0 where it is new; then it is
  /// remembered.
  int meet(int row) {
    const std::string& name = grid_.text(row, 0);
    const std::size_t mask = rows_.size() - 1;
    std::size_t place = std::hash<std::string>()(name) & mask;
    for (; rows_[place] != 0; place = (place + 1) & mask)
      if (rows_[place] > forgotten_ && grid_.text(rows_[place], 0) == name) return rows_[place];
    rows_[place] = row;
    return 0;
  }

  /// Forgets the numbers of all rows down to this one.
  void forget(int row) { forgotten_ = row; }

 private:
  const ui::Grid& grid_;
  std::vector<int> rows_;  // by the hash of the number; 0 for an empty place
  int forgotten_ = 0;
};

/// Walks the bench marks of routes and tells which come a second time.
class NamesTwice {
 public:
  NamesTwice(const ui::Grid& grid, int flagCol, ui::Findings& findings)
      : grid_(grid), flagCol_(flagCol), findings_(findings), met_(grid) {}

  void benchMark(int row) {
    const std::string& flag = grid_.text(row, flagCol_);
    if (first_ == 0) first_ = row;
    if (flag == repeatedPoint) {
      repeated_ = true;
      return;
    }
    const bool runsAgain = repeated_ && runStart_ != 0 && grid_.text(row, 0) == grid_.text(runStart_, 0);
    repeated_ = false;
    if (!runsAgain) take(row, flag);
    runStart_ = row;
    if (flag == routeEnd) beginRoute(row);
  }

 private:
  void take(int row, std::string_view flag) {
    const int before = met_.meet(row);
    if (before == 0 || (flag == routeEnd && before == first_)) return;
    findings_.push_back({ui::Severity::Warning, row, 0,
                         "水準点" + quoted(grid_.text(row, 0)) + "が同じ路線に二度あります(" +
                             std::to_string(before) + "行目と" + std::to_string(row) + "行目)。",
                         "番号を確かめてください。"});
  }

  void beginRoute(int end) {
    met_.forget(end);
    first_ = runStart_ = 0;
  }

  const ui::Grid& grid_;
  const int flagCol_;
  ui::Findings& findings_;
  NamesMet met_;
  int first_ = 0;          // row of the route's first bench mark
  int runStart_ = 0;       // row of the last bench mark that is no repeated one
  bool repeated_ = false;  // the bench mark above is a repeated one
};

/// Looks through one column.
void findTextsThatAreNoNumber(const ui::Grid& grid, int col, ui::Findings& findings) {
  for (int row = grid.fixedRows(); row < grid.rows(); ++row) {
    if (grid.isPlain(row, col)) continue;
    const std::string& cell = grid.text(row, col);
    if (text::trimmed(cell).empty()) continue;
    const auto counts = readable(cell);
    if (text::isNumeric(cell) && counts) continue;
    const std::string what =
        counts ? "は数ではありません。" + text::numberText(*counts) + " として計算されます。"
               : "は大きすぎて計算できません。";
    findings.push_back({ui::Severity::Error, row, col,
                        placeName(grid, row) + "の" + cellName(grid, row, col) + what,
                        "数だけを入力してください。"});
  }
}

}  // namespace

std::string placeName(const ui::Grid& grid, int row) {
  if (!grid.text(row, 0).empty()) return "水準点 " + grid.text(row, 0);
  if (row <= grid.fixedRows() || grid.text(row - 1, 0).empty()) return std::to_string(row) + "行目";
  const std::string next = row + 1 < grid.rows() ? grid.text(row + 1, 0) : std::string();
  return "区間 " + grid.text(row - 1, 0) + "-" + next;
}

std::string millimetres(double mm) {
  static const text::Pattern pattern("#0.0#");
  std::string text = pattern.format(text::roundHalfAway(mm, 10));
  if (text.ends_with(".0")) text.resize(text.size() - 2);
  return text;
}

double numberIn(const ui::Grid& grid, int row, int col) {
  try {
    return grid.number(row, col);
  } catch (const text::RuntimeError&) {
    return 0;
  }
}

void CheckMemory::search(int key, const ui::Grid& grid, std::initializer_list<int> columns,
                         ui::Findings& findings, const std::function<void(ui::Findings&)>& search) {
  std::uint64_t version = 0;
  for (const int col : columns) version += grid.columnVersion(col);
  Kept& kept = kept_[key];
  if (kept.grid != &grid || kept.version != version) {
    kept = {};
    search(kept.found);
    kept.grid = &grid;
    kept.version = version;
  }
  findings.insert(findings.end(), kept.found.begin(), kept.found.end());
}

void findTextsThatAreNoNumber(const ui::Grid& grid, std::initializer_list<int> columns,
                              ui::Findings& findings, CheckMemory* memory) {
  CheckMemory own;
  CheckMemory& kept = memory != nullptr ? *memory : own;
  for (const int col : columns)
    kept.search(col, grid, {0, col}, findings,
                [&](ui::Findings& found) { findTextsThatAreNoNumber(grid, col, found); });
}

void findNamesTwice(const ui::Grid& grid, int flagCol, ui::Findings& findings, CheckMemory* memory) {
  constexpr int names = -1;  // no column
  CheckMemory own;
  CheckMemory& kept = memory != nullptr ? *memory : own;
  kept.search(names, grid, {0, flagCol}, findings, [&](ui::Findings& found) {
    NamesTwice search(grid, flagCol, found);
    for (int row = grid.fixedRows(); row < grid.rows(); ++row)
      if (!grid.text(row, 0).empty()) search.benchMark(row);
  });
}

ui::Finding nameless(int row) {
  return {ui::Severity::Error, row, 0,
          std::to_string(row) + "行目の水準点に番号がありません。この行は計算も保存もされません。",
          "観測成果の番号を直してください。"};
}

ui::Finding withoutDifference(const ui::Grid& grid, int row, int col) {
  return {ui::Severity::Error, row, col, placeName(grid, row) + "に比高がありません。0 として計算されます。",
          "観測成果を直してください。"};
}

ui::Finding notTaken(const ui::Grid& grid, int row, int col, std::string_view wayOut) {
  return {ui::Severity::Error,
          row,
          col,
          placeName(grid, row) + "の" + cellName(grid, row, col) + "は、まだ計算に入っていません。",
          std::string(wayOut),
          ui::CellMark::NotTaken};
}

ui::Finding changedByHand(const ui::Grid& grid, int row, int col, std::string_view computed) {
  return {ui::Severity::Warning,
          row,
          col,
          placeName(grid, row) + "の" + cellName(grid, row, col) + "は手で直した値です。計算では " +
              std::string(computed) + " です。",
          {},
          ui::CellMark::ByHand};
}

}  // namespace route
