#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"

namespace db {

/// Looks up the columns of a table; empty where there is no such table.
using ColumnsOf = std::function<std::vector<ColumnDefinition>(std::string_view table)>;

/// The columns of a SELECT's result by name.
class ResultColumns {
 public:
  /// `names` are those of the result that the SELECT `sql` yields, in their order.
  ResultColumns(std::vector<std::string> names, std::string sql);

  std::size_t count() const { return names_.size(); }

  /// The column of that name; "A.標高" asks for the one that comes from the table or alias A. Nothing where
  /// there is none.
  std::optional<Column> find(std::string_view name, const ColumnsOf& columnsOf) const;

 private:
  /// Where a column of the result comes from; both "" where that is not one table.
  struct Origin {
    std::string table;
    std::string alias;
  };

  std::optional<Column> findPlain(std::string_view name) const;
  std::optional<Column> findQualified(std::string_view name, const ColumnsOf& columnsOf) const;
  std::vector<Origin> origins(const ColumnsOf& columnsOf) const;

  std::vector<std::string> names_;
  std::string sql_;
};

}  // namespace db
