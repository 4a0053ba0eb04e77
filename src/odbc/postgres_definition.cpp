#include "odbc/postgres_definition.h"

#include <algorithm>
#include <array>

#include "sql/column_type.h"
#include "text/padding.h"

namespace db {
namespace {

/// Reads the tokens of one defining statement.
class DefinitionWriter {
 public:
  DefinitionWriter(const Statement& statement, const PostgresTables& tables, Writing& writing)
      : tokens_(statement.all()), tables_(tables), writing_(writing) {}

  void write() {
    if (isKey(0, "CREATE")) return writeCreate();
    if (isKey(0, "ALTER") && isKey(1, "TABLE")) writeAlter();
  }

 private:
  bool isSign(std::size_t n, std::string_view sign) const {
    return n < tokens_.size() && isOperator(tokens_[n], sign);
  }
  bool isKey(std::size_t n, std::string_view word) const {
    return n < tokens_.size() && isWord(tokens_[n], word);
  }
  bool isOneOf(std::size_t n, std::initializer_list<std::string_view> words) const {
    return std::any_of(words.begin(), words.end(), [&](std::string_view word) { return isKey(n, word); });
  }

  void keep(std::size_t n) {
    if (n < tokens_.size() && isName(tokens_[n])) writing_.written[n] = quotedName(nameOf(tokens_[n]));
  }

  /// CREATE [TEMPORARY] TABLE [IF NOT EXISTS] name ( column type …, … )
  void writeCreate() {
    std::size_t n = 1;
    if (isKey(1, "INDEX") || isKey(2, "INDEX")) return writeIndex(isKey(1, "INDEX") ? 2 : 3);
    while (isOneOf(n, {"TEMP", "TEMPORARY", "UNLOGGED", "LOCAL", "GLOBAL"})) ++n;
    if (!isKey(n, "TABLE")) return;
    n = behindExists(n + 1);
    keep(n);
    if (!isSign(n + 1, "(")) return;
    writeColumns(n + 2);
  }

  /// CREATE [UNIQUE] INDEX [IF NOT EXISTS] name ON table ( column …, … )
  void writeIndex(std::size_t n) {
    n = behindExists(n);
    keep(n);
    if (!isKey(n + 1, "ON") || n + 2 >= tokens_.size()) return;
    const PostgresTable* const table = tables_(nameOf(tokens_[n + 2]));
    writing_.written[n + 2] = quotedName(table != nullptr ? table->name : nameOf(tokens_[n + 2]));
    for (n += 3; n + 1 < tokens_.size(); ++n) {
      if (isSign(n, "(") || isSign(n, ",")) writeIndexed(n + 1, table);
      dropCollation(n);
    }
  }

  /// Texts are compared, and so looked up, without the blanks at their ends.
  void writeIndexed(std::size_t n, const PostgresTable* table) {
    keep(n);
    if (table == nullptr || !isName(tokens_[n])) return;
    for (const ColumnDefinition& column : table->columns) {
      if (!text::equalIgnoringCase(column.name, nameOf(tokens_[n]))) continue;
      writing_.written[n] = quotedName(column.name);
      if (isTextType(column.type)) writing_.written[n] = "rtrim(" + writing_.written[n] + ",' ')";
    }
  }

  std::size_t behindExists(std::size_t n) const {
    while (isOneOf(n, {"IF", "NOT", "EXISTS", "ONLY"})) ++n;
    return n;
  }

  void writeColumns(std::size_t n) {
    std::size_t depth = 1;
    bool first = true;
    for (; n < tokens_.size() && depth > 0; ++n) {
      if (isSign(n, "(")) ++depth;
      if (isSign(n, ")")) --depth;
      if (first && !isOneOf(n, {"PRIMARY", "UNIQUE", "CHECK", "CONSTRAINT", "FOREIGN"})) {
        keep(n);
        writeType(n + 1);
      }
      first = depth == 1 && isSign(n, ",");
    }
  }

  /// ALTER TABLE name ADD [COLUMN] [IF NOT EXISTS] column type, …
  void writeAlter() {
    for (std::size_t n = 2; n < tokens_.size(); ++n) {
      if (!isKey(n, "ADD")) continue;
      if (isOneOf(n + 1, {"PRIMARY", "UNIQUE", "CHECK", "CONSTRAINT", "FOREIGN"})) continue;
      n = behindExists(isKey(n + 1, "COLUMN") ? n + 2 : n + 1);
      keep(n);
      writeType(n + 1);
    }
  }

  void writeType(std::size_t n) {
    if (isKey(n, "TEXT") && isSign(n + 1, "(")) writing_.written[n] = "varchar";
    if (isKey(n, "MEMO") || isKey(n, "LONGTEXT")) writing_.written[n] = "text";
    if (isKey(n, "REAL") || (isKey(n, "DOUBLE") && !isKey(n + 1, "PRECISION")))
      writing_.written[n] = "double precision";
    if (isKey(n, "BLOB")) writing_.written[n] = "bytea";
    if (isSign(n, ",") || isSign(n, ")")) writing_.after[n - 1] += " text";  // any value
    if (isKey(n, "LONG")) writing_.written[n] = "integer";
    if (isKey(n, "BYTE")) writing_.written[n] = "smallint";
    for (std::size_t i = n; i < tokens_.size() && !isSign(i, ","); ++i) dropCollation(i);
  }

  void dropCollation(std::size_t n) {
    if (isKey(n, "COLLATE") && isKey(n + 1, "RTRIM")) writing_.written[n] = writing_.written[n + 1] = "";
  }

  const std::vector<Token>& tokens_;
  const PostgresTables& tables_;
  Writing& writing_;
};

}  // namespace

void writeDefinitions(const Statement& statement, const PostgresTables& tables, Writing& writing) {
  DefinitionWriter(statement, tables, writing).write();
}

}  // namespace db
