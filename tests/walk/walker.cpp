#include "walker.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace test {
namespace {

/// Buttons that lead away from a screen, or end the program: pressed seldom, or the walk would never get
/// anywhere.
bool leads(const ui::Control& control) {
  const std::string_view name = control.name();
  return name == "Command3" || name == "mitem(2)" || name == "m1item(2)" || name == "m1item";
}

const ui::Grid* asGrid(const ui::Control* control) {
  return control->kind() == ui::Kind::Grid ? static_cast<const ui::Grid*>(control) : nullptr;
}

const ui::Control* firstGrid(const ui::Screen& screen) {
  return *std::find_if(screen.controls().begin(), screen.controls().end(), asGrid);
}

/// Every text of the screen's tables.
std::string shown(const ui::Screen& screen) {
  std::string all;
  for (const ui::Control* control : screen.controls()) {
    const ui::Grid* grid = asGrid(control);
    for (int row = 0; grid != nullptr && row < grid->rows(); ++row) {
      for (int col = 0; col < grid->cols(); ++col) all += grid->text(row, col) + "\t";
      all += "\n";
    }
  }
  return all;
}

std::string quoted(std::string_view text) {
  std::string result = "\"";
  for (const char c : text) {
    if (c == '"' || c == '\\') result += '\\';
    result += c;
  }
  return result + '"';
}

}  // namespace

void Walker::finish(const ui::Screen* screen) {
  if (questions_ && broken_.empty()) broken_ = typing_.after(screen, questions_());
}

Walker::int_type Walker::underflow() {
  finish(screen_());
  if (!broken_.empty() || steps_-- <= 0 || screen_() == nullptr) return traits_type::eof();
  line_ = nextLine();
  if (questions_) typing_.before(*screen_(), line_, questions_());
  line_ += "\n";
  record_ << line_ << std::flush;
  setg(line_.data(), line_.data(), line_.data() + line_.size());
  return traits_type::to_int_type(line_.front());
}

int Walker::below(int limit) {
  state_ = state_ * 1664525U + 1013904223U;
  return static_cast<int>((state_ >> 8U) % static_cast<std::uint32_t>(limit));
}

std::string Walker::nextLine() {
  const ui::Screen& screen = *screen_();
  if (screen.history().undoName().empty() && screen.history().redoName().empty())
    atBeginning_ = shown(screen);
  if (rewinding_ != Rewinding::No) return rewind(screen);
  if (!next_.empty()) return std::exchange(next_, {});
  switch (below(40)) {
    case 0:
      return "messages";
    case 1:
      return "screen";
    case 2:
      return "resize " + std::to_string(3000 + below(20000)) + " " + std::to_string(3000 + below(12000));
    case 3:
      return answered(screen, below(8) == 0 && screen.name() != "SeikMenu" ? "close" : "screen");
    case 4:
      if (screen.history().redoName().empty() && !screen.history().undoName().empty()) {
        rewinding_ = Rewinding::Back;
        before_ = shown(screen);
        return rewind(screen);
      }
      break;
    default:
      break;
  }
  const ui::Control& control =
      *screen.controls()[static_cast<std::size_t>(below(static_cast<int>(screen.controls().size())))];
  return answered(screen, below(5) == 0 ? look(control) : act(screen, control));
}

/// A line that gives up what is unsaved gets, mostly, the answer to the question that comes then ahead of it.
std::string Walker::answered(const ui::Screen& screen, std::string line) {
  static constexpr std::array<std::string_view, 3> answers = {"破棄", "破棄", "取消"};
  // A route is open where both its project and its number are told; a book needs neither.
  const bool open = screen.name() == "fHHksb" || screen.situation().open.find(' ') != std::string::npos;
  if (!questions_ || !open || screen.history().unsavedCells() == 0 || below(4) == 0) return line;
  const auto is = [&line](std::string_view name) { return line == "click " + std::string(name); };
  if (line != "close" && !is("mitem(2)") && !is("m1item(2)") && !is("m1item")) return line;
  next_ = std::move(line);
  return "answer " + std::string(answers[static_cast<std::size_t>(below(static_cast<int>(answers.size())))]);
}

std::string Walker::look(const ui::Control& control) {
  const bool sized = control.kind() == ui::Kind::Grid || control.kind() == ui::Kind::TabControl;
  return (sized && below(2) == 0 && control.box().width > 0 ? "size " : "show ") + control.name();
}

std::string Walker::act(const ui::Screen& screen, const ui::Control& control) {
  if (!control.enabled()) return look(control);
  switch (control.kind()) {
    case ui::Kind::Button:
    case ui::Kind::OptionButton:
    case ui::Kind::MenuItem:
      return leads(control) && below(screen.name() == "SeikMenu" ? 500 : 4) != 0 ? look(control)
                                                                                 : press(control);
    case ui::Kind::ListBox:
    case ui::Kind::ComboBox:
      return choose(static_cast<const ui::ItemControl&>(control));
    case ui::Kind::TextBox:
      return write(static_cast<const ui::TextBox&>(control));
    case ui::Kind::Grid:
      return work(static_cast<const ui::Grid&>(control));
    case ui::Kind::TabControl:
      return "tab " + control.name() + " " +
             std::to_string(below(static_cast<const ui::TabControl&>(control).pages()));
    default:
      return look(control);
  }
}

