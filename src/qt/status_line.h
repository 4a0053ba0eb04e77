#pragma once

#include <QLabel>
#include <QStatusBar>

#include "ui/finding.h"

namespace ui {
class Grid;
class Screen;
}  // namespace ui

namespace qt {

/// The line along the lower edge of a window: on the left what the current cell is and takes, or the numbers
/// of a selected range; on the right how many findings there are, what is open, the job, its grade and the
/// unit of its corrections. It claims no width of its own.
class StatusLine : public QStatusBar {
  Q_OBJECT

 public:
  explicit StatusLine(QWidget* parent = nullptr);

  /// Shows the screen as it is now. `grid`: the table in front, null for none.
  void tell(const ui::Screen& screen, const ui::Grid* grid);
  /// Shows how many findings there are.
  void count(const ui::Findings& findings);

  QSize minimumSizeHint() const override { return {0, QStatusBar::minimumSizeHint().height()}; }

 private:
  QLabel& add(const char* name, bool stretches);

  QLabel& cell_;
  QLabel& notice_;
  QLabel& checks_;
  QLabel& open_;
  QLabel& job_;
};

}  // namespace qt
