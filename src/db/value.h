#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace db {

/// The raw bytes of a field that holds neither a number nor a text.
struct Bytes {
  std::string content;

  bool operator==(const Bytes& other) const = default;
};

/// One field of a record as the database holds it: Null, a number, a text (UTF-8) or raw bytes.
///
/// A whole number that a double cannot hold is a text of its digits. Raw bytes count as the text that they
/// are, but for isText and where they are written: there they stay bytes.
///
/// Columns may be declared as numbers or as texts in a job database; whoever reads a value asks for its text
/// and need not know which of the two it was.
class Value {
 public:
  /// Null.
  Value() = default;
  Value(double number) : content_(number) {}
  Value(std::string text) : content_(std::move(text)) {}
  Value(std::string_view text) : content_(std::string(text)) {}
  Value(const char* text) : content_(std::string(text)) {}
  Value(Bytes bytes) : content_(std::move(bytes)) {}

  bool isNull() const { return content_.index() == 0; }
  bool isNumber() const { return content_.index() == 1; }
  bool isText() const { return content_.index() == 2; }
  bool isBytes() const { return content_.index() == 3; }
  /// True for Null and for a text of nothing but blanks.
  bool isBlank() const;

  /// The number, or the number that the text begins with (0 where there is none); Null is 0.
  double number() const;

  /// The text as stored, untrimmed; a number in its shortest form of at most 15 digits; Null is "".
  std::string text() const;

  /// The text itself where the value is one, for as long as the value stays as it is; null where it is none.
  const std::string* textIfAny() const { return std::get_if<std::string>(&content_); }

  bool operator==(const Value& other) const = default;

 private:
  std::variant<std::monostate, double, std::string, Bytes> content_;
};

/// A whole number as a value: a number where a double holds it, else the text of its digits.
Value wholeNumber(std::int64_t number);

/// True for the digits of a whole number of 64 bits that a double cannot hold, as wholeNumber writes them.
bool isLongWhole(std::string_view text);

/// "" for Null and for a value that is blank after trimming, else the trimmed text.
std::string FcNullToBlank(const Value& value);

/// "0" for Null and for a value that is blank after trimming, else the trimmed text.
std::string FcNullToZeroText(const Value& value);

/// Null for Null and for a value that is blank after trimming, else the value unchanged.
Value FcBlankToNull(const Value& value);

}  // namespace db
