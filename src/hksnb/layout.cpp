#include <algorithm>

#include "hksnb/screen.h"

// Where the controls of the book page stand: those below the grid keep their distance from the bottom edge,
// the two steps from the right edge too. Sizes and places in twips, places within the page.

namespace hksnb {
namespace {

constexpr float designWidth = 18000;
constexpr float designHeight = 9900;

constexpr float tabBar = 480;        // what the tab control takes from the page at the top and its border
constexpr float margin = 120;        // around the grid
constexpr float orderHeight = 2520;  // of the controls below the grid, down to the edge of the page

}  // namespace

fHHksb::fHHksb(const job::JobContext& context, ui::Desktop& desktop)
    : Screen("fHHksb", "変動量計算簿・変動図", desktop, designWidth, designHeight), context_(context) {
  putOnPages();
  tieRouteLists();
  tieSteps();
  tieOrder();
  tieBook();
}

void fHHksb::putOnPages() {
  SSTab1.put(0, {&optSeika0, &optSeika1, &LstRosenNo1, &CmdExeC3, &CmdExeC4, &LstRosenNo2, &CmdExeC2,
                 &optSeika20, &optSeika21, &LstHksnbNo, &Command1});
  SSTab1.put(1, {&Grid1, &lblHyousekiNo, &LstHyousekiNo, &lblUe, &CmdExeD3, &lblStartNo, &CmdExeD4, &lblEndNo,
                 &CmdExeD5, &lblKansokuNen, &txtKansokuNen, &lblHeikinNen, &txtHeikinNen, &cmdSetNen,
                 &CmdHendryocal, &CmdExeD1, &CmdExeD2});
  SSTab1.put(2, {&txtHksnbNo, &txtNewYearFr, &txtNewMonFr, &txtNewYearTo, &txtNewMonTo, &txtOldYearFr,
                 &txtOldMonFr, &txtOldYearTo, &txtOldMonTo, &CmdExeE1, &CmdExeE2});
}

void fHHksb::Form_Resize() {
  SSTab1.move({0, 0, width(), height()});
  lblShoriShiji.move({std::max(0.0F, width() - 3000), 30, 2850, 360});  // beside the tabs, on every page
  placeGrid();
  placeOrder();
}

void fHHksb::placeGrid() {
  constexpr float least = 300;  // a window may be made smaller than what stands in it
  Grid1.move({margin, margin, std::max(least, width() - 2 * margin - 60),
              std::max(least, height() - tabBar - margin - orderHeight)});
}

void fHHksb::placeOrder() {
  const float top = height() - tabBar - orderHeight + 90;
  const auto place = [top](ui::Control& control, float left, float down, float wide, float high) {
    control.move({left, top + down, wide, high});
  };
  place(lblHyousekiNo, 120, 0, 2400, 300);
  place(LstHyousekiNo, 120, 330, 2400, 1950);
  place(lblUe, 2760, 0, 3600, 300);
  place(CmdExeD3, 2760, 330, 1350, 450);
  place(lblStartNo, 4230, 330, 2100, 450);
  place(CmdExeD4, 2760, 900, 1350, 450);
  place(lblEndNo, 4230, 900, 2100, 450);
  place(CmdExeD5, 4230, 1830, 2100, 450);
  place(lblKansokuNen, 6900, 330, 1650, 450);
  place(txtKansokuNen, 8580, 330, 1800, 450);
  place(lblHeikinNen, 6900, 900, 1650, 450);
  place(txtHeikinNen, 8580, 900, 1800, 450);
  place(cmdSetNen, 8580, 1830, 1800, 450);
  place(CmdHendryocal, 11100, 900, 2100, 450);
  const float right = std::max(designWidth * 0.8F, width());  // below that they would stand on others
  place(CmdExeD1, right - 4050, 1830, 1800, 450);
  place(CmdExeD2, right - 2070, 1830, 1800, 450);
}

}  // namespace hksnb
