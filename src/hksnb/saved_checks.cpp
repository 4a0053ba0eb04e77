#include "hksnb/saved_checks.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <utility>

#include "hksnb/columns.h"
#include "hksnb/distances.h"
#include "route/checks.h"
#include "text/number.h"
#include "text/padding.h"

namespace hksnb {
namespace {

constexpr double noise = 1e-6;  // units; what differences of doubles may be off by

/// Goes down the bench marks of a book and tells the first height of each route that is not the saved one.
class SavedHeights {
 public:
  SavedHeights(const ui::Grid& grid, const BookState& state, job::Grade grade, ui::Findings& findings)
      : grid_(grid), state_(state), grade_(grade), findings_(findings) {}

  void run() {
    const std::vector<BookPoint> points = bookPoints(grid_);
    if (points.size() != state_.saved->results.size()) return;
    for (std::size_t i = 0; i < points.size(); ++i) {
      if (i == 0 || points[i].project != points[i - 1].project || points[i].route != points[i - 1].route)
        conclude();
      if (const auto saved = otherHeight(points[i].row, state_.saved->results[i], i))
        differs(points[i], *saved);
    }
    conclude();
  }

 private:
  /// The saved height next to the one in the book, where that is another; `sections` were walked up to here.
  std::optional<double> otherHeight(int row, const std::vector<double>& saved, std::size_t sections) const {
    if (!text::isNumeric(grid_.text(row, colPresent))) return std::nullopt;
    const double present = route::numberIn(grid_, row, colPresent);
    std::optional<double> nearest;
    for (const double height : saved) {
      if (isDifference(row, height, present)) continue;
      if (!nearest || std::abs(height - present) < std::abs(*nearest - present)) nearest = height;
    }
    const double allowed =
        state_.kind == Kind::Orthometric ? 1 + 0.5 * static_cast<double>(sections) : 0.5;  // units
    if (!nearest || std::abs(*nearest - present) * grade_.factor() <= allowed + noise) return std::nullopt;
    return nearest;
  }

  /// True for the corrected difference of the section below, which an orthometric result may be.
  bool isDifference(int row, double result, double present) const {
    if (state_.kind != Kind::Orthometric || row + 1 >= grid_.rows()) return false;
    const double difference = route::numberIn(grid_, row + 1, colPresent);
    return std::abs(result - difference) < std::abs(result - present);
  }

  void differs(const BookPoint& point, double saved) {
    if (count_++ > 0) return;
    first_ = point;
    saved_ = saved;
  }

  void conclude() {
    const int count = std::exchange(count_, 0);
    if (count == 0) return;
    const std::string& present = grid_.text(first_.row, colPresent);
    const double mm = (text::readNumber(present) - saved_) * 1000;
    const std::string more = count > 1 ? "この路線でほかに " + std::to_string(count - 1) + " 点。" : "";
    findings_.push_back(
        {ui::Severity::Warning, first_.row, colPresent,
         "路線 " + first_.route + " の水準点 " + grid_.text(first_.row, colBenchMark) + " の今回の標高 " +
             present + " は、保存されている" + std::string(correctionName(state_.kind)) + "の結果 " +
             grade_.heights().format(saved_) + " と " + route::millimetres(mm) + " mm 違います。" + more,
         "どちらが正しいか確かめ、補正計算を保存し直すか、計算簿をつくり直してください。"});
  }

  const ui::Grid& grid_;
  const BookState& state_;
  const job::Grade grade_;
  ui::Findings& findings_;
  int count_ = 0;  // bench marks of the present route that differ
  BookPoint first_;
  double saved_ = 0;  // height of that one, m
};

bool isMonth(const std::string& month) {
  return month.size() == 6 &&
         std::all_of(month.begin(), month.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// "2022年5月" for "202205".
std::string monthText(const std::string& month) {
  return month.substr(0, 4) + "年" + std::to_string(std::stoi(month.substr(4))) + "月";
}

void findWidePeriod(const BookState& state, ui::Findings& findings) {
  const std::string from = state.present.from();
  const std::string to = state.present.to();
  const SavedResults& saved = *state.saved;
  if (!isMonth(from) || !isMonth(to) || !isMonth(saved.firstMonth) || !isMonth(saved.lastMonth)) return;
  if (from >= saved.firstMonth && to <= saved.lastMonth) return;
  findings.push_back(
      {ui::Severity::Warning, -1, -1,
       "新観測年月 " + monthText(from) + "～" + monthText(to) + " は、観測年月日の " +
           monthText(saved.firstMonth) + "～" + monthText(saved.lastMonth) + " より広くなっています。",
       "処理Cの新観測年月を確かめてください。前の計算簿の年月が残っていると、そこから広がります。"});
}

}  // namespace

void findDifferencesToSaved(const ui::Grid& Grid1, const BookState& state, job::Grade grade,
                            ui::Findings& findings) {
  if (state.saved == nullptr) return;
  SavedHeights(Grid1, state, grade, findings).run();
  findWidePeriod(state, findings);
}

}  // namespace hksnb
