#include "typing_watch.h"

#include <algorithm>
#include <sstream>

#include "ui/controls.h"

namespace test {
namespace {

const ui::Grid* gridOf(const ui::Screen& screen, const std::string& name) {
  for (const ui::Control* control : screen.controls())
    if (control->kind() == ui::Kind::Grid && control->name() == name)
      return static_cast<const ui::Grid*>(control);
  return nullptr;
}

std::string textAt(const ui::Screen& screen, const std::string& name, int row, int col) {
  const ui::Grid* grid = gridOf(screen, name);
  return grid == nullptr || row >= grid->rows() || col >= grid->cols() ? std::string() : grid->text(row, col);
}

/// True where the line presses a button or menu item whose caption begins so.
bool presses(const ui::Screen& screen, const std::string& line, std::string_view caption) {
  for (const ui::Control* control : screen.controls())
    if (const auto* pressed = dynamic_cast<const ui::Pressable*>(control);
        pressed != nullptr && line == "click " + control->name() && pressed->text().starts_with(caption))
      return true;
  return false;
}

}  // namespace

TypingWatch::Texts TypingWatch::textsOf(const ui::Screen& screen) {
  Texts texts;
  for (const ui::Control* control : screen.controls()) {
    if (control->kind() != ui::Kind::Grid) continue;
    const auto& grid = static_cast<const ui::Grid&>(*control);
    std::vector<std::string>& cells = texts[grid.name()];
    for (int row = 0; row < grid.rows(); ++row)
      for (int col = 0; col < grid.cols(); ++col) cells.push_back(grid.text(row, col));
  }
  return texts;
}

void TypingWatch::forget(const ui::Screen& screen) {
  typed_.clear();
  kept_ = textsOf(screen);
}

void TypingWatch::before(const ui::Screen& screen, std::string_view line, int questions) {
  if (screen_ != &screen || screenName_ != screen.name()) forget(screen);
  screen_ = &screen;
  screenName_ = screen.name();
  line_ = line;
  questions_ = questions;
  key_ = {};
  std::istringstream words(line_);
  std::string verb;
  Typed cell;
  words >> verb >> cell.grid;
  const ui::Grid* grid = gridOf(screen, cell.grid);
  // A table without bench marks holds nothing that could be saved.
  const int names = screenName_ == "fHHksb" ? 5 : 0;
  const bool filled = grid != nullptr && !textAt(screen, cell.grid, 1, names).empty();
  if (!filled || (verb != "key" && verb != "edit")) return;
  cell.row = grid->keyRow();
  cell.col = grid->keyCol();
  if (verb == "edit") words >> cell.row >> cell.col;
  cell.text = grid->text(cell.row, cell.col);
  key_ = cell;
}

/// A text that another one replaced is typed; one that was there when all was opened or saved is not.
void TypingWatch::typedInto(const ui::Screen& screen) {
  if (key_.grid.empty()) return;
  const std::string now = textAt(screen, key_.grid, key_.row, key_.col);
  const std::vector<std::string>& kept = kept_[key_.grid];
  const auto place = static_cast<std::size_t>(key_.row * gridOf(screen, key_.grid)->cols() + key_.col);
  if (now == key_.text || now.empty() || (place < kept.size() && kept[place] == now)) return;
  key_.text = now;
  typed_.push_back(key_);
}

std::string TypingWatch::firstLost(const ui::Screen* screen) const {
  for (const Typed& typed : typed_)
    if (screen == nullptr || textAt(*screen, typed.grid, typed.row, typed.col) != typed.text)
      return typed.grid + " " + std::to_string(typed.row) + " " + std::to_string(typed.col) + " \"" +
             typed.text + "\"";
  return {};
}

void TypingWatch::dropChanged(const ui::Screen& screen) {
  std::erase_if(typed_, [&screen](const Typed& typed) {
    return textAt(screen, typed.grid, typed.row, typed.col) != typed.text;
  });
}

std::string TypingWatch::after(const ui::Screen* screen, int questions) {
  if (screen_ == nullptr) return {};
  const bool another = screen != screen_ || screen->name() != screenName_;
  const bool anew = another || (screen->history().undoName().empty() &&
                                screen->history().redoName().empty() && key_.grid.empty());
  const bool asked = questions > questions_;
  if (anew && !asked) {
    if (const std::string lost = firstLost(another ? nullptr : screen); !lost.empty())
      return "lost unasked by \"" + line_ + "\": " + lost;
  }
  if (screen == nullptr) return {};
  if (another || anew || (presses(*screen, line_, "保存") || presses(*screen, line_, "完了"))) {
    if (another || anew || screen->history().unsavedCells() == 0) forget(*screen);
    return {};
  }
  dropChanged(*screen);
  typedInto(*screen);
  if (typed_.empty() || screen->history().unsavedCells() > 0) return {};
  return "taken for saved after \"" + line_ + "\": " + typed_.front().grid + " " +
         std::to_string(typed_.front().row) + " " + std::to_string(typed_.front().col) + " \"" +
         typed_.front().text + "\"";
}

}  // namespace test
