#include "script/whole.h"

#include <charconv>

namespace script {

std::optional<int> wholeNumber(std::string_view digits) {
  if (digits.starts_with('-')) return std::nullopt;
  int number = 0;
  const char* const end = digits.data() + digits.size();
  const auto [stop, error] = std::from_chars(digits.data(), end, number);
  if (error != std::errc() || stop != end) return std::nullopt;
  return number;
}

}  // namespace script
