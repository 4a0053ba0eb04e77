#include "db/sql.h"

#include <algorithm>
#include <stdexcept>

#include "db/literal.h"

namespace db {
namespace {

bool belongsToName(char c) {
  const bool ascii = static_cast<unsigned char>(c) < 0x80;
  return !ascii || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}

}  // namespace

Sql sqlName(std::string_view name) {
  if (name.empty() || !std::all_of(name.begin(), name.end(), belongsToName))
    throw std::invalid_argument("no name of a table or column: " + std::string(name));
  Sql result;
  result.text_ = name;
  return result;
}

Sql sqlValue(std::string_view value) {
  Sql result;
  result.text_ = literal(value);
  return result;
}

}  // namespace db
