#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "db/database.h"
#include "db/sql.h"
#include "text/pattern.h"
#include "ui/desktop.h"
#include "ui/grid.h"

namespace route {

/// What is left of a save that fails.
enum class Extent {
  AsFarAsItCame,  ///< what was deleted and written before the failure
  AllOrNothing    ///< the former records, untouched
};

/// What a save that starts on `desktop` leaves where it fails: nothing of itself with safeguards, else (or
/// without a desktop) what it has written.
Extent extentOn(const ui::Desktop* desktop);

/// Opens the job database, lets `write` save to as many of its tables as it likes, and returns when all of it
/// is safe on disk; it gets there in one piece. Raises what `write` raises and db::Error. After a save of
/// all or nothing the description of the error says that the former results are unchanged. Where memory runs
/// out nothing is kept in either case.
void save(std::string_view dbPath, Extent extent, const std::function<void(db::Database&)>& write);

/// Replaces the records that `sql` ("SELECT * FROM table WHERE …") selects: deletes them one after another,
/// then lets `write` add the new ones, and returns when they are safe on disk. Raises db::Error; `extent`
/// says what is left then.
void replaceRecords(std::string_view dbPath, const db::Sql& sql,
                    const std::function<void(db::Recordset&)>& write, Extent extent = Extent::AsFarAsItCame);
/// The same in a database that is open and stays so; the new records are safe on disk when it is closed.
void replaceRecords(db::Database& database, const db::Sql& sql,
                    const std::function<void(db::Recordset&)>& write);

/// A cell as it goes into a record: Null where it is blank.
db::Value cellValue(const ui::Grid& grid, int row, int col);

/// A field as a cell shows it in a number pattern; a blank field stays blank.
std::string formatted(const db::Value& value, const text::Pattern& pattern);

/// Tells the operator that a save is safe on disk.
void reportSaved(ui::Desktop& desktop);

/// Walks the bench marks of a grid that has one row for each, with the row of the section to the next one
/// below it; column 0 is empty on section rows. `visit` gets the bench-mark row and the section row. A bench
/// mark at a route end (column `flagCol` reads "-1") has no section: it gets 0, whether an empty row stands
/// below it or not. Bench marks without a number in column 0 are passed over.
void forEachBenchMark(const ui::Grid& grid, int flagCol,
                      const std::function<void(int row, int sectionRow)>& visit);

/// The units of 0.1 mm in a metre, to which means are rounded whatever the grade.
inline constexpr double tenthsOfMillimetre = 10000;

/// How many bench marks of a grid a save writes: those that forEachBenchMark visits; with `firstRouteOnly`
/// up to the first route end.
std::size_t countBenchMarks(const ui::Grid& grid, int flagCol, bool firstRouteOnly = false);

/// Means of bench marks that are observed twice: the heights come in pairs, and the second of each pair gives
/// the mean.
class PairMean {
 public:
  /// `unitsPerMetre`: the mean is rounded to this many units in a metre, halves upwards: 10000 for 0.1 mm.
  explicit PairMean(double unitsPerMetre) : units_(unitsPerMetre) {}

  /// Takes a height (m). Returns true where it was the second of a pair; then mean() is that pair's.
  bool add(double height);
  /// The mean of the last pair, rounded (m).
  double mean() const { return mean_; }
  /// Forgets a pair half taken; a pair never reaches over a route end.
  void restart();

 private:
  double units_;
  double sum_ = 0;
  int count_ = 0;
  double mean_ = 0;
};

}  // namespace route
