#include "odbc/postgres_scope.h"

#include <algorithm>
#include <array>
#include <utility>

#include "text/padding.h"

namespace db {
namespace {

/// Key words that stand for no column or alias unless in quotes.
bool isReserved(const Token& token) {
  static constexpr std::array<std::string_view, 44> words = {
      "SELECT", "FROM",   "WHERE",  "AND",   "OR",     "NOT",    "NULL",      "IS",      "IN",
      "LIKE",   "ON",     "AS",     "BY",    "ORDER",  "GROUP",  "HAVING",    "ASC",     "DESC",
      "LEFT",   "RIGHT",  "INNER",  "OUTER", "FULL",   "CROSS",  "NATURAL",   "JOIN",    "USING",
      "UNION",  "EXCEPT", "VALUES", "SET",   "INTO",   "INSERT", "UPDATE",    "DELETE",  "CASE",
      "WHEN",   "THEN",   "ELSE",   "END",   "EXISTS", "LIMIT",  "INTERSECT", "DISTINCT"};
  return std::any_of(words.begin(), words.end(),
                     [&token](std::string_view word) { return isWord(token, word); });
}

}  // namespace

PostgresScope::PostgresScope(std::vector<Token> tokens, const PostgresTables& tables)
    : tokens_(std::move(tokens)), roles_(tokens_.size(), Role::Other), tablesAt_(tokens_.size()) {
  readSources(tables);
}

/// Tables are named behind FROM, JOIN, INTO, UPDATE and TABLE, and behind the commas of a FROM list.
void PostgresScope::readSources(const PostgresTables& tables) {
  std::vector<bool> inList{false};
  bool expected = false;
  for (std::size_t n = 0; n < tokens_.size(); ++n) {
    if (isSign(n, "(")) {
      inList.push_back(expected);
    } else if (isSign(n, ")")) {
      if (inList.size() > 1) inList.pop_back();
    } else if (isKey(n, "FROM") || isKey(n, "JOIN") || isKey(n, "INTO") || isKey(n, "UPDATE") ||
               isKey(n, "TABLE")) {
      inList.back() = isKey(n, "FROM") || isKey(n, "JOIN");
      expected = true;
    } else if (isSign(n, ",")) {
      expected = inList.back();
    } else if (isKey(n, "WHERE") || isKey(n, "ORDER") || isKey(n, "GROUP") || isKey(n, "SELECT")) {
      inList.back() = false;
      expected = false;
    } else if (expected && isName(tokens_[n]) && !isKey(n, "IF") && !isKey(n, "NOT") && !isKey(n, "EXISTS")) {
      n = readSource(n, tables);
      expected = false;
    }
  }
}

/// The table named at `n` and its alias; the last token of both.
std::size_t PostgresScope::readSource(std::size_t n, const PostgresTables& tables) {
  while (isSign(n + 1, ".") && n + 2 < tokens_.size()) n += 2;
  Source source{nameOf(tokens_[n]), tables(nameOf(tokens_[n]))};
  roles_[n] = Role::Table;
  tablesAt_[n] = source.table;
  std::size_t alias = n + 1;
  if (isKey(alias, "AS")) ++alias;
  const bool free = alias < tokens_.size() && isName(tokens_[alias]) && !isReserved(tokens_[alias]);
  if (free && !isKey(alias, "ADD") && !isKey(alias, "DROP") && !isKey(alias, "ALTER") &&
      !isKey(alias, "RENAME")) {
    source.known = nameOf(tokens_[alias]);
    roles_[alias] = Role::AliasMade;
    n = alias;
  }
  sources_.push_back(std::move(source));
  return n;
}

const PostgresTable* PostgresScope::tableAt(std::size_t n) const {
  if (roles_[n] == Role::Table) return tablesAt_[n];
  if (!isSign(n + 1, ".")) return nullptr;
  const std::string name = nameOf(tokens_[n]);
  for (const Source& source : sources_)
    if (text::equalIgnoringCase(source.known, name))
      return source.table && text::equalIgnoringCase(source.table->name, name) ? source.table : nullptr;
  return nullptr;
}

const ColumnDefinition* PostgresScope::columnAt(std::size_t n) const {
  if (n >= tokens_.size() || roles_[n] != Role::Other || !isName(tokens_[n]) || isReserved(tokens_[n]))
    return nullptr;
  if (isSign(n + 1, ".") || isSign(n + 1, "(")) return nullptr;
  const bool qualified = n >= 2 && isSign(n - 1, ".") && isName(tokens_[n - 2]);
  const std::string name = nameOf(tokens_[n]);
  for (const Source& source : sources_) {
    if (qualified && !text::equalIgnoringCase(source.known, nameOf(tokens_[n - 2]))) continue;
    if (const ColumnDefinition* column = columnOf(source, name)) return column;
  }
  return nullptr;
}

const ColumnDefinition* PostgresScope::columnOf(const Source& source, std::string_view name) const {
  if (source.table == nullptr) return nullptr;
  for (const ColumnDefinition& column : source.table->columns)
    if (text::equalIgnoringCase(column.name, name)) return &column;
  return nullptr;
}

}  // namespace db
