#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace db {

/// One item of a select list.
struct SelectItem {
  std::string qualifier;  ///< the table or alias before the point, "" where there is none
  bool all = false;       ///< "*" or "A.*"
};

/// One table behind FROM.
struct SelectSource {
  std::string table;  ///< "" for a select in parentheses
  std::string alias;  ///< "" where it has none
};

/// What a SELECT reads, as far as its tokens tell.
struct SelectShape {
  std::vector<SelectItem> items;
  std::vector<SelectSource> sources;
  /// Every record of the result is one record of the sources: no DISTINCT, GROUP BY, HAVING, LIMIT, UNION …
  bool recordForRecord = true;
};

/// The shape of a SELECT; nothing where the text is none.
std::optional<SelectShape> selectShape(std::string_view sql);

/// For "SELECT * FROM …": the same text with `column` in the place of the star, all else as it stands.
/// Nothing where the text does not begin so.
std::optional<std::string> withStarReplaced(std::string_view sql, std::string_view column);

}  // namespace db
