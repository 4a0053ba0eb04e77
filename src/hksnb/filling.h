#pragma once

#include <optional>
#include <string>

#include "hksnb/columns.h"
#include "hksnb/kind.h"
#include "hksnb/place_names.h"
#include "job/grade.h"
#include "ui/grid.h"

namespace hksnb {

/// An observation result with the correction that goes with it, as texts without blanks around them; "" for
/// what is not there.
struct Observation {
  Place place;
  std::string benchMark;       ///< bench-mark number
  std::string height;          ///< height (m) that the correction holds for the bench mark
  std::string meanDifference;  ///< of the section that starts here (m)
  std::string correction;      ///< mm; an orthometric one in first grade 0.1 mm
  std::string result;          ///< of the correction (m): see Filling
  std::string flag;            ///< route flag
  std::string remark1;         ///< of the bench mark
  std::string remark2;         ///< of the section
  std::string date;            ///< of the observation, "YYYYMMDD" with or without "/"
};

/// Fills a book grid with the observations of its routes, one after another.
///
/// An ellipsoidal book shows each bench mark with its own height, correction and result. An orthometric book
/// takes the first height of the whole grid and walks from there, also over the boundary between two routes:
/// column 6 by the mean differences with all the decimals that were observed, column 8 by the corrected
/// differences as the section rows show them. The correction stores as its result the corrected height of the
/// bench mark, or the corrected difference of the section: it is a difference where it lies nearer to the
/// mean difference plus the correction than to the height that the correction holds for the bench mark (where
/// it holds none, to the one that the walk has reached). Otherwise the corrected difference is the mean
/// difference plus the correction. A section without a result has none; the walk goes on level there.
///
/// Route ends are left out, since the next route begins there, but for the one that is the last of all.
class Filling {
 public:
  /// `grid` has been set up and is empty; it must outlive this object.
  Filling(ui::Grid& grid, Kind kind, job::Grade grade);

  /// Takes the next observation. Returns false where the grid is full (already reported).
  bool add(const Observation& observation);
  /// Ends the book with the route end that came last. Returns false where the grid is full.
  bool finish();

  /// The places of the bench marks laid so far.
  const PlaceNames& places() const { return places_; }

 private:
  bool benchMarkRow(const Observation& observation);
  bool sectionRow(const Observation& observation);
  void placeCells(const Observation& observation);
  void ellipsoidalHeights(const Observation& observation);
  void orthometricHeights(const Observation& observation);
  void orthometricSection(const Observation& observation);
  std::string correctedDifference(const Observation& observation) const;
  double ownHeight(const Observation& observation) const;
  void startWalk(const Observation& observation);

  ui::Grid& grid_;
  const Kind kind_;
  const job::Grade grade_;
  const text::Pattern& heights_;
  int row_ = 0;            // the last row written
  int benchMark_ = 0;      // the row of the bench mark shown last
  double observed_ = 0;    // height of that bench mark by the mean differences, m
  double difference_ = 0;  // mean difference of the section below it, m
  Place place_;            // of that bench mark
  PlaceNames places_;
  std::optional<Observation> end_;  // the route end read last, where nothing has followed it
};

}  // namespace hksnb
