#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "ui/grid.h"
#include "ui/history.h"

namespace ui {

class ItemControl;
class Screen;
class TextControl;

/// What a screen shows, kept while a long work changes it: texts, items of lists, grids, and what has been
/// done to them. The history begins anew when it is kept.
class ScreenState {
 public:
  /// The screen outlives it.
  explicit ScreenState(Screen& screen);

  /// Brings all of it back. Once only.
  void bringBack();

 private:
  struct Items {
    ItemControl* control;
    std::vector<std::string> items;
    int chosen;
  };

  void keep(Control& control);

  Screen& screen_;
  std::vector<std::pair<Grid*, Grid::Contents>> grids_;
  std::vector<std::pair<TextControl*, std::string>> texts_;
  std::vector<Items> lists_;
  History::Past past_;
};

}  // namespace ui
