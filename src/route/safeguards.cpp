#include "route/safeguards.h"

namespace route {
namespace {

constexpr int mostListed = 10;  // findings that a question names one by one

/// "やめる" is the safe answer to a question that only asks whether to go on.
bool goOn(ui::Desktop& desktop, std::string text, std::string yes) {
  return desktop.ask({std::move(text), {std::move(yes), "やめる"}, 1}) == 0;
}

std::string listed(const ui::Findings& findings, int errors) {
  std::string lines;
  int shown = 0;
  for (const ui::Finding& finding : findings) {
    if (finding.severity != ui::Severity::Error || shown == mostListed) continue;
    lines += "・" + finding.text + "\n";
    ++shown;
  }
  if (errors > shown) lines += "ほか " + std::to_string(errors - shown) + " 件\n";
  return lines;
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

bool maySaveWith(ui::Desktop& desktop, const ui::Findings& findings) {
  const int errors = ui::countFindings(findings, ui::Severity::Error);
  if (!desktop.safeguards() || errors == 0) return true;
  return goOn(desktop,
              "点検で誤りが " + std::to_string(errors) + " 件見つかりました。\n" + listed(findings, errors) +
                  "このまま保存しますか。",
              "保存する");
}

bool mayShrink(ui::Desktop& desktop, std::string_view what, long long deleted, long long written) {
  if (!desktop.safeguards() || written >= deleted) return true;
  return goOn(desktop,
              std::string(what) + " の保存済みの " + std::to_string(deleted) + " 件が " +
                  std::to_string(written) + " 件に減ります。",
              "保存する");
}

}  // namespace route
