#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "sql/result_columns.h"
#include "sql/select_shape.h"

namespace db {

/// The columns of a SELECT's tables, looked up where a comparison asks for them.
class SelectColumns {
 public:
  SelectColumns(std::string_view sql, ColumnsOf columnsOf);

  /// True where the column is declared to hold numbers. `qualifier` is the table or alias before its point,
  /// "" where none stands there.
  bool holdsNumbers(std::string_view qualifier, std::string_view name);

 private:
  const std::vector<ColumnDefinition>& columns(std::size_t source);

  ColumnsOf columnsOf_;
  std::optional<SelectShape> shape_;
  std::vector<std::optional<std::vector<ColumnDefinition>>> tables_;
};

}  // namespace db
