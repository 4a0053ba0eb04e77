#pragma once

#include <memory>
#include <string>
#include <vector>

#include "support/recording_desktop.h"
#include "text/cancelled.h"
#include "ui/controls.h"
#include "ui/grid.h"
#include "ui/screen.h"
#include "ui/work_bar.h"

namespace test {

/// A desk whose operator watches long works and gives them up.
class ImpatientDesktop : public RecordingDesktop {
 public:
  int patience = 1 << 20;          ///< pieces of a work that he waits for; with the next one he gives it up
  int pieces = 0;                  ///< of the last work
  std::vector<std::string> works;  ///< what they were called

  std::unique_ptr<ui::WorkBar> workBar(const std::string& words) override {
    works.push_back(words);
    pieces = 0;
    return std::make_unique<Bar>(*this);
  }

 private:
  class Bar : public ui::WorkBar {
   public:
    explicit Bar(ImpatientDesktop& desktop) : desktop_(desktop) {}
    void goOn() override {
      if (++desktop_.pieces > desktop_.patience) throw text::Cancelled();
    }

   private:
    ImpatientDesktop& desktop_;
  };
};

/// All that a screen shows: texts, lists with their choice, grids cell by cell with where the operator
/// stands, the page in front; and what can be taken back.
inline std::vector<std::string> shownOn(ui::Screen& screen) {
  std::vector<std::string> lines{"undo " + screen.history().undoName(), "redo " + screen.history().redoName(),
                                 "unsaved " + std::to_string(screen.history().unsavedCells())};
  for (ui::Control* control : screen.controls()) {
    std::string line = control->name() + ":";
    if (const auto* text = dynamic_cast<ui::TextControl*>(control)) line += " " + text->text();
    if (const auto* pages = dynamic_cast<ui::TabControl*>(control)) line += std::to_string(pages->current());
    if (const auto* list = dynamic_cast<ui::ItemControl*>(control)) {
      line += std::to_string(list->listIndex());
      for (const std::string& item : list->items()) line += "|" + item;
    }
    if (const auto* grid = dynamic_cast<ui::Grid*>(control)) {
      line += std::to_string(grid->row()) + "," + std::to_string(grid->keyCol());
      for (int row = 0; row < grid->rows(); ++row)
        for (int col = 0; col < grid->cols(); ++col) line += "|" + grid->text(row, col);
    }
    lines.push_back(line);
  }
  return lines;
}

}  // namespace test
