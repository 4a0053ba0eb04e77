#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"

namespace exchange {

/// The columns by which the records of a table form groups that are numbered on their own.
struct GroupKey {
  std::string column;
  std::string label;  ///< how a finding names it
};

/// What a table's records are looked through for.
struct TableRules {
  std::string table;
  std::vector<GroupKey> keys;
  bool categories;  ///< every record has a data category, the last of the keys behind job, project and route
  bool gapless;     ///< SaveOrder leaves nothing out
  bool routeEnds;   ///< every route has a record that is marked "-1"
};

/// The numbers (SaveOrder) that observations without a category hold, by job, project and route.
using LooseNumbers = std::map<std::vector<std::string>, std::set<long long>>;

/// The numbers that records without a category hold in the table of the observations.
LooseNumbers looseNumbers(db::Database& database, std::string_view table);

/// Looks through the records of a table whose columns are all there; appends a sentence to `findings` for
/// each thing found.
void checkNumbering(db::Database& database, const TableRules& rules, const LooseNumbers& loose,
                    std::vector<std::string>& findings);

}  // namespace exchange
