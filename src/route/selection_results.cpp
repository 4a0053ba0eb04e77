#include <set>

#include "route/picture_paste.h"
#include "route/quiet_desktop.h"
#include "route/result_list.h"
#include "route/selection_screen.h"
#include "text/padding.h"

// What of the saved results is printed and exported.

namespace route {

std::vector<std::string> SelectionScreen::savedRoutes() const {
  std::vector<std::string> routes;
  const bool families = saved_.selection().dataKubun == "1";
  std::set<std::string> known;
  for (const std::string& route : cmbRosenBango2.items())
    if (known.insert(families ? routeFamily(route) : route).second) routes.push_back(route);
  return routes;
}

report::Document SelectionScreen::reopened(const Selection& selection, const std::string& category) {
  load();
  opened_.show(selection, category);
  setUpGrids();
  reopenData(selection);
  return contents();
}

report::Document SelectionScreen::savedDocument(const std::vector<std::size_t>& routes,
                                                const report::Progress& progress) const {
  const std::vector<std::string> offered = savedRoutes();
  report::Document whole;
  std::set<std::string> pictures;
  for (std::size_t i = 0; i < routes.size(); ++i) {
    report::tell(progress, i, routes.size());
    QuietDesktop quiet;
    const auto unseen = another(quiet);
    Selection selection = saved_.selection();
    selection.rosenBango = offered.at(routes[i]);
    report::Document one = unseen->reopened(selection, saved_.categoryText());
    quiet.raise();
    if (pictures.insert(unseen->pictureName()).second) unseen->addPicture(one);
    if (i == 0)
      whole = std::move(one);
    else
      report::append(whole, one);
  }
  return whole;
}

bool SelectionScreen::hasResultList() const { return resultColumn_ >= 0; }

std::vector<std::string> SelectionScreen::resultProjects() const {
  return savedProjects(context_, resultTable_);
}

std::string SelectionScreen::chosenProject() const {
  return std::string(text::trimmed(saved_.selection().jigyoBango));
}

report::Document SelectionScreen::resultList(const std::string& project,
                                             const report::Progress& progress) const {
  const std::vector<Selection> selections = savedSelections(context_, resultTable_, project);
  std::vector<Result> results;
  for (std::size_t i = 0; i < selections.size(); ++i) {
    report::tell(progress, i, selections.size());
    addResults(selections[i], results);
  }
  return route::resultList(context_, caption(), project, results);
}

/// Adds the bench marks of a saved route as they stand in the grid when it is opened.
void SelectionScreen::addResults(const Selection& selection, std::vector<Result>& results) const {
  QuietDesktop quiet;
  const auto unseen = another(quiet);
  const report::Document document = unseen->reopened(selection, selection.dataKubun);
  quiet.raise();
  const auto column = static_cast<std::size_t>(resultColumn_);
  for (const report::Part& part : document.parts) {
    std::string route(text::trimmed(selection.rosenBango));
    for (const report::Field& field : part.fields)
      if (field.name == "路線番号") route = field.text;
    for (const report::Row& row : std::get<report::Table>(part.items.front()).rows)
      if (const std::string name(text::trimmed(row.cell(0))); !name.empty())
        results.push_back(
            {selection.jigyoBango, route, selection.dataKubun, name, row.cell(column), row.cell(column + 1)});
  }
}

void SelectionScreen::addPicture(report::Document& document) const {
  if (pictureName().empty() || document.parts.empty()) return;
  if (auto figure = filedPicture(context_, pictureName()))
    document.parts.back().items.emplace_back(std::move(*figure));
}

}  // namespace route
