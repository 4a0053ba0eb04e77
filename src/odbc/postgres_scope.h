#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "sql/tokens.h"

namespace db {

/// A table of a PostgreSQL database.
struct PostgresTable {
  std::string name;                       ///< as the server writes it
  bool stored = false;                    ///< its records have a place of their own: no view
  std::vector<ColumnDefinition> columns;  ///< names as the server writes them
};

/// Finds a table by its name, whatever its letter case; null where there is none.
using PostgresTables = std::function<const PostgresTable*(std::string_view name)>;

/// What the names of one statement stand for: tables, their aliases and their columns.
class PostgresScope {
 public:
  /// `tokens` are the significant ones of one statement.
  PostgresScope(std::vector<Token> tokens, const PostgresTables& tables);

  /// The table that the name at `n` stands for where a table is named; null elsewhere and for unknown tables.
  const PostgresTable* tableAt(std::size_t n) const;
  /// True where a table is named that the server does not have.
  bool isUnknownTable(std::size_t n) const { return roles_[n] == Role::Table && tablesAt_[n] == nullptr; }
  /// The column that the name at `n` stands for, null where it stands for none of the statement's tables.
  const ColumnDefinition* columnAt(std::size_t n) const;
  /// True where the token at `n` names an alias where that is made.
  bool isAliasMade(std::size_t n) const { return roles_[n] == Role::AliasMade; }
  /// How many tables the statement names.
  std::size_t tableCount() const { return sources_.size(); }
  /// The only table of the statement; null where there are more, or it is unknown.
  const PostgresTable* onlyTable() const { return sources_.size() == 1 ? sources_[0].table : nullptr; }

 private:
  enum class Role { Other, Table, AliasMade };
  struct Source {
    std::string known;  // the name by which its columns are qualified
    const PostgresTable* table = nullptr;
  };

  void readSources(const PostgresTables& tables);
  std::size_t readSource(std::size_t n, const PostgresTables& tables);
  bool isSign(std::size_t n, std::string_view sign) const {
    return n < tokens_.size() && isOperator(tokens_[n], sign);
  }
  bool isKey(std::size_t n, std::string_view word) const {
    return n < tokens_.size() && isWord(tokens_[n], word);
  }
  const ColumnDefinition* columnOf(const Source& source, std::string_view name) const;

  std::vector<Token> tokens_;
  std::vector<Role> roles_;
  std::vector<const PostgresTable*> tablesAt_;
  std::vector<Source> sources_;
};

}  // namespace db
