#include "odbc/postgres_order.h"

#include <algorithm>

#include "sql/column_type.h"
#include "text/padding.h"

namespace db {
namespace {

constexpr const char* byteWise = " COLLATE \"C\"";

/// The transaction that wrote a record, its step in it, and its place. Each savepoint counts as a
/// transaction.
constexpr const char* asWritten = "age(xmin) DESC,CAST(CAST(cmin AS text) AS bigint),ctid";

}  // namespace

PostgresOrder::PostgresOrder(const std::vector<Token>& tokens, const PostgresScope& scope,
                             PostgresWriting& writing)
    : tokens_(tokens), scope_(scope), writing_(writing), end_(tokens.size()) {}

void PostgresOrder::write() {
  if (!isKey(0, "SELECT")) return;
  findParts();
  if (order_ != 0) {
    std::size_t depth = 0;
    std::size_t begin = order_;
    for (std::size_t n = order_; n < end_; ++n) {
      if (isSign(n, "(")) ++depth;
      if (isSign(n, ")") && depth > 0) --depth;
      if (depth > 0 || !isSign(n, ",")) continue;
      writeItem(begin, n);
      begin = n + 1;
    }
    writeItem(begin, end_);
  }
  if (followsRecords()) writing_.after[end_ - 1] += std::string(order_ == 0 ? " ORDER BY " : ",") + asWritten;
}

void PostgresOrder::findParts() {
  distinct_ = isKey(1, "DISTINCT");
  while (end_ > 0 && isSign(end_ - 1, ";")) --end_;
  std::size_t depth = 0;
  for (std::size_t n = 0; n < end_; ++n) {
    if (isSign(n, "(")) ++depth;
    if (isSign(n, ")") && depth > 0) --depth;
    if (depth > 0) continue;
    if (from_ == 0 && isKey(n, "FROM")) from_ = n;
    if (isKey(n, "ORDER") && isKey(n + 1, "BY")) order_ = n + 2;
    if (order_ != 0 && (isKey(n, "LIMIT") || isKey(n, "OFFSET") || isKey(n, "FOR"))) {
      end_ = n;
      limited_ = true;
    }
  }
}

/// One item of ORDER BY: a name with or without its table, or an expression; ASC or DESC behind it.
void PostgresOrder::writeItem(std::size_t begin, std::size_t end) {
  if (begin >= end || isKey(end - 2, "NULLS")) return;
  const bool descending = isKey(end - 1, "DESC");
  const std::size_t last = descending || isKey(end - 1, "ASC") ? end - 2 : end - 1;
  const ColumnDefinition* column = scope_.columnAt(last);
  const bool plain = column != nullptr && (last == begin || (last == begin + 2 && isSign(begin + 1, ".")));
  if (plain && isTextType(column->type) && !(last == begin && namesResult(last)) &&
      (!distinct_ || writeInSelectList(*column)))
    writing_.after[last] += byteWise;
  writing_.after[end - 1] += descending ? " NULLS LAST" : " NULLS FIRST";
}

/// A distinct record is sorted by what is selected, so the column is selected byte-wise too. False where it
/// does not stand there by itself.
bool PostgresOrder::writeInSelectList(const ColumnDefinition& column) {
  for (std::size_t n = 1; n < from_; ++n) {
    const bool ends = isSign(n + 1, ",") || n + 1 == from_ || isKey(n + 1, "AS");
    if (!ends || scope_.columnAt(n) == nullptr || scope_.columnAt(n) != &column) continue;
    if (!writing_.after[n].ends_with(byteWise)) writing_.after[n] += byteWise;
    return true;
  }
  return false;
}

/// True where the name at `n` is one that the select list gives to an item.
bool PostgresOrder::namesResult(std::size_t n) const {
  for (std::size_t i = 2; i < from_; ++i)
    if (isKey(i - 1, "AS") && isName(tokens_[i]) &&
        text::equalIgnoringCase(nameOf(tokens_[i]), nameOf(tokens_[n])))
      return true;
  return false;
}

/// True where every record of the result is one record of a single stored table.
bool PostgresOrder::followsRecords() const {
  const PostgresTable* table = scope_.onlyTable();
  if (table == nullptr || !table->stored || distinct_ || limited_ || from_ == 0) return false;
  for (std::size_t n = 1; n < end_; ++n) {
    if (n < from_ && isSign(n, "(")) return false;
    if (isKey(n, "GROUP") || isKey(n, "HAVING") || isKey(n, "LIMIT") || isKey(n, "UNION") ||
        isKey(n, "SELECT"))
      return false;
  }
  return true;
}

}  // namespace db
