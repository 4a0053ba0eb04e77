#include "hksnb/filling.h"

#include <cmath>

#include "route/selection.h"
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
  places(observation);
  grid_.setText(row_, colBenchMark, observation.benchMark);
  kind_ == Kind::Orthometric ? orthometricHeights(observation) : ellipsoidalHeights(observation);
  grid_.setText(row_, colRemark, observation.remark1);
  benchMark_ = row_;
  return true;
}

void Filling::places(const Observation& observation) {
  for (std::size_t col = 0; col < place_.size(); ++col) {
    if (observation.place[col] == place_[col]) continue;
    place_[col] = observation.place[col];
    grid_.setText(row_, static_cast<int>(col), place_[col]);
  }
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
  if (benchMark_ != 0) {
    walk(colHeight);
    walk(colPresent);
    return;
  }
  const std::string start = heights_.formatText(observation.height);
  grid_.setText(row_, colHeight, start);
  grid_.setText(row_, colPresent, start);
}

/// From the bench mark before over the section behind it.
void Filling::walk(int col) {
  const double before = text::readNumber(grid_.text(benchMark_, col));
  const double step = text::readNumber(grid_.text(benchMark_ + 1, col));
  grid_.setText(row_, col, heights_.format(before + step));
}

bool Filling::sectionRow(const Observation& observation) {
  if (!ui::FcGridMoveRow(grid_, ++row_)) return false;
  grid_.setText(row_, colHeight, heights_.formatText(observation.meanDifference));
  if (kind_ == Kind::Orthometric) orthometricSection(observation);
  grid_.setText(row_, colRemark, observation.remark2);
  return true;
}

void Filling::orthometricSection(const Observation& observation) {
  grid_.setText(row_, colCorrection, observation.correction);
  grid_.setText(row_, colPresent, correctedDifference(observation));
}

/// As shown; blank where the section has nothing to make it of.
std::string Filling::correctedDifference(const Observation& observation) const {
  if (observation.correction.empty() && observation.result.empty()) return {};
  const double mean = text::readNumber(grid_.text(row_, colHeight));
  if (isDifference(observation.result, mean)) return heights_.formatText(observation.result);
  if (observation.meanDifference.empty() && observation.correction.empty()) return {};
  return heights_.format(mean + text::readNumber(observation.correction) / grade_.factor());
}

/// True where a stored result lies nearer to the mean difference (m) of its section than to the height that
/// its bench mark has in the book.
bool Filling::isDifference(const std::string& stored, double mean) const {
  if (stored.empty()) return false;
  const double result = text::readNumber(stored);
  const double height = text::readNumber(grid_.text(benchMark_, colPresent));
  return std::abs(result - mean) < std::abs(result - height);
}

}  // namespace hksnb
