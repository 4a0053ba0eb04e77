#include "daen/section_checks.h"

#include <algorithm>
#include <utility>

#include "daen/calculation.h"
#include "daen/columns.h"
#include "route/checks.h"
#include "text/error.h"
#include "text/number.h"
#include "text/padding.h"

namespace daen {
namespace {

using ui::Severity;

constexpr double southernmost = 20;  // degrees of latitude between which the country lies
constexpr double northernmost = 46;
constexpr double tenths = 10;  // of a millimetre in a whole one
constexpr std::string_view degreeSign = "°";

const char* const computeAgain = "この区間から後ろの行を削除して、路線の順に計算し直してください。";

double readable(std::string_view text) {
  try {
    return text::readNumber(text);
  } catch (const text::RuntimeError&) {
    return 0;
  }
}

std::string_view trimmedCell(const ui::Grid& grid, int row, int col) {
  return text::trimmed(grid.text(row, col));
}

}  // namespace

std::string latitudeProblem(std::string_view degrees, std::string_view minutes) {
  const bool noDegrees = text::trimmed(degrees).empty();
  const bool noMinutes = text::trimmed(minutes).empty();
  if (noDegrees && noMinutes) return "度と分が空です";
  if (noDegrees) return "度が空です";
  if (noMinutes) return "分が空です";
  const double minute = readable(minutes);
  if (minute >= 60) return "分 " + std::string(text::trimmed(minutes)) + " が 60 以上です";
  const double latitude = readable(degrees) + minute / 60;
  if (latitude >= southernmost && latitude <= northernmost && minute >= 0) return {};
  return "北緯 20° から 46° の間にありません";
}

SectionChecks::SectionChecks(const ui::Grid& Grid1, const ui::Grid& Grid2, job::Grade grade,
                             ui::Findings& findings)
    : Grid1_(Grid1), Grid2_(Grid2), grade_(grade), findings_(findings) {}

void SectionChecks::add(Severity severity, int row, std::string text, std::string wayOut) {
  findings_.push_back(
      {severity, row > 0 ? row : -1, row > 0 ? colCorrection : -1, std::move(text), std::move(wayOut)});
}

void SectionChecks::run() {
  if (Grid2_.rows() < 3) return;
  findRows();
  for (int row = 1; row <= Grid2_.rows() - 2; ++row) section(row);
  withoutSection();
}

/// The first row of each bench mark at an end of a section, as the calculation takes it.
void SectionChecks::findRows() {
  for (int row = 1; row <= Grid2_.rows() - 2; ++row) {
    rows_.try_emplace(trimmedCell(Grid2_, row, secStartBenchMark), 0);
    rows_.try_emplace(trimmedCell(Grid2_, row, secEndBenchMark), 0);
  }
  for (int row = 1; row < Grid1_.rows(); row += 2) {
    const auto found = rows_.find(trimmedCell(Grid1_, row, colBenchMark));
    if (found != rows_.end() && found->second == 0) found->second = row;
  }
}

std::string SectionChecks::name(int row) const {
  return cell(row, secStartBenchMark) + "-" + cell(row, secEndBenchMark);
}

SectionChecks::Ends SectionChecks::endsOf(int row) const {
  return {rows_.at(trimmedCell(Grid2_, row, secStartBenchMark)),
          rows_.at(trimmedCell(Grid2_, row, secEndBenchMark))};
}

/// A section that is out of place is told so and nothing else: its sums cannot be right.
void SectionChecks::section(int row) {
  const Ends ends = endsOf(row);
  latitude(row, secStartLatitude, ends.start);
  latitude(row, secEndLatitude, ends.end);
  if (ends.start == 0 || ends.end == 0)
    return add(Severity::Error, 0, "区間 " + name(row) + " の水準点がこの路線にありません。",
               "区間の行を削除してください。");
  if (!inAnotherPlace(row, ends) && !backward(row, ends)) sum(row, ends);
}

void SectionChecks::latitude(int row, int col, int routeRow) {
  const std::string& latitude = cell(row, col);
  const std::size_t sign = std::min(latitude.find(degreeSign), latitude.size());
  const std::size_t minutes = std::min(sign + degreeSign.size(), latitude.size());
  const std::string problem =
      latitudeProblem(std::string_view(latitude).substr(0, sign), std::string_view(latitude).substr(minutes));
  if (problem.empty()) return;
  const bool start = col == secStartLatitude;
  add(Severity::Error, routeRow,
      "区間 " + name(row) + " の" + (start ? "出発点 " : "終末点 ") +
          cell(row, start ? secStartBenchMark : secEndBenchMark) + " の緯度「" + latitude + "」は、" +
          problem + "。",
      "緯度を入力し直して、区間を計算し直してください。");
}

/// Not joined to the section before, or standing after one that follows it along the route.
bool SectionChecks::inAnotherPlace(int row, const Ends& ends) {
  if (row == 1 ||
      trimmedCell(Grid2_, row - 1, secEndBenchMark) == trimmedCell(Grid2_, row, secStartBenchMark))
    return false;
  if (ends.start < endsOf(row - 1).start)
    add(Severity::Error, ends.start,
        "区間 " + name(row) + " は " + name(row - 1) + " より後に計算していますが、路線では前にあります。" +
            cell(row - 1, secAccumulated) + " mm に足されています。",
        "この区間と " + name(row - 1) + " の行を削除して、路線の順に計算し直してください。");
  else
    add(Severity::Error, ends.start,
        "区間 " + name(row) + " が前の区間 " + name(row - 1) + " の終わり " + cell(row - 1, secEndBenchMark) +
            " から始まっていません。出発点のほかの水準点に、前の区間の " + cell(row - 1, secAccumulated) +
            " mm が足されています。",
        computeAgain);
  return true;
}

/// Backwards the segment beyond the end is part of the distance that is measured against, and the end gets
/// less than the section's correction.
bool SectionChecks::backward(int row, const Ends& ends) {
  if (ends.start < ends.end) return false;
  double own = 0;
  for (int at = ends.end + 1; at < ends.start; at += 2) own += route::numberIn(Grid1_, at, colDistance);
  const double beyond = ends.end > 1 ? route::numberIn(Grid1_, ends.end - 1, colDistance) : 0;
  const std::string begin = "区間 " + name(row) + " は逆方向です。";
  if (beyond == 0) {
    add(Severity::Warning, ends.start,
        begin + "補正は " + cell(row, secStartBenchMark) + " から前へ向けて足されます。",
        "順方向で計算してください。");
    return true;
  }
  const double correction = route::numberIn(Grid2_, row, secCorrection);
  const double share = text::roundHalfAway(own / (own + beyond) * correction, tenths);
  add(Severity::Error, ends.start,
      begin + "区間の距離 " + FcDaenInit(grade_).distance.format(own) + " km に一つ先の " +
          Grid1_.text(ends.end - 1, colDistance) + " km が加わり、終わりの " + cell(row, secEndBenchMark) +
          " の配分が " + cell(row, secCorrection) + " mm でなく " + route::millimetres(share) +
          " mm になっています。",
      "順方向で計算し直してください。");
  return true;
}

/// The route shows at a section's end what the sections add up to there.
void SectionChecks::sum(int row, const Ends& ends) {
  const Formats formats = FcDaenInit(grade_);
  const std::string expected = formats.correction.format(route::numberIn(Grid2_, row, secAccumulated));
  const std::string& shown = Grid1_.text(ends.end, colCorrection);
  if (readable(shown) == readable(expected) && !text::trimmed(shown).empty()) return;
  add(Severity::Error, ends.end,
      "区間 " + name(row) + " までの合計は " + expected + " mm ですが、成果表の " +
          cell(row, secEndBenchMark) + " の楕円補正は「" + shown + "」です。",
      computeAgain);
}

/// The rows of the route grid over which a section runs.
std::vector<bool> SectionChecks::covered() const {
  std::vector<bool> rows(static_cast<std::size_t>(Grid1_.rows()));
  for (int row = 1; row <= Grid2_.rows() - 2; ++row) {
    const Ends ends = endsOf(row);
    if (ends.start == 0 || ends.end == 0) continue;
    const auto [from, to] = std::minmax(ends.start, ends.end);
    std::fill(rows.begin() + from, rows.begin() + to + 1, true);
  }
  return rows;
}

void SectionChecks::withoutSection() {
  const std::vector<bool> inSection = covered();
  for (int row = 1; row < Grid1_.rows(); row += 2)
    if (!inSection[static_cast<std::size_t>(row)] && !trimmedCell(Grid1_, row, colCorrection).empty())
      add(Severity::Warning, row,
          route::placeName(Grid1_, row) + "の楕円補正 " + Grid1_.text(row, colCorrection) +
              " mm は、区間の表のどの区間にも属しません。",
          "その区間を計算し直してください。");
}

}  // namespace daen
