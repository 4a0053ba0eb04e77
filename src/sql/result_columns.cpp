#include "sql/result_columns.h"

#include <utility>

#include "sql/select_shape.h"
#include "text/padding.h"

namespace db {
namespace {

bool comesFrom(const SelectSource& source, std::string_view qualifier) {
  return text::equalIgnoringCase(source.alias.empty() ? source.table : source.alias, qualifier);
}

}  // namespace

ResultColumns::ResultColumns(std::vector<std::string> names, std::string sql)
    : names_(std::move(names)), sql_(std::move(sql)) {}

std::optional<Column> ResultColumns::find(std::string_view name, const ColumnsOf& columnsOf) const {
  if (const auto column = findPlain(name)) return column;
  return findQualified(name, columnsOf);
}

std::optional<Column> ResultColumns::findPlain(std::string_view name) const {
  for (std::size_t i = 0; i < names_.size(); ++i)
    if (text::equalIgnoringCase(names_[i], name)) return Column{i};
  return std::nullopt;
}

std::optional<Column> ResultColumns::findQualified(std::string_view name, const ColumnsOf& columnsOf) const {
  const std::size_t point = name.find('.');
  if (point == std::string_view::npos) return std::nullopt;
  const std::string_view table = name.substr(0, point);
  const std::string_view column = name.substr(point + 1);
  const std::vector<Origin> from = origins(columnsOf);
  for (std::size_t i = 0; i < from.size(); ++i) {
    const bool here =
        text::equalIgnoringCase(from[i].alias, table) || text::equalIgnoringCase(from[i].table, table);
    if (here && text::equalIgnoringCase(names_[i], column)) return Column{i};
  }
  return std::nullopt;
}

/// Lays the select list out over the result, a star being as wide as its table. Empty where they do not
/// agree.
std::vector<ResultColumns::Origin> ResultColumns::origins(const ColumnsOf& columnsOf) const {
  std::vector<Origin> result;
  const auto shape = selectShape(sql_);
  if (!shape) return result;
  for (const SelectItem& item : shape->items) {
    bool placed = false;
    for (const SelectSource& source : shape->sources) {
      const bool wanted =
          item.qualifier.empty() ? item.all || shape->sources.size() == 1 : comesFrom(source, item.qualifier);
      if (!wanted || (placed && !item.all)) continue;
      const std::size_t width = item.all ? columnsOf(source.table).size() : 1;
      result.insert(result.end(), width, Origin{source.table, source.alias});
      placed = true;
    }
    if (!placed) result.emplace_back();
  }
  if (result.size() != names_.size()) result.clear();
  return result;
}

}  // namespace db
