#include "hksnb/filling.h"

#include <cmath>

#include "route/selection.h"
#include "text/decimal.h"
#include "text/number.h"
#include "ui/grid_helpers.h"

namespace hksnb {

Filling::Filling(ui::Grid& grid, Kind kind, job::Grade grade)
    : grid_(grid), kind_(kind), grade_(grade), heights_(FcHHKSB_DefToColNo(grade).heights) {}

bool Filling::add(const Observation& observation) {
  if (observation.flag == route::routeEnd) {
    end_ = observation;
    return true;
  }
  end_.reset();
  return benchMarkRow(observation) && sectionRow(observation);
}

bool Filling::finish() {
  if (!end_) return true;
  if (!benchMarkRow(*end_) || !ui::FcGridMoveRow(grid_, ++row_)) return false;
  grid_.setText(row_, colRemark, end_->remark2);
  end_.reset();
  return true;
}

bool Filling::benchMarkRow(const Observation& observation) {
  if (!ui::FcGridMoveRow(grid_, ++row_)) return false;
  grid_.setText(row_, colEndMark, observation.flag);
  placeCells(observation);
  grid_.setText(row_, colBenchMark, observation.benchMark);
  kind_ == Kind::Orthometric ? orthometricHeights(observation) : ellipsoidalHeights(observation);
  grid_.setText(row_, colRemark, observation.remark1);
  benchMark_ = row_;
  return true;
}

void Filling::placeCells(const Observation& observation) {
  const Place& place = observation.place;
  const Place shown = shownBelow(place_, place);
  for (std::size_t col = 0; col < shown.size(); ++col) grid_.setText(row_, static_cast<int>(col), shown[col]);
  place_ = place;
  places_.add(observation.benchMark, place);
}

/// First grade shows corrections in tenths of a millimetre.
void Filling::ellipsoidalHeights(const Observation& observation) {
  const bool inTenths = grade_.isFirst() && !observation.correction.empty();
  grid_.setText(row_, colHeight, heights_.formatText(observation.height));
  grid_.setText(
      row_, colCorrection,
      inTenths ? text::numberText(text::readNumber(observation.correction) * 10) : observation.correction);
  grid_.setText(row_, colPresent, heights_.formatText(observation.result));
}

void Filling::orthometricHeights(const Observation& observation) {
  if (benchMark_ == 0) return startWalk(observation);
  // Through its decimal text, so that thousands of sums gather no noise.
  observed_ = text::Decimal(observed_ + difference_).value();
  grid_.setText(row_, colHeight, heights_.format(observed_));
  const double before = text::readNumber(grid_.text(benchMark_, colPresent));
  const double step = text::readNumber(grid_.text(benchMark_ + 1, colPresent));
  grid_.setText(row_, colPresent, heights_.format(before + step));
}

void Filling::startWalk(const Observation& observation) {
  observed_ = text::readNumber(observation.height);
  const std::string start = heights_.formatText(observation.height);
  grid_.setText(row_, colHeight, start);
  grid_.setText(row_, colPresent, start);
}

bool Filling::sectionRow(const Observation& observation) {
  if (!ui::FcGridMoveRow(grid_, ++row_)) return false;
  difference_ = text::readNumber(observation.meanDifference);
  grid_.setText(row_, colHeight, heights_.formatText(observation.meanDifference));
  if (kind_ == Kind::Orthometric) orthometricSection(observation);
  grid_.setText(row_, colRemark, observation.remark2);
  return true;
}

void Filling::orthometricSection(const Observation& observation) {
  grid_.setText(row_, colCorrection, observation.correction);
  grid_.setText(row_, colPresent, correctedDifference(observation));
}

/// As shown; blank where the section has nothing to make it of. The mean difference counts as shown: so does
/// the correction screen, and the two agree.
std::string Filling::correctedDifference(const Observation& observation) const {
  if (observation.result.empty()) return {};
  const bool isBlank = observation.meanDifference.empty() && observation.correction.empty();
  const double sum = text::readNumber(grid_.text(row_, colHeight)) +
                     text::readNumber(observation.correction) / grade_.factor();
  const double result = text::readNumber(observation.result);
  if (std::abs(result - sum) < std::abs(result - ownHeight(observation))) return heights_.format(result);
  return isBlank ? std::string() : heights_.format(sum);
}

/// The height (m) that the correction started from at the bench mark.
double Filling::ownHeight(const Observation& observation) const {
  return text::readNumber(observation.height.empty() ? grid_.text(benchMark_, colPresent)
                                                     : observation.height);
}

}  // namespace hksnb
