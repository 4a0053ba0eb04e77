#include "route/route_screen.h"

#include "ui/grid_helpers.h"

namespace route {

RouteScreen::RouteScreen(const Names& names, const job::JobContext& context, ui::Desktop& desktop,
                         float width, float height)
    : SelectionScreen(names, {&LstDataKubun, &LstDataKubun1, &lblDatakubun}, context, desktop, width,
                      height) {
  SSTab1.put(selectionPage, {&LstDataKubun, &LstDataKubun1});
  on(LstDataKubun.onClick, "LstDataKubun_Click", [this] { observed_.fillProjects(); });
  on(LstDataKubun1.onClick, "LstDataKubun1_Click", [this] { saved_.fillProjects(); });
  on(openButton.onClick, names.openButton + "_Click", [this] { openObserved(); });
  on(reopenButton.onClick, names.reopenButton + "_Click", [this] { openSaved(); });
}

void RouteScreen::Form_Load() {
  setUpGrids();
  SSTab1.setCurrent(selectionPage);
  ui::FcEditSetLstDataKubun(LstDataKubun, LstDataKubun1);
}

}  // namespace route
