#pragma once

#include <string>

#include "job/context.h"
#include "route/selection.h"
#include "ui/controls.h"

namespace route {

/// How a selection set names the data category in its queries.
enum class CategoryRule {
  Plain,    ///< the category alone
  WithNull  ///< for category "0" with the alternative for records without a category
};

/// One way to choose a route: a list of data categories, a combo box of project numbers and one of route
/// numbers, filled from one table of the job. A screen has two of them, one for observation results and one
/// for saved results.
class SelectionSet {
 public:
  /// `categories` may be null: then the category is "0" always. The controls must outlive the set.
  SelectionSet(const job::JobContext& context, std::string table, ui::ListBox* categories,
               ui::ComboBox& projects, ui::ComboBox& routes, CategoryRule rule = CategoryRule::Plain);

  /// Fills the project combo with the projects that have records of the chosen category, and empties the
  /// route combo. Raises db::Error.
  void fillProjects();

  /// Fills the route combo with the routes of the chosen project and category. Raises db::Error.
  void fillRoutes();

  /// What is chosen now; empty texts where nothing is.
  Selection selection() const;

  /// The whole text of the chosen category; "" where none is chosen or there is no list to choose from.
  std::string categoryText() const;

 private:
  std::string category() const;
  void fill(ui::ComboBox& combo, db::SourceText column, const db::Sql& conditions);
  db::Sql categoryCondition() const;

  const job::JobContext& context_;
  std::string table_;
  ui::ListBox* categories_;
  ui::ComboBox& projects_;
  ui::ComboBox& routes_;
  CategoryRule rule_;
};

/// The labels that say which route a screen has opened; every later query of the screen takes its keys from
/// them.
class OpenedRoute {
 public:
  /// `lblDatakubun` may be null: then the category is "0" always.
  OpenedRoute(ui::Label& lblJigyobango, ui::Label& lblRosenbango, ui::Label* lblDatakubun)
      : jigyo_(lblJigyobango), rosen_(lblRosenbango), kubun_(lblDatakubun) {}

  /// Shows the keys; `category` is the whole text of the chosen category.
  void show(const Selection& selection, std::string_view category);
  void clear();
  /// True where every label shows something.
  bool isOpen() const;
  Selection selection() const;

 private:
  ui::Label& jigyo_;
  ui::Label& rosen_;
  ui::Label* kubun_;
};

}  // namespace route
