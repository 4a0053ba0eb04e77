#include "hksnb/grid_set_up.h"

#include <array>

#include "hksnb/columns.h"
#include "ui/error_trap.h"

namespace hksnb {
namespace {

constexpr std::string_view presentHeader = "観測成果:";
constexpr std::string_view previousHeader = "平均成果:";

// In twips; 0 hides a column.
constexpr std::array<int, columnCount> widths = {1140, 1260, 1140, 1140, 1260, 1380, 1380, 1380,
                                                 1860, 1860, 1020, 2190, 0,    0,    0};

constexpr std::array<std::string_view, colRemark + 1> headers = {
    "事業番号", "路線番号", "都道府県",    "郡市",         "町村",   "水準点番号",
    "観測比高", "",         presentHeader, previousHeader, "変動量", "備考"};

bool isNumber(int col) { return col >= colHeight && col <= colVariation; }

}  // namespace

void FcHHKSB_InitGrid1(ui::Grid& Grid1, Kind kind) {
  ui::trapped(Grid1.desktop(), "FcHHKSB_InitGrid1", [&] {
    Grid1.setRows(2);
    Grid1.setCols(columnCount);
    Grid1.setFixed(1, 0);
    Grid1.clearText();
    Grid1.setCurrent(1, 0);
    for (int col = 0; col < columnCount; ++col) {
      Grid1.setColWidth(col, widths[static_cast<std::size_t>(col)]);
      Grid1.setAlign(col, isNumber(col) ? ui::Align::Right : ui::Align::Left);
      Grid1.setFixedAlign(col, Grid1.align(col));
    }
    for (std::size_t col = 0; col < headers.size(); ++col)
      Grid1.setText(0, static_cast<int>(col), headers[col]);
    Grid1.setText(0, colCorrection, correctionName(kind));
  });
}

void setYears(ui::Grid& Grid1, std::string_view present, std::string_view previous) {
  Grid1.setText(0, colPresent, std::string(presentHeader).append(present));
  Grid1.setText(0, colPrevious, std::string(previousHeader).append(previous));
}

std::string yearOf(const ui::Grid& Grid1, int col) {
  const std::string& header = Grid1.text(0, col);
  const std::size_t colon = header.find(':');
  return colon == std::string::npos ? std::string() : header.substr(colon + 1);
}

}  // namespace hksnb
