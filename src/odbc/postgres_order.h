#pragma once

#include <vector>

#include "odbc/postgres_comparison.h"
#include "odbc/postgres_scope.h"

namespace db {

/// Rewrites the order of a SELECT's records: texts byte by byte, Null first, and behind it the order in which
/// the records of a single table were written.
class PostgresOrder {
 public:
  PostgresOrder(const std::vector<Token>& tokens, const PostgresScope& scope, PostgresWriting& writing);

  void write();

 private:
  void findParts();
  void writeItem(std::size_t begin, std::size_t end);
  bool writeInSelectList(const ColumnDefinition& column);
  bool namesResult(std::size_t n) const;
  bool followsRecords() const;

  bool isSign(std::size_t n, std::string_view sign) const {
    return n < tokens_.size() && isOperator(tokens_[n], sign);
  }
  bool isKey(std::size_t n, std::string_view word) const {
    return n < tokens_.size() && isWord(tokens_[n], word);
  }

  const std::vector<Token>& tokens_;
  const PostgresScope& scope_;
  PostgresWriting& writing_;
  std::size_t from_ = 0;   // the main FROM
  std::size_t order_ = 0;  // the first token behind the main ORDER BY; 0 where there is none
  std::size_t end_ = 0;    // behind the last token that counts
  bool distinct_ = false;
  bool limited_ = false;  // LIMIT or the like stands behind the order
};

}  // namespace db
