#include <algorithm>

#include "hksnb/columns.h"
#include "hksnb/screen.h"
#include "job/names.h"

// The tab control fills the window, the grid its page down to the controls that stand along the bottom edge,
// as the form lays them out. Sizes in twips.

namespace hksnb {
namespace {

constexpr float designWidth = 18000;
constexpr float designHeight = 9900;

constexpr float tabBar = 480;        // what the tab control takes from the page at the top and its border
constexpr float margin = 120;        // around the grid
constexpr float orderHeight = 2520;  // of the controls below the grid, down to the edge of the page
constexpr float least = 300;         // a window may be made smaller than what stands in it

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
  SSTab1.setSize(width(), height());
  lblShoriShiji.move({std::max(0.0F, width() - 3000), 30, 2850, 360});  // beside the tabs, on every page
  Grid1.setSize(std::max(least, width() - 2 * margin - 60),
                std::max(least, height() - tabBar - margin - orderHeight));
  LstHyousekiNo.setSize(2400, 1950);
  CmdExeD2.setSize(1800, 450);
}

ui::Situation fHHksb::situation() const {
  const std::string& number = txtHksnbNo.text();
  return {job::jobName(context_), job::unitNames(context_), number.empty() ? number : "計算簿 " + number,
          watch_.notice()};
}

std::string fHHksb::unit(const ui::Grid&, int col) const {
  if (col == colCorrection) return job::correctionUnit(context_.grade());
  if (col == colVariation) return "mm";
  return col == colHeight || col == colPresent || col == colPrevious ? "m" : "";
}

std::string fHHksb::rowName(const ui::Grid& grid, int row) const {
  return ui::rowName(grid, row, colBenchMark);
}

}  // namespace hksnb
