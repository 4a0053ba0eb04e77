#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "db/database.h"
#include "db/sql.h"
#include "job/context.h"
#include "route/records.h"
#include "route/selection.h"
#include "text/pattern.h"
#include "ui/grid.h"

namespace route {

// What the corrections that lay a route into a grid and save it again have in common.

/// " WHERE JobId ='…' AND 事業番号 ='…'" and the route, for a table whose columns carry `prefix` ("A.").
db::Sql routeKeys(const job::JobContext& context, const Selection& selection, const db::Sql& prefix = {});

/// The observation records of a selection in their order along the route.
db::Sql observationsSql(const job::JobContext& context, const Selection& selection);

/// The records of a selection in the result table `table`, as a save replaces them: those without a category
/// stay untouched.
db::Sql savedRecordsSql(const job::JobContext& context, const Selection& selection, std::string_view table);

/// Replaces the saved records of a selection in the result table `table` by the bench marks of `grid`, whose
/// column `flagCol` holds the route flags. `add` adds one: it gets the bench-mark row, the row of the section
/// behind it (0 where there is none) and the order, 1, 2, 3 … Returns when all is safe on disk. Raises
/// db::Error; extentOn the grid's desktop says what is left then.
void saveBenchMarks(const job::JobContext& context, const Selection& selection, std::string_view table,
                    const ui::Grid& grid, int flagCol,
                    const std::function<void(db::Recordset&, int row, int sectionRow, int order)>& add);

/// Opens the job database and the records that `sql` selects, hands both to `read`, and closes them again.
/// Raises db::Error.
void readRecords(std::string_view dbPath, const db::Sql& sql,
                 const std::function<void(db::Database&, db::Recordset&)>& read);

/// Lets `layer.add()` lay record after record into its grid, as long as it returns true (it returns false
/// where the grid is full, which has been reported then). Returns true where all have found room.
template <class Layer>
bool layRecords(db::Recordset& records, Layer& layer) {
  for (; !records.eof(); records.moveNext())
    if (!layer.add()) return false;
  return true;
}

/// A field of the present record without blanks around it; "" for Null.
std::string fieldText(const db::Recordset& records, db::Column column);

/// Begins the record of a bench mark and sets the keys of the selection. `ownRoute` is the bench mark's route
/// number as its grid row keeps it; blank: the route of the selection. `order` counts from 1.
void beginRecord(db::Recordset& records, const job::JobContext& context, const Selection& selection,
                 std::string_view ownRoute, int order);

/// A cell of a section row as it goes into a record: Null where it is blank or the bench mark has no section
/// row (`sectionRow` 0).
db::Value sectionValue(const ui::Grid& grid, int sectionRow, int col);

/// The heights of bench marks as observed: a route's start height and the mean differences from there on.
///
/// Behind two repeated bench marks the mean of their heights is shown at the bench mark that follows the
/// second one; the sum itself goes on unchanged. Behind a route end it starts anew.
class RunningHeights {
 public:
  /// Heights are shown in `pattern`, which must outlive this object. `unitsPerMetre`: means are rounded to
  /// this many units in a metre.
  RunningHeights(const text::Pattern& pattern, double unitsPerMetre)
      : pattern_(pattern), repeated_(unitsPerMetre) {}

  /// True where the next bench mark begins a route: at first and behind a route end.
  bool atStart() const { return atStart_; }
  /// Begins a route at the height of its first bench mark (m). A blank height is shown as blank and counts
  /// as 0.
  void begin(const db::Value& height);
  /// Comes to a bench mark with its route flag. Returns the height as its cell shows it.
  std::string reach(std::string_view flag);
  /// Leaves that bench mark over the section behind it, whose mean difference (m) may be blank.
  void leave(std::string_view flag, const db::Value& meanDifference);

 private:
  std::string shown();

  const text::Pattern& pattern_;
  PairMean repeated_;
  bool atStart_ = true;
  db::Value start_;
  double height_ = 0;           // m
  std::optional<double> mean_;  // of a pair just completed, m
};

}  // namespace route
