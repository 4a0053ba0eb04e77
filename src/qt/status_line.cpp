#include "qt/status_line.h"

#include "qt/convert.h"
#include "qt/findings_pane.h"
#include "text/error.h"
#include "ui/grid.h"
#include "ui/range_summary.h"
#include "ui/screen.h"
#include "ui/situation.h"

namespace qt {
namespace {

/// Where a range is selected its numbers count; the current cell alone tells what it is. A grid that is only
/// half set up, as before the first opening, tells nothing. A row that a click highlights whole is no range.
std::string cellText(const ui::Screen& screen, const ui::Grid& grid) try {
  const bool wholeRow = grid.row() == grid.rowSel() && grid.col() == 0 && grid.colSel() == grid.cols() - 1;
  const bool range = !wholeRow && (grid.row() != grid.rowSel() || grid.col() != grid.colSel());
  std::string numbers = range ? ui::summaryText(ui::summarize(grid)) : std::string();
  if (!numbers.empty()) return numbers;
  if (!grid.clickable(grid.keyRow(), grid.keyCol())) return {};
  const std::string problem = grid.problem(grid.keyRow(), grid.keyCol());
  return ui::cellName(screen, grid, grid.keyRow(), grid.keyCol()) + "  " +
         (problem.empty() ? ui::cellTakes(grid, grid.keyRow(), grid.keyCol()) : problem);
} catch (const text::RuntimeError&) {
  return {};
}

void fill(QLabel& label, const std::string& text) {
  const QString words = toQString(text);
  if (label.text() == words) return;
  label.setText(words);
  label.setToolTip(words);  // whole, where the window is narrow
  label.setVisible(!words.isEmpty());
}

}  // namespace

StatusLine::StatusLine(QWidget* parent)
    : QStatusBar(parent),
      cell_(add("statusCell", true)),
      notice_(add("statusNotice", false)),
      checks_(add("statusChecks", false)),
      open_(add("statusOpen", false)),
      job_(add("statusJob", false)) {
  setSizeGripEnabled(false);
}

QLabel& StatusLine::add(const char* name, bool stretches) {
  auto* label = new QLabel;
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setContentsMargins(4, 0, 6, 0);
  if (stretches) {
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    addWidget(label, 1);
  } else {
    addPermanentWidget(label);
  }
  label->hide();
  return *label;
}

void StatusLine::count(const ui::Findings& findings) { fill(checks_, fromQString(countText(findings))); }

void StatusLine::tell(const ui::Screen& screen, const ui::Grid* grid) {
  const ui::Situation situation = screen.situation();
  fill(cell_, grid == nullptr ? std::string() : cellText(screen, *grid));
  fill(notice_, situation.notice);
  fill(open_, situation.open);
  const bool both = !situation.job.empty() && !situation.units.empty();
  fill(job_, situation.job + (both ? "  " : "") + situation.units);
}

}  // namespace qt
