#include "odbc/database.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "odbc/connection.h"
#include "odbc/cursor.h"
#include "odbc/records.h"
#include "odbc/source.h"
#include "sql/select_shape.h"
#include "sql/split_statements.h"
#include "sql/tokens.h"

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

/// WITH may stand before a statement that writes.
bool reads(std::string_view sql) {
  static constexpr std::array<std::string_view, 3> words = {"SELECT", "VALUES", "WITH"};
  const std::vector<Token> all = significantTokens(sql);
  const bool changes = std::any_of(all.begin(), all.end(), [](const Token& token) {
    return isWord(token, "INSERT") || isWord(token, "UPDATE") || isWord(token, "DELETE");
  });
  return beginsWith(sql, words) && !(changes && isWord(all.front(), "WITH"));
}

bool defines(std::string_view sql) {
  static constexpr std::array<std::string_view, 3> words = {"CREATE", "ALTER", "DROP"};
  return beginsWith(sql, words);
}

/// A character of code 0 ends a statement, unless it stands in a text.
bool holdsZeroOutsideTexts(std::string_view sql) {
  const std::vector<Token> all = tokens(sql);
  return std::any_of(all.begin(), all.end(), [](const Token& token) {
    return token.kind != TokenKind::Text && token.text.find('\0') != std::string_view::npos;
  });
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

/// What the engine wants done around the beginning of a SELECT.
class Reading {
 public:
  Reading(OdbcConnection& connection, std::string_view sql) : connection_(connection) {
    try {
      connection_.product().beginReading(connection_, sql);
    } catch (...) {
      end();
      throw;
    }
  }
  ~Reading() { end(); }
  Reading(const Reading&) = delete;
  Reading& operator=(const Reading&) = delete;

 private:
  void end() {
    try {
      connection_.product().endReading(connection_);
    } catch (const Error&) {
      // The records are there, or the failure of their reading tells more.
    }
  }

  OdbcConnection& connection_;
};

/// A job database behind an ODBC driver.
class OdbcDatabase final : public Database {
 public:
  OdbcDatabase(const OdbcSource& source, std::string_view path)
      : connection_(std::make_shared<OdbcConnection>(source, path)) {}
  ~OdbcDatabase() override {
    try {
      connection_->keepsWhole() ? connection_->discard() : connection_->close();
    } catch (const Error&) {
      // Nobody is left to be told; close has already rolled back what could not be committed.
    }
  }
  OdbcDatabase(const OdbcDatabase&) = delete;
  OdbcDatabase& operator=(const OdbcDatabase&) = delete;

  std::unique_ptr<Recordset> openRecordset(std::string_view sql, Access access) override {
    const std::string one = onlyStatement(sql);
    if (access == Access::Edit) return openEditor(one);
    if (writes(one)) throw connection_->error("からレコードを読む SQL 文ではありません。");
    const Reading reading(*connection_, one);
    return odbcReader(connection_, engineText(one));
  }

  void execute(std::string_view sql) override {
    const std::string one = onlyStatement(sql);
    connection_->requireNothingLost();
    if (reads(one)) throw connection_->error("でレコードを返す SQL 文は実行できません。");
    connection_->run(engineText(one));
    if (defines(one)) connection_->product().definitionsChanged();
  }

  std::vector<ColumnDefinition> tableDefinition(std::string_view table) override {
    connection_->requireOpen();
    std::vector<ColumnDefinition> columns = connection_->columns(table);
    if (columns.empty()) throw connection_->error("にテーブル「" + std::string(table) + "」がありません。");
    return columns;
  }

  void gather() override { connection_->gather(); }
  void keepWhole() override { connection_->keepWhole(); }
  std::vector<std::string> damage() override {
    connection_->requireOpen();
    return connection_->product().damage(*connection_);
  }
  WriteBar writeBar() override {
    const bool readOnly = connection_->isOpen() &&
                          connection_->calls().info(connection_->handle(), SQL_DATA_SOURCE_READ_ONLY) == "Y";
    return readOnly ? WriteBar::ReadOnly : WriteBar::None;
  }
  void close() override { connection_->close(); }
  void discard() override { connection_->discard(); }

 private:
  /// The statement without what stands around it.
  std::string onlyStatement(std::string_view sql) const {
    connection_->requireOpen();
    std::vector<std::string> statements = splitStatements(sql);
    if (statements.empty()) throw connection_->error("への SQL 文が空です。");
    if (statements.size() > 1 || holdsZeroOutsideTexts(sql))
      throw connection_->error("への SQL 文は一度に一つだけです。二つめ以降があるため実行しませんでした。");
    return std::move(statements.front());
  }

  /// No driver takes a character of code 0 for a part of a statement.
  std::string engineText(const std::string& sql) const {
    std::string text = connection_->product().statement(*connection_, sql);
    if (text.find('\0') != std::string::npos)
      throw connection_->error("への SQL 文に使えない文字（コード 0）があるため実行しませんでした。");
    return text;
  }

  /// A text that the engine cannot read either, or that names no table, is described by the engine.
  std::unique_ptr<Recordset> openEditor(const std::string& sql) {
    connection_->requireNothingLost();
    const auto table = editableTable(sql);
    const bool found = table && !connection_->columns(*table).empty();
    if (!found && reads(sql)) connection_->run(engineText(sql));
    if (!found) throw connection_->error("で書き込み用に開けるのは一つのテーブルの SELECT * だけです。");
    return odbcEditor(connection_, engineText(sql), *table);
  }

  std::shared_ptr<OdbcConnection> connection_;
};

}  // namespace

std::unique_ptr<Database> openAccessFile(std::string_view path) {
  return std::make_unique<OdbcDatabase>(accessSource(path), path);
}

std::unique_ptr<Database> openDataSource(std::string_view path, std::string_view content) {
  return std::make_unique<OdbcDatabase>(fileSource(path, content), path);
}

}  // namespace db
