#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "ui/act_witness.h"
#include "ui/controls.h"
#include "ui/desktop.h"
#include "ui/grid.h"
#include "ui/grid_block.h"
#include "ui/screen.h"

namespace script {

class Answers;

/// What the operator sees of a control. Which members count depends on the kind.
struct Reading {
  ui::Kind kind = ui::Kind::Label;
  std::string text;                ///< label, text box, button, option button, frame, menu, menu item
  bool on = false;                 ///< option button
  std::vector<std::string> items;  ///< list box, combo box
  int current = -1;                ///< list box, combo box: the chosen item; tab control: the page in front
  int pages = 0;                   ///< tab control
  int rows = 0;                    ///< grid, from here on
  int cols = 0;
  int row = 0;
  int col = 0;
  int rowSel = 0;
  int colSel = 0;
  std::function<std::string(int row, int col)> cell;
};

/// Width and height in whole twips.
struct Size {
  int width = 0;
  int height = 0;
};

/// The hands and eyes with which a script works the open screen. One kind works the controls themselves,
/// without any toolkit; another presses the keys and buttons of real windows and reads from them.
///
/// Acts let the errors pass that no procedure of the program trapped. Whoever calls an act has made sure that
/// it can be done: the control belongs to the open screen, is enabled and on the page in front, the item or
/// cell is there.
class Hands {
 public:
  virtual ~Hands() = default;

  /// The desk on which the program's screens are to stand.
  virtual ui::Desktop& desktop() = 0;

  /// Whoever answers the questions of the program; to be set before it starts. Without one none is asked.
  virtual void answerBy(Answers& answers) = 0;

  /// Somebody who writes down what the hands do; to be set before the program starts.
  virtual void witnessBy(ui::ActWitness& witness) = 0;

  /// Presses a button, option button or menu item.
  virtual void press(ui::Pressable& control) = 0;
  /// Chooses the item at `index` (from 0), as a mouse click does.
  virtual void choose(ui::ItemControl& control, int index) = 0;
  /// Replaces the whole text at once: one change.
  virtual void enter(ui::TextBox& control, std::string_view text) = 0;
  /// Types one character at the end of the text.
  virtual void type(ui::TextBox& control, char32_t character) = 0;
  virtual void click(ui::Grid& grid, int row, int col) = 0;
  /// Presses a key in the grid: a character, Enter or Backspace.
  virtual void pressKey(ui::Grid& grid, char32_t code) = 0;
  /// Selects the cells between two corners.
  virtual void select(ui::Grid& grid, const ui::CellPlace& from, const ui::CellPlace& to) = 0;
  /// The text that copying the selection gives.
  virtual std::string copied(ui::Grid& grid) = 0;
  virtual ui::BlockCount paste(ui::Grid& grid, std::string_view text) = 0;
  /// Presses Delete in the grid.
  virtual void pressDelete(ui::Grid& grid) = 0;
  /// Clicks a cell, opens it in place, replaces its text and takes it with Enter.
  virtual void edit(ui::Grid& grid, const ui::CellPlace& cell, std::string_view text) = 0;
  /// Takes the last act back, or does it again. The name of the act, empty for none.
  virtual std::string undo(ui::Grid& grid) = 0;
  virtual std::string redo(ui::Grid& grid) = 0;
  /// Goes to the next cell that holds `text`; nothing where there is none.
  virtual std::optional<ui::CellPlace> find(ui::Grid& grid, std::string_view text) = 0;
  virtual void bringToFront(ui::TabControl& tab, int page) = 0;
  /// Gives the window this client size, in twips.
  virtual void resize(ui::Screen& screen, int width, int height) = 0;
  /// The close box.
  virtual void close(ui::Screen& screen) = 0;

  virtual Reading read(const ui::Control& control) = 0;
  virtual Size size(const ui::Control& control) = 0;
  virtual std::string caption(const ui::Screen& screen) = 0;
  /// Writes a picture of the screen where there is one to be had. Returns false where the file could not be
  /// written.
  virtual bool shot(ui::Screen& screen, std::string_view path) = 0;
  /// What the checks of the screen have found, as the operator sees it.
  virtual ui::Findings findings(const ui::Screen& screen) = 0;
  /// The message boxes shown since the last call, oldest first.
  virtual std::vector<ui::Message> takeMessages() = 0;
};

}  // namespace script
