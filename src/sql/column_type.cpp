#include "sql/column_type.h"

#include <algorithm>
#include <initializer_list>
#include <string>

namespace db {
namespace {

bool holdsOneOf(std::string_view type, std::initializer_list<std::string_view> parts) {
  std::string upper(type);
  for (char& c : upper)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return std::any_of(parts.begin(), parts.end(),
                     [&upper](std::string_view part) { return upper.find(part) != std::string::npos; });
}

}  // namespace

bool isNumberType(std::string_view type) {
  if (holdsOneOf(type, {"INT"})) return true;
  return !holdsOneOf(type, {"CHAR", "CLOB", "TEXT", "BLOB"}) && holdsOneOf(type, {"REAL", "FLOA", "DOUB"});
}

bool isTextType(std::string_view type) {
  return !holdsOneOf(type, {"INT"}) && holdsOneOf(type, {"CHAR", "CLOB", "TEXT"});
}

bool isDecimalType(std::string_view type) {
  return !isTextType(type) && holdsOneOf(type, {"NUMERIC", "DECIMAL", "CURRENCY", "MONEY"});
}

}  // namespace db
