#include "daen/entry_checks.h"

#include <cmath>
#include <utility>

#include "daen/columns.h"
#include "daen/data_sections.h"
#include "daen/section_checks.h"
#include "route/checks.h"
#include "text/error.h"
#include "text/number.h"
#include "text/padding.h"

namespace daen {
namespace {

using ui::Severity;

constexpr double hundredth = 0.01;          // mm, the last decimal of a sum of sections
constexpr std::size_t benchMarkWidth = 10;  // characters of a bench mark that a reference item shows

const char* const chooseAgain = "参照補正値を一覧から選び直し、最初の区間から計算してください。";

bool isBlank(const std::string& text) { return text::trimmed(text).empty(); }

double readable(const std::string& text) {
  try {
    return text::readNumber(text);
  } catch (const text::RuntimeError&) {
    return 0;
  }
}

}  // namespace

void EntryChecks::add(Severity severity, std::string text, std::string wayOut) {
  findings_.push_back({severity, -1, -1, std::move(text), std::move(wayOut)});
}

void EntryChecks::run() {
  waitingSection();
  reference();
}

bool EntryChecks::isRead(const std::string& benchMark) const {
  const std::string_view name = text::trimmed(benchMark);
  for (int row = 1; !name.empty() && row < Grid1_.rows(); row += 2)
    if (text::trimmed(Grid1_.text(row, colBenchMark)) == name) return true;
  return false;
}

/// A section of this route is chosen with latitudes that no computed section has.
bool EntryChecks::waits() const {
  const bool anyLatitude = !isBlank(section_.startDegrees) || !isBlank(section_.startMinutes) ||
                           !isBlank(section_.endDegrees) || !isBlank(section_.endMinutes);
  if (!anyLatitude || !isRead(section_.startBenchMark) || !isRead(section_.endBenchMark)) return false;
  const auto is = [&](int row, int col, std::string_view text) {
    return text::trimmed(Grid2_.text(row, col)) == text::trimmed(text);
  };
  const std::string start = latitudeText(section_.startDegrees, section_.startMinutes);
  const std::string end = latitudeText(section_.endDegrees, section_.endMinutes);
  for (int row = 1; row <= Grid2_.rows() - 2; ++row)
    if (is(row, secStartBenchMark, section_.startBenchMark) &&
        is(row, secEndBenchMark, section_.endBenchMark) && is(row, secStartLatitude, start) &&
        is(row, secEndLatitude, end))
      return false;
  return true;
}

std::string EntryChecks::sectionName() const { return section_.startBenchMark + "-" + section_.endBenchMark; }

void EntryChecks::waitingSection() {
  if (!waits()) return;
  add(Severity::Warning,
      "区間 " + sectionName() + " の緯度 " + latitudeText(section_.startDegrees, section_.startMinutes) +
          " と " + latitudeText(section_.endDegrees, section_.endMinutes) + " は、まだ計算に入っていません。",
      "区間計算のページで「OK」を押してください。");
  findings_.back().mark = ui::CellMark::NotTaken;
  latitude("出発点", section_.startBenchMark, section_.startDegrees, section_.startMinutes);
  latitude("終末点", section_.endBenchMark, section_.endDegrees, section_.endMinutes);
}

void EntryChecks::latitude(const char* which, const std::string& benchMark, const std::string& degrees,
                           const std::string& minutes) {
  const std::string problem = latitudeProblem(degrees, minutes);
  if (problem.empty()) return;
  add(Severity::Warning,
      std::string(which) + " " + benchMark + " の緯度「" + latitudeText(degrees, minutes) + "」は、" +
          problem + "。",
      "計算する前に入力し直してください。");
}

/// The reference that the first computed section was given (mm).
double EntryChecks::computedWith() const {
  return route::numberIn(Grid2_, 1, secAccumulated) - route::numberIn(Grid2_, 1, secCorrection);
}

void EntryChecks::reference() {
  const double now = readable(section_.reference);
  if (!isBlank(section_.reference) && !text::isNumeric(section_.reference))
    add(Severity::Error,
        "参照補正値「" + section_.reference + "」は数ではありません。" + text::numberText(now) +
            " として計算されます。",
        chooseAgain);
  if (anySection() && std::abs(computedWith() - now) > hundredth) return otherThanComputedWith(now);
  if (isBlank(section_.reference)) return;
  if (!isBlank(conditions_.referenceItem)) return ofAnotherBenchMark();
  if (!anySection() && isRead(Grid1_.text(1, colBenchMark)))
    add(Severity::Warning,
        "参照補正値 " + section_.reference +
            " mm は、この路線の一覧から選んだ値ではありません。前に開いた路線の値が残って"
            "います。",
        chooseAgain);
}

/// The next calculation sums the sections up with the reference that stands there then, while the route keeps
/// what it was computed with. A route just reopened has none chosen: that matters when a section is to
/// follow.
void EntryChecks::otherThanComputedWith(double now) {
  if (isBlank(section_.reference) && !waits()) return;
  add(Severity::Warning,
      "最初の区間 " + Grid2_.text(1, secStartBenchMark) + "-" + Grid2_.text(1, secEndBenchMark) +
          " は参照補正値 " + route::millimetres(computedWith()) +
          " mm で計算されています。今の参照補正値は " + route::millimetres(now) + " mm です。",
      "同じ参照補正値を選び直すか、最初の区間から計算し直してください。");
}

/// The value taken over stands at the end of another route's section: the first section of this one begins
/// there.
void EntryChecks::ofAnotherBenchMark() {
  const std::string& first = anySection() ? Grid2_.text(1, secStartBenchMark) : section_.startBenchMark;
  const std::string end = referenceEnd(conditions_.referenceItem);
  if (isBlank(first) || text::trimmed(text::left(text::trimmed(first), benchMarkWidth)) == end) return;
  add(anySection() ? Severity::Error : Severity::Warning,
      "参照補正値 " + section_.reference + " mm は路線 " + referenceRoute(conditions_.referenceItem) +
          " の " + end + " の値です。最初の区間は " + first + " から始まります。",
      chooseAgain);
}

}  // namespace daen
