#pragma once

#include <string>

namespace ui {

class Grid;
class Screen;

/// What a window tells about the work on its screen, beside the screen's own controls. Texts are for the
/// operator; each is empty where there is nothing to tell.
struct Situation {
  std::string job;          ///< which job is worked on: "ジョブ 1"
  std::string units;        ///< its grade and the unit of its corrections: "1級  補正数 0.1 mm"
  std::string open;         ///< what is open: "1001 01A00101"
  std::string notice = {};  ///< what to know before any work is done: "ジョブは読み取り専用です。…"
};

/// The bench mark or section that a row of a grid belongs to. A row with a text in `benchMarkCol` is that
/// bench mark's ("A101"); one without is the section between the bench marks above and below it
/// ("A101 → A102"), with nothing below the last one. "" for a header.
std::string rowName(const Grid& grid, int row, int benchMarkCol);

/// The header of a column with its unit: "正標高補正数 [0.1 mm]". Headers of several rows stand side by side.
std::string columnName(const Screen& screen, const Grid& grid, int col);

/// What a cell of the screen's grid is: row, column and unit, "A101 → A102  正標高補正数 [0.1 mm]".
std::string cellName(const Screen& screen, const Grid& grid, int row, int col);

/// What may be done in a cell: "数値を入力できます", "文字を入力できます" or "表示だけのセルです".
std::string cellTakes(const Grid& grid, int row, int col);

}  // namespace ui
