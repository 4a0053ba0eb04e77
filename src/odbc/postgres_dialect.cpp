#include "odbc/postgres_dialect.h"

#include "odbc/postgres_comparison.h"
#include "odbc/postgres_definition.h"
#include "odbc/postgres_order.h"
#include "sql/column_type.h"

namespace db {
namespace {

/// Writes one statement in the server's form.
class Translation {
 public:
  Translation(std::string_view sql, const PostgresTables& tables)
      : sql_(sql), statement_(sql), scope_(statement_.all(), tables), tables_(tables), writing_(statement_) {}

  std::string text() {
    for (std::size_t n = 0; n < statement_.count(); ++n) writeToken(n);
    if (definesTables()) {
      writeDefinitions(statement_, tables_, writing_);
    } else {
      PostgresComparisons(statement_, scope_, writing_).write();
      PostgresOrder(statement_, scope_, writing_).write();
    }
    return writing_.whole(sql_);
  }

 private:
  bool isSign(std::size_t n, std::string_view sign) const { return statement_.isSign(n, sign); }
  bool isKey(std::size_t n, std::string_view word) const { return statement_.isKey(n, word); }
  bool definesTables() const { return isKey(0, "CREATE") || isKey(0, "ALTER") || isKey(0, "DROP"); }

  void writeToken(std::size_t n) {
    std::string& written = writing_.written[n];
    if (statement_.at(n).kind == TokenKind::Text && !statement_.at(n).text.starts_with('\''))
      written = "CAST('\\x" + std::string(statement_.at(n).text.substr(2)) + " AS bytea)";
    if (!isName(statement_.at(n))) return;
    if (const PostgresTable* table = scope_.tableAt(n)) {
      written = quotedName(table->name);
    } else if (const ColumnDefinition* column = scope_.columnAt(n)) {
      written = quotedName(column->name);
    } else if (statement_.at(n).kind == TokenKind::QuotedName || isMissingTable(n)) {
      written = quotedName(nameOf(statement_.at(n)));
    } else if (isKey(n, "DISTINCTROW") && isKey(n - 1, "SELECT")) {
      written.clear();
    } else if (isKey(n, "MID") && isSign(n + 1, "(")) {
      writeMid(n);
    }
  }

  /// The server tells a missing table by the name as it was written, not in small letters.
  bool isMissingTable(std::size_t n) const {
    return scope_.isUnknownTable(n) && !isSign(n + 1, "(") && !isSign(n + 1, ".") && !isKey(0, "WITH");
  }

  /// MID of a number's column cuts its text.
  void writeMid(std::size_t n) {
    writing_.written[n] = "substr";
    std::size_t first = n + 2;
    while (isSign(first + 1, ".")) first += 2;
    const ColumnDefinition* column = scope_.columnAt(first);
    if (column != nullptr && !isTextType(column->type) && isSign(first + 1, ","))
      writing_.after[first] += "::text";
  }

  std::string_view sql_;
  Statement statement_;
  PostgresScope scope_;
  const PostgresTables& tables_;
  Writing writing_;
};

}  // namespace

std::string postgresText(std::string_view sql, const PostgresTables& tables) {
  return Translation(sql, tables).text();
}

}  // namespace db
