#include "sql/select_columns.h"

#include <utility>

#include "sql/column_type.h"
#include "text/padding.h"

namespace db {

SelectColumns::SelectColumns(std::string_view sql, ColumnsOf columnsOf)
    : columnsOf_(std::move(columnsOf)), shape_(selectShape(sql)) {
  if (shape_) tables_.resize(shape_->sources.size());
}

bool SelectColumns::holdsNumbers(std::string_view qualifier, std::string_view name) {
  if (!shape_) return false;
  for (std::size_t i = 0; i < tables_.size(); ++i) {
    const SelectSource& source = shape_->sources[i];
    const std::string& known = source.alias.empty() ? source.table : source.alias;
    if (!qualifier.empty() && !text::equalIgnoringCase(known, qualifier)) continue;
    for (const ColumnDefinition& column : columns(i))
      if (text::equalIgnoringCase(column.name, name)) return isNumberType(column.type);
  }
  return false;
}

const std::vector<ColumnDefinition>& SelectColumns::columns(std::size_t source) {
  if (!tables_[source]) tables_[source] = columnsOf_(shape_->sources[source].table);
  return *tables_[source];
}

}  // namespace db
