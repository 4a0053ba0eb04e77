#include "route/selection.h"

#include "text/padding.h"

namespace route {
namespace {

constexpr std::size_t keyWidth = 8;
constexpr std::string_view familyCategory = "1";
constexpr std::string_view mainCategory = "0";

}  // namespace

std::string categoryCode(std::string_view category) { return std::string(text::left(category, 1)); }

std::string paddedKey(std::string_view key) { return text::padded(key, keyWidth); }

std::string routeFamily(std::string_view rosenBango) {
  return std::string(text::mid(paddedKey(rosenBango), 3, 4));
}

db::Sql routeCondition(const Selection& selection, const db::Sql& prefix) {
  if (selection.dataKubun == familyCategory)
    return " AND MID(" + prefix + "路線番号,3,4) =" + db::sqlValue(routeFamily(selection.rosenBango));
  return " AND " + prefix + "路線番号 =" + db::sqlValue(paddedKey(selection.rosenBango));
}

db::Sql plainCategoryCondition(std::string_view dataKubun, const db::Sql& prefix) {
  return " AND " + prefix + "DataKubun = " + db::sqlValue(dataKubun);
}

db::Sql loadCategoryCondition(std::string_view dataKubun, const db::Sql& prefix) {
  if (dataKubun != mainCategory) return plainCategoryCondition(dataKubun, prefix);
  return " AND (" + prefix + "DataKubun = " + db::sqlValue(dataKubun) + " OR " + prefix + "DataKubun = Null)";
}

}  // namespace route
