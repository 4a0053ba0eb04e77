#pragma once

#include <string>
#include <string_view>

#include "ui/controls.h"
#include "ui/grid.h"

namespace ui {

// Small operations that the screens share. Each traps its errors under its own name, on the grid's desktop;
// with a grid that stands on no desktop the error passes to the caller.

/// Goes to a row, making the grid longer where it ends before: row count = row + 1. Rows < 1 do nothing.
/// Returns true where `row` ≥ 1 (and the grid could take it: it holds at most 32,767 rows, more is an
/// Overflow).
bool FcGridMoveRow(Grid& grid, int row);

/// Sets the text of a cell. Returns true (false after a trapped error: a cell outside the grid).
bool FcGridSetData(Grid& grid, int row, int col, std::string_view text);

/// Gives the text of a cell in `text`. Returns false always; nobody asks.
bool FcGridGetData(const Grid& grid, int row, int col, std::string& text);

/// Highlights the whole current row: selection from column 0 to the last one. Returns true.
bool FcGridSelectRow(Grid& grid);

/// A key typed into the grid's key cell (or a text box): Enter (13) does nothing; Backspace (8) drops the
/// last character, if any; any other key appends its character. Returns true unless the key is Enter.
bool FcGridKeyEdit(Grid& grid, char32_t code);
bool FcGridKeyEdit(TextBox& box, char32_t code);

/// Clears a list of data categories and fills it with the five categories; the digit before the colon is the
/// category's code. Returns true.
bool FcEditSetLstDataKubun(ListBox& LstDataKubun);
/// The same for the two lists of a screen with two selection sets.
bool FcEditSetLstDataKubun(ListBox& LstDataKubun, ListBox& LstDataKubun1);

/// Makes the cell current where the operator begins after a route was laid into the grid: its first entry
/// that takes a number in reading order, else its first one that takes text, else row 1, column 0.
void goToFirstEntry(Grid& grid);

}  // namespace ui
