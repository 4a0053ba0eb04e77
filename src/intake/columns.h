#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace intake {

/// What a column of a block may hold.
enum class Field {
  Project,           ///< 事業番号
  Route,             ///< 路線番号
  Category,          ///< データ区分
  Order,             ///< SaveOrder
  BenchMark,         ///< 標石番号
  Prefecture,        ///< 都道府県
  County,            ///< 郡市
  Town,              ///< 町村
  Date,              ///< 観測年月日
  Distance,          ///< 距離, km
  Difference,        ///< 中数, m
  FormerDate,        ///< 前回観測日
  FormerDifference,  ///< 前回中数, m
  Height,            ///< 標高, m
  Remark,            ///< 備考
  End                ///< 終点: "-1" last bench mark of a route, "-2" observed a second time
};

/// How the cells of a field are read.
enum class Reading { Key, Text, Number, Day, Category, Order, End };

/// One field: the column of the observations that it goes to, and the heading under which the template shows
/// it.
struct FieldInfo {
  Field field;
  Reading reading;
  const char* column;   ///< in table KansokuSeikaData
  const char* heading;  ///< without its unit
  const char* unit;     ///< "km", "m" or ""
};

/// All fields in the order of the template's columns.
const std::vector<FieldInfo>& fields();

/// The field's entry in fields().
const FieldInfo& infoOf(Field field);

/// The column of a block that a field is read from.
struct Source {
  std::size_t column = 0;
  double divisor = 1;  ///< a number of the block is divided by this: 1000 for a distance under "距離(m)"

  bool operator==(const Source&) const = default;
};

/// Which column each field is read from. A field that is not there is left empty or made.
using Matching = std::map<Field, Source>;

/// Matches headings to fields by their names: letter case, width of characters, blanks, and a unit in
/// brackets behind the name do not count; common other names ("水準点", "点名", "比高" …) are known. A unit
/// that is not the field's own is converted (m, km, mm); one that nobody knows leaves the column unmatched.
/// Of two columns for one field the first counts.
Matching matchByName(const std::vector<std::string>& headings);

/// How a column is read as `field` because an operator says so: numbers are converted by the unit in its
/// heading, where that fits the field's own.
Source sourceByHand(Field field, std::size_t column, std::string_view heading);

/// The field that a name, as a heading writes it, stands for; nothing where none does.
std::optional<Field> fieldNamed(std::string_view name);

}  // namespace intake
