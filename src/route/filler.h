#pragma once

#include <string>
#include <string_view>

#include "db/database.h"
#include "db/sql.h"
#include "route/observations.h"
#include "route/records.h"
#include "text/pattern.h"
#include "ui/error_trap.h"
#include "ui/grid.h"

namespace route {

/// Lays bench marks into a grid from row 1 on, one after another: a row for each and below it the row of its
/// section, where it has one.
class RowPairs {
 public:
  explicit RowPairs(ui::Grid& grid) : grid_(grid) {}

  /// Adds the row of the next bench mark. Returns false where the grid is full (already reported), like the
  /// two that follow.
  bool addBenchMark();
  /// Adds the row of its section below it.
  bool addSection();
  /// Adds both.
  bool addPair() { return addBenchMark() && addSection(); }

  /// Sets a cell of the last bench mark's row, and of the last section's.
  void benchMark(int col, std::string_view text) { grid_.setText(benchMarkRow_, col, text); }
  void section(int col, std::string_view text) { grid_.setText(sectionRow_, col, text); }

  /// What a cell of these rows shows.
  const std::string& shownAtBenchMark(int col) const { return grid_.text(benchMarkRow_, col); }
  const std::string& shownAtSection(int col) const { return grid_.text(sectionRow_, col); }

 private:
  ui::Grid& grid_;
  int row_ = 0;  // the last one
  int benchMarkRow_ = 0;
  int sectionRow_ = 0;
};

/// The same from records: cells take fields of the present record.
class Filler : public RowPairs {
 public:
  Filler(const db::Recordset& records, ui::Grid& grid) : RowPairs(grid), records_(records) {}

  using RowPairs::benchMark;
  using RowPairs::section;
  /// The field without blanks around it, or in a number pattern.
  void benchMark(int col, db::Column field) { RowPairs::benchMark(col, text(field)); }
  void benchMark(int col, db::Column field, const text::Pattern& pattern) {
    RowPairs::benchMark(col, formatted(value(field), pattern));
  }
  void section(int col, db::Column field) { RowPairs::section(col, text(field)); }
  void section(int col, db::Column field, const text::Pattern& pattern) {
    RowPairs::section(col, formatted(value(field), pattern));
  }

  /// A field of the present record: without blanks around it, and as it is.
  std::string text(db::Column field) const { return fieldText(records_, field); }
  db::Value value(db::Column field) const { return records_.value(field); }

 private:
  const db::Recordset& records_;
};

/// Opens the job database, lays what `sql` selects into the grid by `lay` (which gets the database and the
/// records, and returns false where the grid is full), and closes it again. Errors are reported under
/// `procedure`, the grid staying as far as it was built. Returns true where nothing was reported.
template <class Lay>
bool fill(ui::Grid& grid, std::string_view procedure, std::string_view dbPath, const db::Sql& sql,
          Lay&& lay) {
  bool whole = false;
  const bool passed = ui::trapped(grid.desktop(), procedure, [&] {
    readRecords(dbPath, sql,
                [&](db::Database& database, db::Recordset& records) { whole = lay(database, records); });
  });
  return passed && whole;
}

}  // namespace route
