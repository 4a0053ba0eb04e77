#include "odbc/postgres_comparison.h"

#include <algorithm>
#include <array>

#include "sql/column_type.h"
#include "text/padding.h"

namespace db {
namespace {

/// A whole text that the server can read as a number.
constexpr const char* numberPattern = "'^ *[-+]?([0-9]+[.]?[0-9]*|[.][0-9]+)([eE][-+]?[0-9]+)? *$'";

bool isComparison(const Token& token) {
  static constexpr std::array<std::string_view, 8> signs = {"=", "==", "<>", "!=", "<", ">", "<=", ">="};
  return std::any_of(signs.begin(), signs.end(),
                     [&](std::string_view sign) { return isOperator(token, sign); });
}

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

PostgresComparisons::PostgresComparisons(const std::vector<Token>& tokens, const PostgresScope& scope,
                                         PostgresWriting& writing)
    : tokens_(tokens), scope_(scope), writing_(writing) {
  matchParentheses();
}

void PostgresComparisons::matchParentheses() {
  std::vector<std::size_t> open;
  for (std::size_t n = 0; n < tokens_.size(); ++n) {
    partner_.push_back(n);
    if (isSign(n, "(")) open.push_back(n);
    if (!isSign(n, ")") || open.empty()) continue;
    partner_[n] = open.back();
    partner_[open.back()] = n;
    open.pop_back();
  }
}

/// The "=" of a list behind SET assigns; the list ends with WHERE or FROM.
void PostgresComparisons::write() {
  bool assigns = false;
  for (std::size_t n = 0; n < tokens_.size(); ++n) {
    if (isKey(n, "SET")) assigns = true;
    if (isKey(n, "WHERE") || isKey(n, "FROM")) assigns = false;
    if (isSign(n, "==")) writing_.written[n] = "=";
    const bool assignment = assigns && n >= 2 && (isKey(n - 2, "SET") || isSign(n - 2, ","));
    if (n > 0 && isComparison(tokens_[n]) && !assignment) compare(n);
  }
}

void PostgresComparisons::compare(std::size_t sign) {
  const Operand left = leftOperand(sign - 1);
  const Operand right = rightOperand(sign + 1);
  const auto isText = [](Kind kind) {
    return kind == Kind::TextColumn || kind == Kind::TextFunction || kind == Kind::TextLiteral;
  };
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
  if (n >= tokens_.size()) return {};
  std::size_t end = n;
  const bool sign = isSign(n, "-") || isSign(n, "+");
  if (sign) ++end;
  while (isSign(end + 1, ".") && end + 2 < tokens_.size() && isName(tokens_[end])) end += 2;
  if (end < tokens_.size() && isName(tokens_[end]) && isSign(end + 1, "(")) end = partner_[end + 1];
  if (end >= tokens_.size()) return {};
  if (end + 1 < tokens_.size() && joinsOperands(tokens_[end + 1])) return {};
  if (sign && tokens_[end].kind != TokenKind::Number) return {};
  return named(n, end);
}

PostgresComparisons::Operand PostgresComparisons::leftOperand(std::size_t n) const {
  std::size_t begin = n;
  if (isSign(n, ")")) {
    begin = partner_[n];
    if (begin == 0 || begin == n || !isName(tokens_[begin - 1])) return {};
    --begin;
  }
  while (begin >= 2 && isSign(begin - 1, ".") && isName(tokens_[begin - 2])) begin -= 2;
  if (begin > 0 && joinsOperands(tokens_[begin - 1])) return {};
  return named(begin, n);
}

/// The operand of these tokens with what they stand for.
PostgresComparisons::Operand PostgresComparisons::named(std::size_t begin, std::size_t end) const {
  Operand result{Kind::Other, begin, end};
  const Token& last = tokens_[end];
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
    writing_.written[operand.end] = trimmedLiteral(tokens_[operand.end].text);
  else
    wrap(operand, "rtrim(", ",' ')");
}

/// A number's column meets a text that is a number by that number, another text by its own text.
void PostgresComparisons::meetLiteral(const Operand& column, const Operand& literal) {
  const std::string quoted = trimmedLiteral(tokens_[literal.end].text);
  const std::string_view inner = text::trimmed(std::string_view(quoted).substr(1, quoted.size() - 2));
  if (isPlainNumber(inner)) {
    writing_.written[literal.end] = "(" + std::string(inner) + ")";
    return;
  }
  writing_.written[literal.end] = quoted;
  wrap(column, "CAST(", " AS text)");
}

void PostgresComparisons::writeNumberAsText(const Operand& number) {
  writing_.written[number.end] = "'" + wholeText(number) + "'";
  for (std::size_t n = number.begin; n < number.end; ++n) writing_.written[n].clear();
}

void PostgresComparisons::readNumberFrom(const Operand& text) {
  const std::string whole = wholeText(text);
  wrap(text, std::string("(CASE WHEN ") + whole + " ~ " + numberPattern + " THEN CAST(",
       " AS double precision) END)");
}

void PostgresComparisons::wrap(const Operand& operand, const std::string& before, const std::string& after) {
  writing_.before[operand.begin].insert(0, before);
  writing_.after[operand.end] += after;
}

/// An operand as it is written so far.
std::string PostgresComparisons::wholeText(const Operand& operand) const {
  std::string result;
  for (std::size_t n = operand.begin; n <= operand.end; ++n)
    result += writing_.before[n] + writing_.written[n] + writing_.after[n];
  return result;
}

}  // namespace db
