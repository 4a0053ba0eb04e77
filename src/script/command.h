#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "ui/grid.h"

namespace script {

// What a line of a script asks for. Rows, columns, items and pages count from 0.

/// Press a button, option button or menu item.
struct Click {
  std::string name;
};
/// Choose the first item with this text, trailing blanks aside.
struct SelectText {
  std::string name;
  std::string item;
};
/// Choose the item at this position.
struct SelectAt {
  std::string name;
  int index = 0;
};
/// Replace the whole text of a text box at once.
struct Enter {
  std::string name;
  std::string text;
};
/// Type at the end of a text box, a key for each character.
struct Type {
  std::string name;
  std::u32string characters;
};
/// Click a cell.
struct Cell {
  std::string grid;
  int row = 0;
  int col = 0;
};
/// Press keys in a grid.
struct Keys {
  std::string grid;
  std::u32string codes;
};
/// Paste a text of rows and columns at the current cell.
struct Paste {
  std::string grid;
  std::string text;
};
/// Select a range of cells and copy it.
struct Copy {
  std::string grid;
  ui::CellPlace from;
  ui::CellPlace to;
};
/// Select a range of cells and press Delete.
struct Delete {
  std::string grid;
  ui::CellPlace from;
  ui::CellPlace to;
};
/// Open a cell in place, replace its text and take it with Enter.
struct Edit {
  std::string grid;
  ui::CellPlace cell;
  std::string text;
};
/// Take the last act back.
struct Undo {
  std::string grid;
};
/// Do again what was taken back last.
struct Redo {
  std::string grid;
};
/// Go to the next cell that holds a text.
struct Find {
  std::string grid;
  std::string text;
};
/// Bring a page of a tab control to the front.
struct Page {
  std::string tab;
  int page = 0;
};
/// Give the open screen this client size, in twips.
struct Resize {
  int width = 0;
  int height = 0;
};
/// Use the close box of the open screen.
struct Close {};
/// Print a control.
struct Show {
  std::string name;
};
/// Print the size of a control.
struct SizeOf {
  std::string name;
};
/// Print which screen is open.
struct WhichScreen {};
/// Print the message boxes shown since they were last printed.
struct Messages {};
/// Print the findings of the open screen.
struct Checks {};
/// Write what is in front, its diagram, the saved routes of the chosen project or the results list to a file.
struct Export {
  enum class What { Table, Diagram, Saved, Results };
  What what = What::Table;
  std::string path;
};
/// Answer the next question by this button.
struct Answer {
  std::string button;
};
/// Write a picture of the open screen.
struct Shot {
  std::string path;
};

using Command = std::variant<Click, SelectText, SelectAt, Enter, Type, Cell, Keys, Paste, Copy, Delete, Edit,
                             Undo, Redo, Find, Page, Resize, Close, Show, SizeOf, WhichScreen, Messages, Shot,
                             Checks, Answer, Export>;

/// The command of a script line (without its line end); nothing for a blank line and for one whose first
/// character is "#". Raises LineError for a line that cannot be understood.
std::optional<Command> parseLine(std::string_view line);

}  // namespace script
