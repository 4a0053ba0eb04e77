#pragma once

#include <string>
#include <vector>

#include "db/database.h"

namespace tanrosen {

/// A bench mark as it was saved, with the height that its observation has today.
struct SavedBenchMark {
  double order = 0;  ///< SaveOrder
  std::string route;
  std::string category;  ///< code of the data category
  std::string name;      ///< bench-mark number
  std::string distance;
  std::string correction;
  std::string remark1;
  std::string remark2;
  std::string flag;          ///< route flag
  db::Value height;          ///< observed height as saved (m)
  db::Value result;          ///< corrected height as saved (m)
  db::Value meanDifference;  ///< of the section to the next bench mark, as saved (m)
  db::Value heightToday;     ///< of the same bench mark in the observation results (m); Null where none joins
};

/// Reads saved bench marks from records that join each of them (table or alias A) with the observations of
/// the same route and order (B), in SaveOrder.
///
/// An observation may have another category or be one of another bench mark, and there may be several: a
/// saved record is given once all the same. Two records are the same where order, route, category and bench
/// mark are. The height of today is that of the observation of the same bench mark, in the same category
/// where there is one.
class SavedBenchMarks {
 public:
  /// `records` must outlive this object.
  explicit SavedBenchMarks(db::Recordset& records);

  /// The bench marks of the next order, nearly always one; none behind the last. Raises db::Error.
  std::vector<SavedBenchMark> next();

 private:
  /// How far an observation may speak for a saved bench mark.
  enum class Kinship { Stranger, SameBenchMark, SameCategoryToo };

  SavedBenchMark present() const;
  void take(std::vector<SavedBenchMark>& benchMarks);
  Kinship kinship(const SavedBenchMark& benchMark) const;
  std::string text(db::Column column) const;

  db::Recordset& records_;
  const db::Column order_;
  const db::Column route_;
  const db::Column category_;
  const db::Column name_;
  const db::Column distance_;
  const db::Column height_;
  const db::Column correction_;
  const db::Column result_;
  const db::Column remark1_;
  const db::Column remark2_;
  const db::Column flag_;
  const db::Column meanDifference_;
  const db::Column nameToday_;
  const db::Column categoryToday_;
  const db::Column heightToday_;
  std::vector<Kinship> kinships_;  // of the heights of today, for the bench marks of the present order
};

}  // namespace tanrosen
