#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace intake {

/// A line of a block of cells that is not blank throughout.
struct Line {
  std::size_t number = 0;  ///< in the text, counted from 1; cells with line breaks count for several
  std::vector<std::string> cells;
};

/// A block of cells as a spreadsheet hands it over: the first line that is not blank holds the headings.
struct Block {
  Line headings;
  std::vector<Line> lines;
};

/// Reads a block from UTF-8 text, with or without a mark at its front: tabs between the cells where the first
/// line holds one (a block from the clipboard), commas else (a CSV file). Cells lose the blanks at their
/// ends, ideographic ones too. Raises text::CsvFault for stray or open quotes, text::RuntimeError where
/// there is no line at all.
Block readBlock(std::string_view text);

/// A cell without blanks at its ends: ASCII, ideographic and no-break ones.
std::string_view trimmedCell(std::string_view cell);

}  // namespace intake
