#include "route/route_screen.h"

namespace route {

RouteScreen::RouteScreen(const Names& names, const job::JobContext& context, ui::Desktop& desktop,
                         float width, float height)
    : SelectionScreen(names, {&LstDataKubun, &LstDataKubun1, &lblDatakubun}, context, desktop, width,
                      height) {
  on(LstDataKubun.onClick, "LstDataKubun_Click", [this] { observed_.fillProjects(); });
  on(LstDataKubun1.onClick, "LstDataKubun1_Click", [this] { saved_.fillProjects(); });
  on(openButton.onClick, names.openButton + "_Click", [this] { openObserved(); });
  on(reopenButton.onClick, names.reopenButton + "_Click", [this] { openSaved(); });
}

}  // namespace route
