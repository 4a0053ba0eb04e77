#include "ui/screen_state.h"

#include "ui/controls.h"
#include "ui/screen.h"

namespace ui {

ScreenState::ScreenState(Screen& screen) : screen_(screen), past_(screen.history().setAside()) {
  for (Control* control : screen.controls()) keep(*control);
}

void ScreenState::keep(Control& control) {
  if (auto* grid = dynamic_cast<Grid*>(&control))
    grids_.emplace_back(grid, grid->contents());
  else if (auto* text = dynamic_cast<TextControl*>(&control))
    texts_.emplace_back(text, text->text());
  else if (auto* list = dynamic_cast<ItemControl*>(&control))
    lists_.push_back({list, list->items(), list->listIndex()});
}

/// What is as it was is left alone: a text box tells of each change.
void ScreenState::bringBack() {
  for (auto& [grid, contents] : grids_) grid->setContents(std::move(contents));
  for (const auto& [control, text] : texts_)
    if (control->text() != text) control->setText(text);
  for (const Items& kept : lists_) {
    if (kept.control->items() == kept.items && kept.control->listIndex() == kept.chosen) continue;
    kept.control->clear();
    for (const std::string& item : kept.items) kept.control->addItem(item);
    kept.control->setListIndex(kept.chosen);
  }
  screen_.history().bringBack(std::move(past_));
}

}  // namespace ui
