#include "odbc/postgres_dialect.h"

#include "odbc/postgres_comparison.h"
#include "odbc/postgres_definition.h"
#include "odbc/postgres_order.h"
#include "sql/column_type.h"

namespace db {
namespace {

/// Reads one statement's tokens and writes them down again in the server's form.
class Translation {
 public:
  Translation(std::string_view sql, const PostgresTables& tables)
      : all_(tokens(sql)), tokens_(significantTokens(sql)), scope_(tokens_, tables), tables_(tables) {
    writing_.before.resize(tokens_.size());
    writing_.after.resize(tokens_.size());
    for (const Token& token : tokens_) writing_.written.emplace_back(token.text);
  }

  std::string text() {
    for (std::size_t n = 0; n < tokens_.size(); ++n) writeToken(n);
    if (!tokens_.empty() && definesTables()) {
      writeDefinitions(tokens_, tables_, writing_);
    } else if (!tokens_.empty()) {
      PostgresComparisons(tokens_, scope_, writing_).write();
      PostgresOrder(tokens_, scope_, writing_).write();
    }
    return joined();
  }

 private:
  bool isSign(std::size_t n, std::string_view sign) const {
    return n < tokens_.size() && isOperator(tokens_[n], sign);
  }
  bool isKey(std::size_t n, std::string_view word) const {
    return n < tokens_.size() && isWord(tokens_[n], word);
  }
  bool definesTables() const { return isKey(0, "CREATE") || isKey(0, "ALTER") || isKey(0, "DROP"); }

  void writeToken(std::size_t n) {
    std::string& written = writing_.written[n];
    if (tokens_[n].kind == TokenKind::Text && !tokens_[n].text.starts_with('\''))
      written = "CAST('\\x" + std::string(tokens_[n].text.substr(2)) + " AS bytea)";
    if (!isName(tokens_[n])) return;
    if (const PostgresTable* table = scope_.tableAt(n)) {
      written = postgresName(table->name);
    } else if (const ColumnDefinition* column = scope_.columnAt(n)) {
      written = postgresName(column->name);
    } else if (tokens_[n].kind == TokenKind::QuotedName || isMissingTable(n)) {
      written = postgresName(nameOf(tokens_[n]));
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

  std::string joined() const {
    std::string result;
    std::size_t n = 0;
    for (const Token& token : all_) {
      if (isInsignificant(token)) {
        result += token.text;
        continue;
      }
      result += writing_.before[n] + writing_.written[n] + writing_.after[n];
      ++n;
    }
    return result;
  }

  std::vector<Token> all_;
  std::vector<Token> tokens_;
  PostgresScope scope_;
  const PostgresTables& tables_;
  PostgresWriting writing_;
};

}  // namespace

std::string postgresText(std::string_view sql, const PostgresTables& tables) {
  return Translation(sql, tables).text();
}

}  // namespace db
