#include "odbc/postgres_order.h"

#include <algorithm>

#include "odbc/postgres_comparison.h"
#include "sql/column_type.h"
#include "text/padding.h"

namespace db {
namespace {

constexpr const char* byteWise = " COLLATE \"C\"";

/// The transaction that wrote a record, its step in it, and its place. Each savepoint counts as a
/// transaction.
constexpr const char* asWritten = "age(xmin) DESC,CAST(CAST(cmin AS text) AS bigint),ctid";

std::string direction(bool descending) { return descending ? " DESC NULLS LAST" : " NULLS FIRST"; }

std::string joined(const std::vector<std::string>& parts) {
  std::string result;
  for (const std::string& part : parts) result += (result.empty() ? "" : ",") + part;
  return result;
}

}  // namespace

PostgresOrder::PostgresOrder(const Statement& statement, const PostgresScope& scope, Writing& writing)
    : statement_(statement), scope_(scope), writing_(writing), parts_(selectParts(statement)) {}

void PostgresOrder::write() {
  if (!isKey(0, "SELECT")) return;
  if (parts_.distinct && writeDistinctList()) return;
  for (const ListItem& item : parts_.orderItems) writeItem(item);
  if (followsRecords())
    writing_.after[parts_.end - 1] += std::string(parts_.order == 0 ? " ORDER BY " : ",") + asWritten;
}

bool PostgresOrder::isText(std::size_t n) const {
  const ColumnDefinition* column = scope_.columnAt(n);
  return column != nullptr && isTextType(column->type);
}

/// One item of ORDER BY: a name with or without its table, or an expression; ASC or DESC behind it.
void PostgresOrder::writeItem(const ListItem& item) {
  if (item.begin >= item.end || (item.end >= 2 && isKey(item.end - 2, "NULLS"))) return;
  const std::size_t last = item.name;
  const bool text = last != 0 && isText(last) && !(last == item.begin && namesResult(last));
  if (text && !parts_.distinct && countsAsNumber(nameOf(statement_.at(last)))) {
    writing_.written[last] = postgresNumber(writing_.text(item.begin, last));
    for (std::size_t n = item.begin; n < last; ++n) writing_.written[n].clear();
  } else if (text && (!parts_.distinct || writeInSelectList(*scope_.columnAt(last)))) {
    writing_.after[last] += byteWise;
  }
  writing_.after[item.end - 1] += item.descending ? " NULLS LAST" : " NULLS FIRST";
}

/// A distinct record is sorted by what is selected, so the column is selected byte-wise too. False where it
/// does not stand there by itself.
bool PostgresOrder::writeInSelectList(const ColumnDefinition& column) {
  for (const ListItem& item : parts_.items) {
    if (item.name == 0 || scope_.columnAt(item.name) != &column) continue;
    if (!writing_.after[item.name].ends_with(byteWise)) writing_.after[item.name] += byteWise;
    return true;
  }
  return false;
}

/// SELECT DISTINCT ON (keys) … ORDER BY keys, columns: of the records with the same keys the first is taken.
/// False where the list or its order is more than columns.
bool PostgresOrder::writeDistinctList() {
  if (parts_.from == 0 || parts_.compound) return false;
  std::vector<std::string> keys;
  std::vector<std::string> order;
  std::vector<std::string> columns;
  std::vector<const ListItem*> ordered;
  for (const ListItem& item : parts_.orderItems) {
    const ListItem* column = item.name == 0 ? nullptr : selected(item);
    if (column == nullptr) return false;
    order.push_back(keyOf(*column) + direction(item.descending));
    ordered.push_back(column);
  }
  for (const ListItem& item : parts_.items) {
    if (item.name == 0 || scope_.columnAt(item.name) == nullptr) return false;
    keys.push_back(keyOf(item));
    if (std::find(ordered.begin(), ordered.end(), &item) == ordered.end())
      order.push_back(keys.back() + direction(false));
    if (isText(item.name)) columns.push_back(writing_.text(item.begin, item.name) + byteWise);
  }
  order.insert(order.end(), columns.begin(), columns.end());
  writing_.after[1] += " ON (" + joined(keys) + ")";
  for (std::size_t n = parts_.order == 0 ? parts_.end : parts_.order - 2; n < parts_.end; ++n)
    writing_.written[n].clear();
  writing_.after[parts_.end - 1] += " ORDER BY " + joined(order);
  return true;
}

/// What tells one item of a DISTINCT list from another: a text without the blanks at its end, a number. A
/// number's column that the statement does not order by is sorted by its text.
std::string PostgresOrder::keyOf(const ListItem& item) const {
  const std::string column = writing_.text(item.begin, item.name);
  if (isText(item.name)) return "rtrim(" + column + ",' ')" + byteWise;
  const bool ordered = std::any_of(parts_.orderItems.begin(), parts_.orderItems.end(),
                                   [&](const ListItem& one) { return selected(one) == &item; });
  return ordered ? column : "CAST(" + column + " AS text)" + byteWise;
}

/// The item of the select list that an item of ORDER BY names; null where it names none.
const ListItem* PostgresOrder::selected(const ListItem& ordered) const {
  const ColumnDefinition* column = ordered.name == 0 ? nullptr : scope_.columnAt(ordered.name);
  if (column == nullptr) return nullptr;
  for (const ListItem& item : parts_.items)
    if (item.name != 0 && scope_.columnAt(item.name) == column) return &item;
  return nullptr;
}

/// True where the name at `n` is one that the select list gives to an item.
bool PostgresOrder::namesResult(std::size_t n) const {
  for (std::size_t i = 2; i < parts_.from; ++i)
    if (isKey(i - 1, "AS") && statement_.isNameAt(i) &&
        text::equalIgnoringCase(nameOf(statement_.at(i)), nameOf(statement_.at(n))))
      return true;
  return false;
}

/// True where every record of the result is one record of a single stored table.
bool PostgresOrder::followsRecords() const {
  const PostgresTable* table = scope_.onlyTable();
  if (table == nullptr || !table->stored || parts_.distinct || parts_.limited || parts_.from == 0)
    return false;
  for (std::size_t n = 1; n < parts_.end; ++n) {
    if (n < parts_.from && isSign(n, "(")) return false;
    if (isKey(n, "GROUP") || isKey(n, "HAVING") || isKey(n, "LIMIT") || isKey(n, "UNION") ||
        isKey(n, "SELECT"))
      return false;
  }
  return true;
}

}  // namespace db
