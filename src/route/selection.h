#pragma once

#include <string>
#include <string_view>

#include "db/sql.h"

namespace route {

/// The keys that choose one route (or family of routes) of a job, as the operator chose them.
struct Selection {
  std::string jigyoBango;     ///< project number (事業番号), as listed
  std::string rosenBango;     ///< route number (路線番号), as listed; see paddedRoute
  std::string dataKubun;      ///< code of the data category, one character, "0" to "4"
  std::string previousRosen;  ///< route number listed just before the chosen one; "" where it is the first

  bool operator==(const Selection&) const = default;
};

/// The code of a data category: the first character of its list item.
std::string categoryCode(std::string_view category);

/// A project or route number as keys are stored: with blanks behind it, cut to 8 characters.
std::string paddedKey(std::string_view key);

/// Characters 3 to 6 of a padded route number: what the routes of a family have in common.
std::string routeFamily(std::string_view rosenBango);

/// The value of RosenEndDataFlg at the last bench mark of a route.
inline constexpr std::string_view routeEnd = "-1";
/// The value of RosenEndDataFlg at a bench mark that is observed a second time.
inline constexpr std::string_view repeatedPoint = "-2";

// Pieces of SQL. `prefix` stands before each column, such as "A." or "KansokuSeikaData."; it may be empty.

/// " AND <prefix>路線番号 ='<padded route>'", or for data category "1" the family of the route:
/// " AND MID(<prefix>路線番号,3,4) ='<characters 3 to 6>'".
db::Sql routeCondition(const Selection& selection, const db::Sql& prefix = {});

/// " AND <prefix>DataKubun = '<category>'".
db::Sql plainCategoryCondition(std::string_view dataKubun, const db::Sql& prefix = {});

/// The same for every category but "0". For "0" records without a category are named too,
/// " AND (<prefix>DataKubun = '0' OR <prefix>DataKubun = Null)", though no comparison with Null ever holds.
db::Sql loadCategoryCondition(std::string_view dataKubun, const db::Sql& prefix = {});

}  // namespace route
