#include "route/selection_set.h"

#include <utility>

#include "db/database.h"
#include "open/open.h"

namespace route {

SelectionSet::SelectionSet(const job::JobContext& context, std::string table, ui::ListBox* categories,
                           ui::ComboBox& projects, ui::ComboBox& routes, CategoryRule rule)
    : context_(context),
      table_(std::move(table)),
      categories_(categories),
      projects_(projects),
      routes_(routes),
      rule_(rule) {}

std::string SelectionSet::categoryText() const {
  return categories_ == nullptr ? std::string() : categories_->text();
}

std::string SelectionSet::category() const {
  return categories_ == nullptr ? "0" : categoryCode(categories_->text());
}

db::Sql SelectionSet::categoryCondition() const {
  return rule_ == CategoryRule::WithNull ? loadCategoryCondition(category())
                                         : plainCategoryCondition(category());
}

void SelectionSet::fillProjects() {
  projects_.clear();
  routes_.clear();
  fill(projects_, "事業番号", categoryCondition());
}

void SelectionSet::fillRoutes() {
  routes_.clear();
  fill(routes_, "路線番号", " AND 事業番号 = " + db::sqlValue(projects_.text()) + categoryCondition());
}

void SelectionSet::fill(ui::ComboBox& combo, db::SourceText column, const db::Sql& conditions) {
  const auto database = db::openDatabase(context_.gDbPath);
  const auto records = database->openRecordset(
      "SELECT DISTINCT " + db::Sql(column) + " FROM " + db::sqlName(table_) +
      " WHERE JobId = " + db::sqlValue(context_.gJobId) + conditions + " ORDER BY " + column);
  const db::Column number = records->column(column.text());
  for (; !records->eof(); records->moveNext()) combo.addItem(records->value(number).text());
  records->close();
  database->close();
}

Selection SelectionSet::selection() const {
  Selection result{projects_.text(), routes_.text(), category(), {}};
  const int before = routes_.listIndex() - 1;
  if (before >= 0) result.previousRosen = routes_.items()[static_cast<std::size_t>(before)];
  return result;
}

void OpenedRoute::show(const Selection& selection, std::string_view category) {
  jigyo_.setText(selection.jigyoBango);
  rosen_.setText(selection.rosenBango);
  if (kubun_ != nullptr) kubun_->setText(category);
}

void OpenedRoute::clear() { show({}, {}); }

bool OpenedRoute::isOpen() const {
  return !jigyo_.text().empty() && !rosen_.text().empty() && (kubun_ == nullptr || !kubun_->text().empty());
}

Selection OpenedRoute::selection() const {
  return {jigyo_.text(), rosen_.text(), kubun_ == nullptr ? "0" : categoryCode(kubun_->text()), {}};
}

}  // namespace route
