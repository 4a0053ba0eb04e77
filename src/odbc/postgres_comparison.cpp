#include "odbc/postgres_comparison.h"

#include <algorithm>
#include <array>

#include "sql/column_type.h"
#include "text/padding.h"

namespace db {
namespace {

/// A whole text that the server can read as a number.
constexpr const char* numberPattern = "'^ *[-+]?([0-9]+[.]?[0-9]*|[.][0-9]+)([eE][-+]?[0-9]+)? *$'";

/// True where the token goes on with, or comes before, a longer expression.
bool joinsOperands(const Token& token) {
  static constexpr std::array<std::string_view, 9> signs = {"+", "-", "*", "/", "%", "||", ":", ".", "^"};
  return std::any_of(signs.begin(), signs.end(),
                     [&](std::string_view sign) { return isOperator(token, sign); });
}

/// A text literal without the blanks at its end.
std::string trimmedLiteral(std::string_view literal) {
  if (!literal.starts_with('\'')) return std::string(literal);
  return std::string(text::trimmedRight(literal.substr(0, literal.size() - 1))) + "'";
}

bool isDigit(char c) { return c >= '0' && c <= '9'; }

/// True where the whole text is a number with or without a sign and decimals.
bool isPlainNumber(std::string_view text) {
  if (text.starts_with('-') || text.starts_with('+')) text.remove_prefix(1);
  const std::size_t points = static_cast<std::size_t>(std::count(text.begin(), text.end(), '.'));
  const bool digitsOnly =
      std::all_of(text.begin(), text.end(), [](char c) { return isDigit(c) || c == '.'; });
  return digitsOnly && points <= 1 && text.size() > points;
}

}  // namespace

std::string postgresNumber(const std::string& expression) {
  return "(CASE WHEN " + expression + " ~ " + numberPattern + " THEN CAST(" + expression +
         " AS double precision) END)";
}

PostgresComparisons::PostgresComparisons(const Statement& statement, const PostgresScope& scope,
                                         Writing& writing)
    : statement_(statement), scope_(scope), writing_(writing) {}

/// The "=" of a list behind SET assigns; the list ends with WHERE or FROM.
void PostgresComparisons::write() {
  bool assigns = false;
  for (std::size_t n = 0; n < statement_.count(); ++n) {
    if (isKey(n, "SET")) assigns = true;
    if (isKey(n, "WHERE") || isKey(n, "FROM")) assigns = false;
    if (isSign(n, "==")) writing_.written[n] = "=";
    const bool assignment = assigns && n >= 2 && (isKey(n - 2, "SET") || isSign(n - 2, ","));
    if (n > 0 && isComparison(at(n)) && !assignment) compare(n);
  }
}

void PostgresComparisons::compare(std::size_t sign) {
  const Operand left = leftOperand(sign - 1);
  const Operand right = rightOperand(sign + 1);
  const auto isText = [](Kind kind) {
    return kind == Kind::TextColumn || kind == Kind::TextFunction || kind == Kind::TextLiteral;
  };
  if (isOrder(left) && isOrder(right)) {
    readNumberFrom(left);
    readNumberFrom(right);
    return;
  }
  if (isText(left.kind) && isText(right.kind)) {
    trim(left);
    trim(right);
    const bool ordered =
        !isSign(sign, "=") && !isSign(sign, "==") && !isSign(sign, "<>") && !isSign(sign, "!=");
    if (ordered) writing_.after[right.end] += " COLLATE \"C\"";
    return;
  }
  for (const auto& [one, other] : {std::pair{left, right}, std::pair{right, left}}) {
    if (one.kind == Kind::NumberColumn && other.kind == Kind::TextLiteral) meetLiteral(one, other);
    if (one.kind == Kind::NumberColumn &&
        (other.kind == Kind::TextColumn || other.kind == Kind::TextFunction))
      readNumberFrom(other);
    if (one.kind == Kind::NumberLiteral &&
        (other.kind == Kind::TextColumn || other.kind == Kind::TextFunction)) {
      trim(other);
      writeNumberAsText(one);
    }
  }
}

PostgresComparisons::Operand PostgresComparisons::rightOperand(std::size_t n) const {
  if (n >= statement_.count()) return {};
  std::size_t end = n;
  const bool sign = isSign(n, "-") || isSign(n, "+");
  if (sign) ++end;
  while (isSign(end + 1, ".") && end + 2 < statement_.count() && isName(at(end))) end += 2;
  if (end < statement_.count() && isName(at(end)) && isSign(end + 1, "(")) end = statement_.partner(end + 1);
  if (end >= statement_.count()) return {};
  if (end + 1 < statement_.count() && joinsOperands(at(end + 1))) return {};
  if (sign && at(end).kind != TokenKind::Number) return {};
  return named(n, end);
}

PostgresComparisons::Operand PostgresComparisons::leftOperand(std::size_t n) const {
  std::size_t begin = n;
  if (isSign(n, ")")) {
    begin = statement_.partner(n);
    if (begin == 0 || begin == n || !isName(at(begin - 1))) return {};
    --begin;
  }
  while (begin >= 2 && isSign(begin - 1, ".") && isName(at(begin - 2))) begin -= 2;
  if (begin > 0 && joinsOperands(at(begin - 1))) return {};
  return named(begin, n);
}

/// The operand of these tokens with what they stand for.
PostgresComparisons::Operand PostgresComparisons::named(std::size_t begin, std::size_t end) const {
  Operand result{Kind::Other, begin, end};
  const Token& last = at(end);
  if (last.kind == TokenKind::Number) result.kind = Kind::NumberLiteral;
  if (last.kind == TokenKind::Text && last.text.starts_with('\'')) result.kind = Kind::TextLiteral;
  if (isSign(end, ")") && isTextFunction(begin)) result.kind = Kind::TextFunction;
  const ColumnDefinition* column = scope_.columnAt(end);
  if (column == nullptr) return result;
  if (isTextType(column->type)) result.kind = Kind::TextColumn;
  if (isNumberType(column->type) || isDecimalType(column->type)) result.kind = Kind::NumberColumn;
  return result;
}

bool PostgresComparisons::isTextFunction(std::size_t n) const {
  static constexpr std::array<std::string_view, 7> names = {"MID",   "SUBSTR", "TRIM", "RTRIM",
                                                            "LTRIM", "UPPER",  "LOWER"};
  return std::any_of(names.begin(), names.end(), [this, n](std::string_view name) { return isKey(n, name); });
}

void PostgresComparisons::trim(const Operand& operand) {
  if (operand.kind == Kind::TextLiteral)
    writing_.written[operand.end] = trimmedLiteral(at(operand.end).text);
  else
    wrap(operand, "rtrim(", ",' ')");
}

/// A number's column meets a text that is a number by that number, another text by its own text.
void PostgresComparisons::meetLiteral(const Operand& column, const Operand& literal) {
  const std::string quoted = trimmedLiteral(at(literal.end).text);
  const std::string_view inner = text::trimmed(std::string_view(quoted).substr(1, quoted.size() - 2));
  if (isPlainNumber(inner)) {
    writing_.written[literal.end] = "(" + std::string(inner) + ")";
    return;
  }
  writing_.written[literal.end] = quoted;
  wrap(column, "CAST(", " AS text)");
}

void PostgresComparisons::writeNumberAsText(const Operand& number) {
  writing_.written[number.end] = "'" + writing_.text(number.begin, number.end) + "'";
  for (std::size_t n = number.begin; n < number.end; ++n) writing_.written[n].clear();
}

/// A text's column of order numbers.
bool PostgresComparisons::isOrder(const Operand& operand) const {
  return operand.kind == Kind::TextColumn && countsAsNumber(nameOf(at(operand.end)));
}

void PostgresComparisons::readNumberFrom(const Operand& text) {
  const std::string number = postgresNumber(writing_.text(text.begin, text.end));
  for (std::size_t n = text.begin; n <= text.end; ++n)
    writing_.before[n] = writing_.written[n] = writing_.after[n] = "";
  writing_.written[text.end] = number;
}

}  // namespace db
