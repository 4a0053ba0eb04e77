#include "db/value.h"

#include "text/number.h"
#include "text/padding.h"

namespace db {

double Value::number() const {
  if (const double* number = std::get_if<double>(&content_)) return *number;
  if (const std::string* words = std::get_if<std::string>(&content_)) return text::readNumber(*words);
  return 0;
}

std::string Value::text() const {
  if (const double* number = std::get_if<double>(&content_)) return text::numberText(*number);
  if (const std::string* words = std::get_if<std::string>(&content_)) return *words;
  return {};
}

bool Value::isBlank() const {
  const std::string* const words = textIfAny();
  return isNull() || (words != nullptr && text::trimmed(*words).empty());
}

std::string FcNullToBlank(const Value& value) { return std::string(text::trimmed(value.text())); }

std::string FcNullToZeroText(const Value& value) {
  std::string result = FcNullToBlank(value);
  if (result.empty()) result = "0";
  return result;
}

Value FcBlankToNull(const Value& value) { return FcNullToBlank(value).empty() ? Value() : value; }

}  // namespace db
