#include "db/literal.h"

#include <algorithm>

namespace db {

std::string literal(std::string_view value) {
  constexpr char quote = '\'';
  std::string result;
  result.reserve(value.size() + static_cast<std::size_t>(std::count(value.begin(), value.end(), quote)) + 2);
  result += quote;
  for (const char c : value) result.append(c == quote ? 2 : 1, c);
  return result + quote;
}

}  // namespace db
