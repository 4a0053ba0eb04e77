#include "hksnb/grid_set_up.h"

#include <array>

#include "hksnb/columns.h"
#include "ui/error_trap.h"
#include "ui/grid_look.h"

namespace hksnb {
namespace {

constexpr std::string_view presentHeader = "観測成果:";
constexpr std::string_view previousHeader = "平均成果:";

constexpr auto left = ui::Align::Left;
constexpr auto right = ui::Align::Right;
constexpr auto number = ui::Content::Number;
constexpr std::array<ui::ColumnLook, columnCount> columns = {{{"事業番号", 1140, left},
                                                              {"路線番号", 1260, left},
                                                              {"都道府県", 1140, left},
                                                              {"郡市", 1140, left},
                                                              {"町村", 1260, left},
                                                              {"水準点番号", 1380, left},
                                                              {"観測比高", 1380, right, number},
                                                              {"", 1380, right, number},
                                                              {presentHeader, 1860, right, number},
                                                              {previousHeader, 1860, right, number},
                                                              {"変動量", 1020, right, number},
                                                              {"備考", 2190, left},
                                                              {"", 0, left},
                                                              {"", 0, left},
                                                              {"", 0, left}}};

}  // namespace

void FcHHKSB_InitGrid1(ui::Grid& Grid1, Kind kind) {
  ui::trapped(Grid1.desktop(), "FcHHKSB_InitGrid1", [&] {
    ui::headGrid(Grid1, columns);
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
