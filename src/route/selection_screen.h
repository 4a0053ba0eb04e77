#pragma once

#include <functional>
#include <memory>
#include <string>

#include "job/context.h"
#include "report/diagram.h"
#include "report/saved_results.h"
#include "report/source.h"
#include "route/checks.h"
#include "route/limits.h"
#include "route/opening.h"
#include "route/result_list.h"
#include "route/saved_watch.h"
#include "route/selection_set.h"
#include "ui/controls.h"
#include "ui/grid.h"
#include "ui/screen.h"

namespace route {

/// What every screen has that works on one route at a time: two ways to choose it, from observation results
/// and from saved results, the labels of the opened route, a route grid, and the menu with clear, save and
/// exit. A screen derives from it, says how its grids are set up, filled and saved, and ties its two opening
/// buttons to openObserved and openSaved, with an error trap or without.
class SelectionScreen : public ui::Screen, public report::Source, public report::SavedResults {
 public:
  ui::Situation situation() const override;

  ui::TabControl SSTab1;
  ui::ComboBox cmbJIgyoBango1{"cmbJIgyoBango1", this};
  ui::ComboBox cmbRosenBango1{"cmbRosenBango1", this};
  ui::Button openButton;
  ui::ComboBox cmbJIgyoBango2{"cmbJIgyoBango2", this};
  ui::ComboBox cmbRosenBango2{"cmbRosenBango2", this};
  ui::Button reopenButton;
  ui::Label lblJigyobango{"lblJigyobango", this};
  ui::Label lblRosenbango{"lblRosenbango", this};
  ui::Grid Grid1{"Grid1", this};
  ui::MenuItem clearItem;
  ui::MenuItem saveItem;
  ui::MenuItem exitItem;

  report::Document document() const override;
  std::string diagramName() const override { return "縦断図"; }
  report::Figure diagram(const report::DiagramWish& wish) const override;

  std::vector<std::string> savedRoutes() const override;
  report::Document savedDocument(const std::vector<std::size_t>& routes,
                                 const report::Progress& progress) const override;
  bool hasResultList() const override;
  std::vector<std::string> resultProjects() const override;
  std::string chosenProject() const override;
  report::Document resultList(const std::string& project, const report::Progress& progress) const override;

 protected:
  /// The names in which the screens differ.
  struct Names {
    std::string screen;         ///< such as "fSHsei"
    std::string caption;        ///< title of the window
    std::string openButton;     ///< button that opens observation results
    std::string openCaption;    ///< its caption
    std::string reopenButton;   ///< button that opens saved results
    std::string reopenCaption;  ///< its caption
    std::string menuItem;       ///< name of the menu items, without index
    std::string resultTable;    ///< table of the saved results
    int resultColumn = -1;      ///< printed column of the corrected height, remarks behind it; −1 for none
    CategoryRule openRule = CategoryRule::Plain;  ///< category rule of the first selection set
    int pages = 2;                                ///< pages of SSTab1
  };

  /// The controls of the data category, none of them on a screen that works in category "0" alone.
  struct Categories {
    ui::ListBox* observed = nullptr;  ///< chooses the category of observation results
    ui::ListBox* saved = nullptr;     ///< chooses the category of saved results
    ui::Label* opened = nullptr;      ///< shows the category of the opened route
  };

  /// `width` × `height`: design size in twips.
  SelectionScreen(const Names& names, const Categories& categories, const job::JobContext& context,
                  ui::Desktop& desktop, float width, float height);

  /// Empties the grids and heads them again.
  virtual void setUpGrids() = 0;
  /// Fills the grids from observation results. Returns true where no error was reported.
  virtual bool openData(const Selection& selection) = 0;
  /// Fills the grids from saved results. Returns true where no error was reported.
  virtual bool reopenData(const Selection& selection) = 0;
  /// Saves the grids under the keys of the labels and tells the operator where all went well; returns true
  /// then.
  virtual bool saveData(const Selection& selection) = 0;
  /// The saved records that saveData replaces, the route's own first, with how many the grids put in their
  /// place.
  virtual SavedParts savedParts(const Selection&) const { return {}; }
  /// Takes up entries that no calculation has taken up yet, as the operator would: `untaken` are the findings
  /// that tell of them. Returns false where he has to look first, which he has been told then.
  virtual bool takeEntries(const ui::Findings&) { return true; }
  /// How many boxes hold entries that are in no table yet and are lost when the screen is left.
  virtual int entriesBesideTable() const { return 0; }
  /// What the opened route is called in questions: "路線 01A00101".
  std::string routeName() const;
  /// The grids as a document, without the heading of job and selection. `route`: number of the opened route.
  virtual report::Document tables(const std::string& route) const = 0;
  /// The height profile of the route in the grids.
  virtual report::Diagram profile() const = 0;
  /// Another screen of the kind, on which nothing has been opened yet.
  virtual std::unique_ptr<SelectionScreen> another(ui::Desktop& desktop) const = 0;
  /// The name of the picture that is filed for the opened route, "" for a screen without pictures.
  virtual std::string pictureName() const { return {}; }
  /// The page of SSTab1 on which a route is chosen.
  static constexpr int selectionPage = 1;
  /// The page of SSTab1 to which opening data leads.
  virtual int dataPage() const { return 0; }
  /// Gives what brings back, when it is called, all that the screen itself knows of what stands in its grids.
  virtual std::function<void()> knowledge() {
    return [] {};
  }
  /// Empties the grids and the labels of the opened route.
  virtual void clear();

  /// Opens the route chosen from the observation results, or from the saved results: labels, empty grids,
  /// data, the first entry as the current cell, and the data page to the front.
  void openObserved() { open(observed_, &SelectionScreen::openData); }
  void openSaved() { open(saved_, &SelectionScreen::reopenData); }

  /// What the checks go by, as the operator has set it.
  Limits limits() const;
  /// What earlier checks of Grid1 have kept.
  CheckMemory& checkMemory() const { return checkMemory_; }

  const job::JobContext context_;
  const std::string menuProcedure_;  ///< under which errors of the menu items are reported
  OpenedRoute opened_;
  Opening opening_;
  SelectionSet observed_;
  SelectionSet saved_;

 private:
  std::string categoryText() const;
  /// How many bench marks stand in the grid, for the record of the work.
  std::string countText() const;
  report::Document contents() const;
  report::Document reopened(const Selection& selection, const std::string& category);
  void addPicture(report::Document& document) const;
  void addResults(const Selection& selection, std::vector<Result>& results) const;

  ui::Label* const category_;  ///< shows the category of the opened route, null for none
  SavedWatch watch_;           ///< of what is saved of the opened route
  const std::string resultTable_;
  const int resultColumn_;

  mutable CheckMemory checkMemory_;

  using Reader = bool (SelectionScreen::*)(const Selection&);
  void open(const SelectionSet& set, Reader read);
  void fill(const SelectionSet& set, Reader read);
  /// What an opening from that set is called in the record of the work.
  const char* noteOf(const SelectionSet& set) const;
  bool save();
  bool replaceSaved();
  void watch(const Selection& selection);
  bool mayLeave() override { return mayLoseWork(entriesBesideTable()); }
  bool mayLoseWork(int besideTable = 0);
};

}  // namespace route
