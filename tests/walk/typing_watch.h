#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "ui/grid.h"
#include "ui/screen.h"

namespace test {

/// Knows what a walk has typed into the tables of the open screen and looks for it: it may go away singly, by
/// an act on its cell or a calculation that writes there, but with the whole table only where a question was
/// asked; and as long as it is there unsaved the screen must know so.
class TypingWatch {
 public:
  /// A line of the script is about to be done. `questions`: how many were asked so far.
  void before(const ui::Screen& screen, std::string_view line, int questions);

  /// It is done; `screen` is null where the program has ended. Returns what was lost, "" where all is well.
  std::string after(const ui::Screen* screen, int questions);

 private:
  using Texts = std::map<std::string, std::vector<std::string>>;  // of the cells, by the name of the grid

  struct Typed {
    std::string grid;
    int row = 0;
    int col = 0;
    std::string text;
  };

  static Texts textsOf(const ui::Screen& screen);
  void forget(const ui::Screen& screen);
  void typedInto(const ui::Screen& screen);
  std::string firstLost(const ui::Screen* screen) const;
  void dropChanged(const ui::Screen& screen);

  const ui::Screen* screen_ = nullptr;
  std::string screenName_;
  std::string line_;
  int questions_ = 0;
  Texts kept_;  // what was opened or saved last
  std::vector<Typed> typed_;
  Typed key_;  // the cell that the line types into; no grid where it does not
};

}  // namespace test
