#include "route/selection.h"

#include <initializer_list>

#include "text/padding.h"

namespace route {
namespace {

constexpr std::size_t keyWidth = 8;
constexpr std::string_view familyCategory = "1";
constexpr std::string_view mainCategory = "0";

std::string joined(std::initializer_list<std::string_view> pieces) {
  std::string result;
  for (const std::string_view piece : pieces) result += piece;
  return result;
}

}  // namespace

std::string categoryCode(std::string_view category) { return std::string(text::left(category, 1)); }

std::string paddedKey(std::string_view key) { return text::padded(key, keyWidth); }

std::string routeFamily(std::string_view rosenBango) {
  return std::string(text::mid(paddedKey(rosenBango), 3, 4));
}

std::string routeCondition(const Selection& selection, std::string_view prefix) {
  if (selection.dataKubun == familyCategory)
    return joined({" AND MID(", prefix, "路線番号,3,4) ='", routeFamily(selection.rosenBango), "'"});
  return joined({" AND ", prefix, "路線番号 ='", paddedKey(selection.rosenBango), "'"});
}

std::string plainCategoryCondition(std::string_view dataKubun, std::string_view prefix) {
  return joined({" AND ", prefix, "DataKubun = '", dataKubun, "'"});
}

std::string loadCategoryCondition(std::string_view dataKubun, std::string_view prefix) {
  if (dataKubun != mainCategory) return plainCategoryCondition(dataKubun, prefix);
  return joined({" AND (", prefix, "DataKubun = '", dataKubun, "' OR ", prefix, "DataKubun = Null)"});
}

}  // namespace route
