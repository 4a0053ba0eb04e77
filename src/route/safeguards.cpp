#include "route/safeguards.h"

#include <algorithm>
#include <iterator>

namespace route {
namespace {

constexpr std::size_t mostListed = 10;  // findings that a question names one by one

/// "やめる" is the safe answer to a question that only asks whether to go on.
bool goOn(ui::Desktop& desktop, std::string text, std::string yes) {
  return desktop.ask({std::move(text), {std::move(yes), "やめる"}, 1}) == 0;
}

/// A line for each finding, as far as a question has room for them.
std::string listed(const ui::Findings& findings) {
  std::string lines;
  const std::size_t shown = std::min(findings.size(), mostListed);
  for (std::size_t i = 0; i < shown; ++i) lines += "・" + findings[i].text + "\n";
  if (findings.size() > shown) lines += "ほか " + std::to_string(findings.size() - shown) + " 件\n";
  return lines;
}

template <class Which>
ui::Findings only(const ui::Findings& findings, Which which) {
  ui::Findings chosen;
  std::copy_if(findings.begin(), findings.end(), std::back_inserter(chosen), which);
  return chosen;
}

bool isUntaken(const ui::Finding& finding) { return finding.mark == ui::CellMark::NotTaken; }

enum class Untaken { Calculate, SaveAsTheyAre, Stay };

Untaken askAboutUntaken(ui::Desktop& desktop, const ui::Findings& untaken) {
  const ui::Question question{"まだ計算に入っていない入力が " + std::to_string(untaken.size()) +
                                  " か所あります。\n" + listed(untaken) +
                                  "このまま保存すると、計算し直さない値が保存されます。",
                              {"計算して保存", "このまま保存", "やめる"},
                              2};
  return static_cast<Untaken>(desktop.ask(question));
}

bool maySaveErrors(ui::Desktop& desktop, const ui::Findings& findings) {
  const ui::Findings errors =
      only(findings, [](const ui::Finding& finding) { return finding.severity == ui::Severity::Error; });
  return errors.empty() || goOn(desktop,
                                "点検で誤りが " + std::to_string(errors.size()) + " 件見つかりました。\n" +
                                    listed(errors) + "このまま保存しますか。",
                                "保存する");
}

}  // namespace

bool mayLose(ui::Desktop& desktop, std::string_view what, int cells, const std::function<bool()>& save) {
  if (!desktop.safeguards() || cells == 0) return true;
  const ui::Question question{std::string(what) + " に、保存していない変更が " + std::to_string(cells) +
                                  " セルあります。\n破棄すると失われます。",
                              {"保存", "破棄", "取消"},
                              2};
  switch (desktop.ask(question)) {
    case 0:
      return save();
    case 1:
      return true;
    default:
      return false;
  }
}

bool maySaveWith(ui::Desktop& desktop, const std::function<ui::Findings()>& findings,
                 const std::function<bool(const ui::Findings&)>& calculate) {
  if (!desktop.safeguards()) return true;
  ui::Findings found = findings();
  const ui::Findings untaken = only(found, isUntaken);
  if (untaken.empty()) return maySaveErrors(desktop, found);
  switch (askAboutUntaken(desktop, untaken)) {
    case Untaken::Calculate:
      return calculate(untaken) && maySaveErrors(desktop, findings());
    case Untaken::SaveAsTheyAre:
      return maySaveErrors(desktop, only(found, std::not_fn(isUntaken)));
    case Untaken::Stay:
      break;
  }
  return false;
}

bool mayShrink(ui::Desktop& desktop, std::string_view what, const SavePlan& plan) {
  if (!desktop.safeguards() || !plan.shrinks()) return true;
  return goOn(desktop,
              std::string(what) + " の保存済みの " + std::to_string(plan.deletes) + " 件が " +
                  std::to_string(plan.writes) + " 件に減ります。\n減る分は失われます。",
              "保存する");
}

bool mayReplaceOthers(ui::Desktop& desktop, std::string_view what, std::size_t records) {
  if (!desktop.safeguards() || records == 0) return true;
  return goOn(desktop,
              std::string(what) + " は、読み込んだあとで別に保存されています(" + std::to_string(records) +
                  " 行が違います)。\n保存すると、その内容は失われます。",
              "保存する");
}

bool mayStoreWithoutNumber(ui::Desktop& desktop) {
  return !desktop.safeguards() ||
         goOn(desktop,
              "計算簿の番号が空です。\n保存すると、番号のない計算簿になります。前に番号なしで保存した計算簿は"
              "失われます。",
              "保存する");
}

bool mayReplaceBook(ui::Desktop& desktop, std::string_view what, std::string_view year,
                    std::size_t benchMarks) {
  const std::string results = year.empty() ? std::string() : "観測成果 " + std::string(year) + "、";
  return !desktop.safeguards() ||
         goOn(desktop,
              std::string(what) + "はすでにあります(" + results + "水準点 " + std::to_string(benchMarks) +
                  " 点)。\n保存すると、その計算簿は失われます。",
              "置き換える");
}

bool mayReplacePicture(ui::Desktop& desktop, std::string_view name) {
  return !desktop.safeguards() ||
         goOn(desktop,
              "画像「" + std::string(name) +
                  "」はもう登録されています。\nこの図を登録すると、前の画像は失われます。",
              "置き換える");
}

}  // namespace route
