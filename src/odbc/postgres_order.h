#pragma once

#include <string>

#include "odbc/postgres_scope.h"
#include "sql/statement.h"

namespace db {

/// Rewrites the order of a SELECT's records: texts byte by byte, SaveOrder by its number, Null first, and
/// behind it the order in which the records of a single table were written. In a DISTINCT list, texts that
/// differ in trailing blanks alone are one item, the shortest of them; without an order the items come sorted
/// by their texts.
class PostgresOrder {
 public:
  PostgresOrder(const Statement& statement, const PostgresScope& scope, Writing& writing);

  void write();

 private:
  void writeItem(const ListItem& item);
  bool writeInSelectList(const ColumnDefinition& column);
  bool writeDistinctList();
  std::string keyOf(const ListItem& item) const;
  const ListItem* selected(const ListItem& ordered) const;
  bool namesResult(std::size_t n) const;
  bool followsRecords() const;
  bool isText(std::size_t n) const;

  bool isSign(std::size_t n, std::string_view sign) const { return statement_.isSign(n, sign); }
  bool isKey(std::size_t n, std::string_view word) const { return statement_.isKey(n, word); }

  const Statement& statement_;
  const PostgresScope& scope_;
  Writing& writing_;
  SelectParts parts_;
};

}  // namespace db
