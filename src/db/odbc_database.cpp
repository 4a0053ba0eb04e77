#include "db/odbc_database.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "db/odbc_connection.h"
#include "db/odbc_editor.h"
#include "db/odbc_reader.h"
#include "db/odbc_source.h"
#include "db/select_shape.h"
#include "db/sql_tokens.h"

namespace db {
namespace {

template <std::size_t N>
bool beginsWith(std::string_view sql, const std::array<std::string_view, N>& words) {
  const std::vector<Token> all = significantTokens(sql);
  return !all.empty() && std::any_of(words.begin(), words.end(),
                                     [&all](std::string_view word) { return isWord(all.front(), word); });
}

bool writes(std::string_view sql) {
  static constexpr std::array<std::string_view, 9> words = {
      "INSERT", "UPDATE", "DELETE", "REPLACE", "CREATE", "ALTER", "DROP", "TRUNCATE", "LOCK"};
  return beginsWith(sql, words);
}

bool reads(std::string_view sql) {
  static constexpr std::array<std::string_view, 3> words = {"SELECT", "VALUES", "WITH"};
  return beginsWith(sql, words);
}

bool defines(std::string_view sql) {
  static constexpr std::array<std::string_view, 3> words = {"CREATE", "ALTER", "DROP"};
  return beginsWith(sql, words);
}

/// The table of a SELECT whose records can be written; nothing for another statement.
std::optional<std::string> editableTable(std::string_view sql) {
  const auto shape = selectShape(sql);
  const bool editable = shape && shape->recordForRecord && shape->sources.size() == 1 &&
                        shape->items.size() == 1 && shape->items[0].all &&
                        shape->items[0].qualifier.empty() && !shape->sources[0].table.empty();
  if (!editable) return std::nullopt;
  return shape->sources[0].table;
}

/// A job database behind an ODBC driver.
class OdbcDatabase final : public Database {
 public:
  OdbcDatabase(const std::string& connectionString, std::string_view path)
      : connection_(std::make_shared<OdbcConnection>(connectionString, path)) {}
  ~OdbcDatabase() override {
    try {
      connection_->close();
    } catch (const Error&) {
      // Nobody is left to be told; close has already rolled back what could not be committed.
    }
  }
  OdbcDatabase(const OdbcDatabase&) = delete;
  OdbcDatabase& operator=(const OdbcDatabase&) = delete;

  std::unique_ptr<Recordset> openRecordset(std::string_view sql, Access access) override {
    requireOneStatement(sql);
    if (access == Access::Edit) return openEditor(sql);
    if (writes(sql)) throw connection_->error("からレコードを読む SQL 文ではありません。");
    return std::make_unique<OdbcReader>(connection_, connection_->product().statement(*connection_, sql));
  }

  void execute(std::string_view sql) override {
    requireOneStatement(sql);
    connection_->requireNothingLost();
    if (reads(sql)) throw connection_->error("でレコードを返す SQL 文は実行できません。");
    connection_->run(connection_->product().statement(*connection_, sql));
    if (defines(sql)) connection_->product().definitionsChanged();
  }

  std::vector<ColumnDefinition> tableDefinition(std::string_view table) override {
    connection_->requireOpen();
    std::vector<ColumnDefinition> columns = connection_->columns(table);
    if (columns.empty()) throw connection_->error("にテーブル「" + std::string(table) + "」がありません。");
    return columns;
  }

  void close() override { connection_->close(); }

 private:
  void requireOneStatement(std::string_view sql) const {
    connection_->requireOpen();
    const std::size_t count = splitStatements(sql).size();
    if (count == 0) throw connection_->error("への SQL 文が空です。");
    if (count > 1 || sql.find('\0') != std::string_view::npos)
      throw connection_->error("への SQL 文は一度に一つだけです。二つめ以降があるため実行しませんでした。");
  }

  std::unique_ptr<Recordset> openEditor(std::string_view sql) {
    connection_->requireNothingLost();
    const auto table = editableTable(sql);
    if (!table) throw connection_->error("で書き込み用に開けるのは一つのテーブルの SELECT * だけです。");
    tableDefinition(*table);  // a missing table is told before anything is begun
    return std::make_unique<OdbcEditor>(connection_, connection_->product().statement(*connection_, sql),
                                        *table);
  }

  std::shared_ptr<OdbcConnection> connection_;
};

}  // namespace

std::unique_ptr<Database> openAccessFile(std::string_view path) {
  return std::make_unique<OdbcDatabase>(accessConnection(path), path);
}

std::unique_ptr<Database> openDataSource(std::string_view path, std::string_view content) {
  return std::make_unique<OdbcDatabase>(dataSourceConnection(path, content), path);
}

}  // namespace db