std::string Walker::press(const ui::Control& control) { return "click " + control.name(); }

std::string Walker::choose(const ui::ItemControl& list) {
  if (list.count() == 0) return look(list);
  return "select " + list.name() + " #" + std::to_string(below(list.count()));
}

std::string Walker::write(const ui::TextBox& box) {
  static constexpr std::array<std::string_view, 9> texts = {
      "2022/05/11", "2024/02/29", "2019/12/31", "35", "12.5", "-3", "1", "abc", ""};
  // A reference date that is none ends the program; that would cut most walks short.
  const bool isDate = box.name() == "txtKijunbi" && below(12) != 0;
  const std::string text(texts[static_cast<std::size_t>(below(isDate ? 3 : static_cast<int>(texts.size())))]);
  return (below(3) == 0 && !text.empty() && !isDate ? "type " : "enter ") + box.name() + " " + quoted(text);
}

/// One step further through the history. At its ends the tables are compared.
std::string Walker::rewind(const ui::Screen& screen) {
  const ui::Control* grid = firstGrid(screen);
  if (rewinding_ == Rewinding::Back) {
    if (!screen.history().undoName().empty()) return "undo " + grid->name();
    expect(atBeginning_, screen);
    rewinding_ = Rewinding::Forward;
    return "show " + grid->name();
  }
  if (!screen.history().redoName().empty()) return "redo " + grid->name();
  expect(before_, screen);
  rewinding_ = Rewinding::No;
  return "show " + grid->name();
}

void Walker::expect(const std::string& wanted, const ui::Screen& screen) {
  if (const std::string now = shown(screen); now != wanted) broken_ = "wanted:\n" + wanted + "shown:\n" + now;
}

/// A click on a cell, keys into the cell that has them, or an act on a block.
std::string Walker::work(const ui::Grid& grid) {
  if (below(2) == 0) return "key " + grid.name() + " " + keys();
  if (below(2) == 0) return block(grid);
  const int row = below(grid.rows());
  const int col = below(grid.cols());
  if (!grid.clickable(row, col)) return look(grid);
  return "cell " + grid.name() + " " + std::to_string(row) + " " + std::to_string(col);
}

std::string Walker::block(const ui::Grid& grid) {
  static constexpr std::array<std::string_view, 5> wanted = {"A1", "１０", "橋", "0.5", "無い"};
  switch (below(7)) {
    case 0:
    case 1:
      return paste(grid);
    case 2:
      return onCells("copy", grid);
    case 3:
      return onCells("delete", grid);
    case 4:
      return edit(grid);
    case 5:
      return (below(2) == 0 ? "undo " : "redo ") + grid.name();
    default:
      return "find " + grid.name() + " " +
             std::string(wanted[static_cast<std::size_t>(below(static_cast<int>(wanted.size())))]);
  }
}

std::string Walker::onCells(std::string_view act, const ui::Grid& grid) {
  const int corners[] = {below(grid.rows()), below(grid.cols()), below(grid.rows()), below(grid.cols())};
  if (!grid.clickable(corners[0], corners[1]) || !grid.clickable(corners[2], corners[3])) return look(grid);
  std::string line = std::string(act) + " " + grid.name();
  for (const int corner : corners) line += " " + std::to_string(corner);
  return line;
}

std::string Walker::paste(const ui::Grid& grid) {
  static constexpr std::array<std::string_view, 6> texts = {
      "1\\n-2\\n3.5", "5\\t橋\\n\\n6\\t坂", "１２", "x\\ty\\tz", "", "\\n\\n\\n"};
  return "paste " + grid.name() + " \"" +
         std::string(texts[static_cast<std::size_t>(below(static_cast<int>(texts.size())))]) + "\"";
}

std::string Walker::edit(const ui::Grid& grid) {
  static constexpr std::array<std::string_view, 5> texts = {"12", "－３．５", "橋 上", "", "2022/05/11"};
  const int row = below(grid.rows());
  const int col = below(grid.cols());
  if (!grid.clickable(row, col) || grid.cellUse(row, col) == ui::CellUse::Shown) return look(grid);
  return "edit " + grid.name() + " " + std::to_string(row) + " " + std::to_string(col) + " " +
         quoted(texts[static_cast<std::size_t>(below(static_cast<int>(texts.size())))]);
}

std::string Walker::keys() {
  static constexpr std::array<std::string_view, 10> strokes = {
      "1", "23", "-0.5", ".", "{BackSpace}", "橋", "x", "{{", "{Enter}", "{BackSpace 9}"};
  std::string result = "\"";
  for (int count = 1 + below(3); count > 0; --count)
    result += strokes[static_cast<std::size_t>(below(static_cast<int>(strokes.size())))];
  return result + (below(2) == 0 ? "{Enter}\"" : "\"");
}

}  // namespace test
