#include "hksnb/checks.h"

#include <algorithm>
#include <cmath>

#include "hksnb/calculation.h"
#include "hksnb/columns.h"
#include "hksnb/saved_checks.h"
#include "route/checks.h"
#include "route/selection.h"
#include "text/error.h"
#include "text/number.h"
#include "text/padding.h"

namespace hksnb {
namespace {

constexpr double highest = 1e6;  // m; no height reaches it

/// True for a number that may be a height (m).
bool isHeight(std::string_view text) {
  try {
    return text::isNumeric(text) && std::abs(text::readNumber(text)) <= highest;
  } catch (const text::RuntimeError&) {
    return false;
  }
}

class BookCheck {
 public:
  BookCheck(const ui::Grid& grid, job::Grade grade, const BookState& state)
      : grid_(grid), grade_(grade), formats_(FcHHKSB_DefToColNo(grade)), state_(state) {}

  ui::Findings run() {
    if (!state_.whole)
      add(ui::Severity::Error, -1, -1, "読込が途中で終わっています。表はそろっていません。",
          "もう一度「次へ」で読み込んでください。");
    for (int row = 1; row < grid_.rows(); row += 2)
      if (!isBlank(row, colBenchMark)) benchMark(row);
    if (hasBenchMarks_) {
      number();
      findDifferencesToSaved(grid_, state_, grade_, findings_);
    }
    ui::sortFindings(findings_);
    return std::move(findings_);
  }

 private:
  void add(ui::Severity severity, int row, int col, std::string text, std::string wayOut) {
    findings_.push_back({severity, row, col, std::move(text), std::move(wayOut)});
  }

  bool isBlank(int row, int col) const { return text::trimmed(grid_.text(row, col)).empty(); }
  std::string name(int row) const { return "水準点 " + grid_.text(row, colBenchMark); }

  void benchMark(int row) {
    hasBenchMarks_ = true;
    if (state_.kind == Kind::Ellipsoidal && isBlank(row, colPresent))
      add(ui::Severity::Error, row, colPresent,
          name(row) + "の楕円補正が保存されていません。今回の標高が空です。",
          "楕円補正計算で保存してから、つくり直してください。");
    if (row + 2 < grid_.rows() && !isBlank(row + 2, colBenchMark)) section(row);
    previous(row);
  }

  /// The section from the bench mark on `row` to the next one. Behind a repeated one none was observed.
  void section(int row) {
    if (grid_.text(row, colEndMark) == route::repeatedPoint) return;
    const std::string where =
        "区間 " + grid_.text(row, colBenchMark) + "-" + grid_.text(row + 2, colBenchMark);
    if (isBlank(row + 1, colHeight))
      add(ui::Severity::Error, row + 1, colHeight, where + "に比高がありません。0 として足されます。",
          "観測成果を確かめてください。");
    else if (state_.kind == Kind::Orthometric && isBlank(row + 1, colPresent))
      add(ui::Severity::Error, row + 1, colPresent,
          where + "の正標高補正が保存されていません。比高 " + grid_.text(row + 1, colHeight) +
              " m は今回の標高に足されません。",
          "正標高補正計算で保存してから、つくり直してください。");
  }

  void previous(int row) {
    const std::string typed(text::trimmed(grid_.text(row, colPrevious)));
    if (typed.empty()) return amount(row, {});
    const double present = route::numberIn(grid_, row, colPresent);
    if (!isHeight(typed))
      return add(ui::Severity::Error, row, colPrevious,
                 name(row) + "の平均成果「" + typed + "」は標高ではありません。",
                 "標高(m)を数で入力してください。");
    if (std::abs(present) > highest) return;
    const std::string mm = variationAmount(present, text::readNumber(typed), formats_);
    amount(row, mm);
    if (std::abs(text::readNumber(mm)) > state_.farAway)
      add(ui::Severity::Warning, row, colPrevious,
          name(row) + "の平均成果 " + typed + " は、今回の " + grid_.text(row, colPresent) + " と " + mm +
              " mm 違います(目安 " + route::millimetres(state_.farAway) + " mm)。",
          "入力した標高を確かめてください。");
  }

  void amount(int row, const std::string& expected) {
    const std::string shown(text::trimmed(grid_.text(row, colVariation)));
    if (shown == expected) return;
    std::string text =
        name(row) + "の変動量 " + shown + " mm は、今の標高の差 " + expected + " mm ではありません。";
    if (shown.empty()) text = name(row) + "の変動量がまだ計算されていません。";
    if (expected.empty()) text = name(row) + "の平均成果は空ですが、変動量 " + shown + " mm が残っています。";
    add(ui::Severity::Error, row, colVariation, std::move(text), "「変動量計算」を押してください。");
    findings_.back().mark = ui::CellMark::NotTaken;
  }

  void number() {
    const std::string_view number = text::trimmed(state_.number);
    if (number.empty()) return;
    const bool exists = std::find(state_.stored.begin(), state_.stored.end(), number) != state_.stored.end();
    if (exists && number != text::trimmed(state_.reopened))
      add(ui::Severity::Warning, -1, -1,
          "番号 " + std::string(number) + " の" + std::string(correctionName(state_.kind)) +
              "の計算簿はすでにあります。「完了」で置き換えられます。",
          "残しておくときは、ほかの番号にしてください。");
  }

  const ui::Grid& grid_;
  const job::Grade grade_;
  const Formats formats_;
  const BookState& state_;
  ui::Findings findings_;
  bool hasBenchMarks_ = false;
};

}  // namespace

ui::Findings checks(const ui::Grid& Grid1, job::Grade grade, const BookState& state) {
  return BookCheck(Grid1, grade, state).run();
}

}  // namespace hksnb
