#include "route/route_screen.h"

namespace route {

RouteScreen::RouteScreen(const Names& names, const job::JobContext& context, ui::Desktop& desktop,
                         float width, float height)
    : Screen(names.screen, names.caption, desktop, width, height),
      openButton(names.openButton, this, names.openCaption),
      reopenButton(names.reopenButton, this, names.reopenCaption),
      clearItem(names.menuItem + "(0)", this, "クリア(&C)"),
      saveItem(names.menuItem + "(1)", this, "保存(&S)"),
      exitItem(names.menuItem + "(2)", this, "終了(&X)"),
      context_(context),
      observed_(context_, context_.tables.gTblKansokuSeikaData, &LstDataKubun, cmbJIgyoBango1, cmbRosenBango1,
                names.openRule),
      saved_(context_, names.resultTable, &LstDataKubun1, cmbJIgyoBango2, cmbRosenBango2) {
  on(LstDataKubun.onClick, "LstDataKubun_Click", [this] { observed_.fillProjects(); });
  on(cmbJIgyoBango1.onClick, "cmbJIgyoBango1_Click", [this] { observed_.fillRoutes(); });
  on(LstDataKubun1.onClick, "LstDataKubun1_Click", [this] { saved_.fillProjects(); });
  on(cmbJIgyoBango2.onClick, "cmbJIgyoBango2_Click", [this] { saved_.fillRoutes(); });
  on(openButton.onClick, names.openButton + "_Click",
     [this] { open(observed_, LstDataKubun, &RouteScreen::openData); });
  on(reopenButton.onClick, names.reopenButton + "_Click",
     [this] { open(saved_, LstDataKubun1, &RouteScreen::reopenData); });
  on(clearItem.onClick, names.menuItem + "_Click", [this] { clear(); });
  on(saveItem.onClick, names.menuItem + "_Click", [this] { save(); });
  exitItem.onClick.handle([this] { unload(); });
}

void RouteScreen::open(const SelectionSet& set, const ui::ListBox& categories, Reader read) {
  const ui::Hourglass wait(desktop());
  const Selection selection = set.selection();
  opened_.show(selection, categories.text());
  setUpGrids();
  (this->*read)(selection);
  SSTab1.setCurrent(dataPage());
}

void RouteScreen::clear() {
  setUpGrids();
  Form_Resize();
  opened_.clear();
}

void RouteScreen::save() {
  if (!opened_.isOpen()) return;
  const ui::Hourglass wait(desktop());
  saveData(opened_.selection());
}

}  // namespace route
