#pragma once

#include <string>
#include <string_view>

#include "job/context.h"
#include "route/selection_set.h"
#include "ui/controls.h"
#include "ui/grid.h"
#include "ui/screen.h"

namespace route {

/// What the screens of a route correction have in common: two selection sets, the labels of the opened route,
/// a route grid, and the menu with clear, save and exit. A correction derives from it and says how its grids
/// are set up, filled and saved.
class RouteScreen : public ui::Screen {
 public:
  ui::TabControl SSTab1{"SSTab1", this, 2};
  ui::ListBox LstDataKubun{"LstDataKubun", this};
  ui::ComboBox cmbJIgyoBango1{"cmbJIgyoBango1", this};
  ui::ComboBox cmbRosenBango1{"cmbRosenBango1", this};
  ui::Button openButton;
  ui::ListBox LstDataKubun1{"LstDataKubun1", this};
  ui::ComboBox cmbJIgyoBango2{"cmbJIgyoBango2", this};
  ui::ComboBox cmbRosenBango2{"cmbRosenBango2", this};
  ui::Button reopenButton;
  ui::Label lblJigyobango{"lblJigyobango", this};
  ui::Label lblRosenbango{"lblRosenbango", this};
  ui::Label lblDatakubun{"lblDatakubun", this};
  ui::Grid Grid1{"Grid1", this};
  ui::MenuItem clearItem;
  ui::MenuItem saveItem;
  ui::MenuItem exitItem;

 protected:
  /// The names in which the screens differ.
  struct Names {
    std::string screen;                           ///< such as "fSHsei"
    std::string caption;                          ///< title of the window
    std::string openButton;                       ///< button that opens observation results
    std::string openCaption;                      ///< its caption
    std::string reopenButton;                     ///< button that opens saved results
    std::string reopenCaption;                    ///< its caption
    std::string menuItem;                         ///< name of the menu items, without index
    std::string resultTable;                      ///< table of the saved results
    CategoryRule openRule = CategoryRule::Plain;  ///< category rule of the first selection set
  };

  /// `width` × `height`: design size in twips.
  RouteScreen(const Names& names, const job::JobContext& context, ui::Desktop& desktop, float width,
              float height);

  /// Empties the grids and heads them again.
  virtual void setUpGrids() = 0;
  /// Fills the grids from observation results.
  virtual void openData(const Selection& selection) = 0;
  /// Fills the grids from saved results.
  virtual void reopenData(const Selection& selection) = 0;
  /// Saves the grids under the keys of the labels and tells the operator where all went well.
  virtual void saveData(const Selection& selection) = 0;
  /// The page of SSTab1 to which opening data leads.
  virtual int dataPage() const { return 0; }

  const job::JobContext context_;
  OpenedRoute opened_{lblJigyobango, lblRosenbango, &lblDatakubun};

 private:
  using Reader = void (RouteScreen::*)(const Selection&);
  void open(const SelectionSet& set, const ui::ListBox& categories, Reader read);
  void clear();
  void save();

  SelectionSet observed_;
  SelectionSet saved_;
};

}  // namespace route
