#include "db/value.h"

#include <charconv>

#include "text/number.h"
#include "text/padding.h"

namespace db {
namespace {

/// Up to here, and down to its negative, a double holds every whole number: 2^53.
constexpr std::int64_t mostInDouble = 9007199254740992;

}  // namespace

double Value::number() const {
  if (const double* number = std::get_if<double>(&content_)) return *number;
  if (const std::string* words = std::get_if<std::string>(&content_)) return text::readNumber(*words);
  if (const Bytes* bytes = std::get_if<Bytes>(&content_)) return text::readNumber(bytes->content);
  return 0;
}

std::string Value::text() const {
  if (const double* number = std::get_if<double>(&content_)) return text::numberText(*number);
  if (const std::string* words = std::get_if<std::string>(&content_)) return *words;
  if (const Bytes* bytes = std::get_if<Bytes>(&content_)) return bytes->content;
  return {};
}

bool Value::isBlank() const {
  if (isNull()) return true;
  if (const Bytes* bytes = std::get_if<Bytes>(&content_)) return text::trimmed(bytes->content).empty();
  const std::string* const words = textIfAny();
  return words != nullptr && text::trimmed(*words).empty();
}

Value wholeNumber(std::int64_t number) {
  const bool held = number >= -mostInDouble && number <= mostInDouble;
  return held ? Value(static_cast<double>(number)) : Value(std::to_string(number));
}

bool isLongWhole(std::string_view text) {
  std::int64_t number = 0;
  const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
  if (read.ec != std::errc() || read.ptr != text.data() + text.size()) return false;
  const Value value = wholeNumber(number);
  return value.isText() && value.text() == text;
}

std::string FcNullToBlank(const Value& value) { return std::string(text::trimmed(value.text())); }

std::string FcNullToZeroText(const Value& value) {
  std::string result = FcNullToBlank(value);
  if (result.empty()) result = "0";
  return result;
}

Value FcBlankToNull(const Value& value) { return FcNullToBlank(value).empty() ? Value() : value; }

}  // namespace db
