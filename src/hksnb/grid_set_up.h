#pragma once

#include <string>
#include <string_view>

#include "hksnb/kind.h"
#include "ui/grid.h"

namespace hksnb {

/// Empties the book grid, shapes it and heads its columns, with one empty row below the headers. The headers
/// of the present and the previous results have no year then.
void FcHHKSB_InitGrid1(ui::Grid& Grid1, Kind kind);

/// Puts the years of the present and of the previous results (any text) into their headers.
void setYears(ui::Grid& Grid1, std::string_view present, std::string_view previous);

/// The year in the header of column `col`: the text behind its ":".
std::string yearOf(const ui::Grid& Grid1, int col);

}  // namespace hksnb
