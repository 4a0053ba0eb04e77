#include "job/schema.h"

#include <algorithm>

#include "sql/split_statements.h"
#include "sql/tokens.h"

namespace job {
namespace {

using Tokens = std::vector<db::Token>;

/// The piece of SQL text from one token to another, both included.
std::string between(const db::Token& first, const db::Token& last) {
  const auto length = static_cast<std::size_t>(last.text.data() + last.text.size() - first.text.data());
  return std::string(std::string_view(first.text.data(), length));
}

/// Reads "CREATE TABLE name ( column declaration, … )".
TableSchema readTable(const Tokens& words) {
  TableSchema table{db::nameOf(words[2]), {}, {}};
  std::size_t start = 4;  // behind the parenthesis
  int depth = 0;
  for (std::size_t i = start; i < words.size(); ++i) {
    const bool ends = depth == 0 && (db::isOperator(words[i], ",") || db::isOperator(words[i], ")"));
    if (ends) {
      table.columns.push_back({db::nameOf(words[start]), between(words[start + 1], words[i - 1])});
      start = i + 1;
    } else if (db::isOperator(words[i], "(")) {
      ++depth;
    } else if (db::isOperator(words[i], ")")) {
      --depth;
    }
  }
  return table;
}

/// Puts "CREATE INDEX name ON table …" to its table.
void addIndex(std::vector<TableSchema>& tables, const Tokens& words, const std::string& statement) {
  const std::string name = db::nameOf(words[4]);
  const auto table =
      std::find_if(tables.begin(), tables.end(), [&](const TableSchema& one) { return one.name == name; });
  if (table != tables.end()) table->indexes.push_back(statement);
}

std::vector<TableSchema> readTables() {
  std::vector<TableSchema> tables;
  for (const std::string& statement : db::splitStatements(schemaSql())) {
    const Tokens words = db::significantTokens(statement);
    if (db::isWord(words[1], "TABLE"))
      tables.push_back(readTable(words));
    else
      addIndex(tables, words, statement);
  }
  return tables;
}

}  // namespace

const std::vector<TableSchema>& schemaTables() {
  static const std::vector<TableSchema> tables = readTables();
  return tables;
}

}  // namespace job
