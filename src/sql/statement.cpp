#include "sql/statement.h"

#include <algorithm>
#include <array>

#include "text/padding.h"

namespace db {
namespace {

template <std::size_t N>
bool isOneOf(const Statement& statement, std::size_t n, const std::array<std::string_view, N>& words) {
  return std::any_of(words.begin(), words.end(),
                     [&](std::string_view word) { return statement.isKey(n, word); });
}

/// Words after which the records of a result are no longer those of its tables.
bool isCompound(const Statement& statement, std::size_t n) {
  static constexpr std::array<std::string_view, 5> words = {"UNION", "INTERSECT", "EXCEPT", "GROUP",
                                                            "HAVING"};
  return isOneOf(statement, n, words);
}

/// Cuts the tokens from `begin` to `end` at their outermost commas.
std::vector<ListItem> cutAtCommas(const Statement& statement, std::size_t begin, std::size_t end) {
  std::vector<ListItem> items;
  ListItem item{begin, begin, 0, false};
  for (std::size_t n = begin; n < end; ++n) {
    if (statement.isSign(n, "(")) n = std::min(std::max(n, statement.partner(n)), end - 1);
    if (!statement.isSign(n, ",")) continue;
    item.end = n;
    items.push_back(item);
    item = {n + 1, n + 1, 0, false};
  }
  item.end = end;
  if (begin < end) items.push_back(item);
  return items;
}

/// True where the tokens from `begin` to `last` are a column and nothing else.
bool isColumn(const Statement& statement, std::size_t begin, std::size_t last) {
  return last >= begin && statement.isNameAt(last) && statement.nameBegin(last) == begin;
}

/// A column with or without a name for the result behind it.
void nameSelected(const Statement& statement, ListItem& item) {
  std::size_t last = item.end - 1;
  if (last >= item.begin + 2 && statement.isKey(last - 1, "AS")) last -= 2;
  if (item.begin < item.end && isColumn(statement, item.begin, last)) item.name = last;
}

/// A column with or without its direction.
void nameOrdered(const Statement& statement, ListItem& item) {
  if (item.begin >= item.end) return;
  std::size_t last = item.end - 1;
  item.descending = statement.isKey(last, "DESC");
  if (last > item.begin && (item.descending || statement.isKey(last, "ASC"))) --last;
  if (isColumn(statement, item.begin, last)) item.name = last;
}

}  // namespace

Statement::Statement(std::string_view sql) : tokens_(significantTokens(sql)) {
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

std::size_t Statement::nameBegin(std::size_t n) const {
  while (n >= 2 && isSign(n - 1, ".") && isName(tokens_[n - 2])) n -= 2;
  return n;
}

std::string Statement::qualifierOf(std::size_t n) const {
  return n >= 2 && isSign(n - 1, ".") && isName(tokens_[n - 2]) ? nameOf(tokens_[n - 2]) : std::string();
}

bool isComparison(const Token& token) {
  static constexpr std::array<std::string_view, 8> signs = {"=", "==", "<>", "!=", "<", ">", "<=", ">="};
  return std::any_of(signs.begin(), signs.end(),
                     [&](std::string_view sign) { return isOperator(token, sign); });
}

Writing::Writing(const Statement& statement) : before(statement.count()), after(statement.count()) {
  for (const Token& token : statement.all()) written.emplace_back(token.text);
}

void Writing::wrap(std::size_t begin, std::size_t end, const std::string& opening,
                   const std::string& closing) {
  before[begin].insert(0, opening);
  after[end] += closing;
}

std::string Writing::text(std::size_t begin, std::size_t end) const {
  std::string result;
  for (std::size_t n = begin; n <= end; ++n) result += before[n] + written[n] + after[n];
  return result;
}

std::string Writing::whole(std::string_view sql) const {
  std::string result;
  std::size_t n = 0;
  bool runsInto = false;  // a word behind what was added would become a part of it: 'x'AND
  for (const Token& token : tokens(sql)) {
    const bool blank = isInsignificant(token);
    if (runsInto && !blank && token.kind != TokenKind::Operator) result += ' ';
    result += blank ? std::string(token.text) : text(n, n);
    runsInto = !blank && !after[n].empty();
    if (!blank) ++n;
  }
  return result;
}

SelectParts selectParts(const Statement& statement) {
  SelectParts parts;
  if (!statement.isKey(0, "SELECT")) return parts;
  parts.distinct = statement.isKey(1, "DISTINCT");
  parts.end = statement.count();
  while (parts.end > 0 && statement.isSign(parts.end - 1, ";")) --parts.end;
  for (std::size_t n = 0; n < parts.end; ++n) {
    if (statement.isSign(n, "(")) n = std::max(n, statement.partner(n));
    if (parts.from == 0 && statement.isKey(n, "FROM")) parts.from = n;
    if (isCompound(statement, n)) parts.compound = true;
    if (statement.isKey(n, "ORDER") && statement.isKey(n + 1, "BY")) parts.order = n + 2;
    if (statement.isKey(n, "LIMIT") || statement.isKey(n, "OFFSET") || statement.isKey(n, "FOR")) {
      parts.end = n;
      parts.limited = true;
    }
  }
  parts.items = cutAtCommas(statement, parts.distinct ? 2 : 1, parts.from == 0 ? parts.end : parts.from);
  for (ListItem& item : parts.items) nameSelected(statement, item);
  if (parts.order != 0) parts.orderItems = cutAtCommas(statement, parts.order, parts.end);
  for (ListItem& item : parts.orderItems) nameOrdered(statement, item);
  return parts;
}

bool countsAsNumber(std::string_view column) { return text::equalIgnoringCase(column, "SaveOrder"); }

}  // namespace db
