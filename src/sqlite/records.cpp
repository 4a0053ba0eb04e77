#include "sqlite/records.h"

#include <cstdint>
#include <utility>
#include <vector>

#include "sql/select_shape.h"
#include "sql/tokens.h"
#include "sqlite/writer.h"

namespace db {
namespace {

/// A record to be written is found by its rowid, which views and some tables have none of. A missing table is
/// told by the engine.
void requireRowids(SqliteConnection& connection, const std::string& table) {
  constexpr int typeColumn = 0;
  constexpr int withoutColumn = 1;
  const SqliteStatement asked =
      connection.prepare("SELECT type, wr FROM pragma_table_list WHERE name=?1 COLLATE NOCASE");
  sqlite3_bind_text64(asked.get(), 1, table.data(), table.size(), SQLITE_STATIC, SQLITE_UTF8);
  if (!connection.step(asked.get())) return;
  if (columnValue(asked.get(), typeColumn).text() == "view")
    throw connection.error("の「" + table + "」はビューのため、読み込みだけで書き込めません。");
  if (columnValue(asked.get(), withoutColumn).number() != 0)
    throw connection.error("のテーブル「" + table +
                           "」は行の番号がない表（WITHOUT ROWID）のため、読み込みだけで書き込めません。");
}

/// The table of a SELECT whose records can be written.
std::string editableTable(SqliteConnection& connection, const std::string& sql) {
  const auto shape = selectShape(sql);
  const bool editable = shape && shape->recordForRecord && shape->sources.size() == 1 &&
                        shape->items.size() == 1 && shape->items[0].all &&
                        shape->items[0].qualifier.empty() && !shape->sources[0].table.empty();
  if (!editable) {
    connection.prepare(sql);  // a text that the engine cannot read either is described by the engine
    throw connection.error("で書き込み用に開けるのは一つのテーブルの SELECT * だけです。");
  }
  requireRowids(connection, shape->sources[0].table);
  return shape->sources[0].table;
}

std::string recordSql(const std::string& table) {
  return "SELECT * FROM " + quotedName(table) + " WHERE _rowid_=?1";
}

std::vector<std::int64_t> selectRowids(SqliteConnection& connection, const std::string& sql) {
  std::vector<std::int64_t> rowids;
  const SqliteStatement statement = connection.prepare(*withStarReplaced(sql, "_rowid_"));
  while (connection.step(statement.get())) rowids.push_back(sqlite3_column_int64(statement.get(), 0));
  return rowids;
}

class SqliteRecords final : public ChosenRecords {
 public:
  SqliteRecords(const std::shared_ptr<SqliteConnection>& connection, const std::string& sql)
      : connection_(*connection),
        writer_(connection, editableTable(connection_, sql)),
        record_(connection_.prepare(recordSql(writer_.table()))),
        columns_(columnNames(record_.get()), sql),
        rowids_(selectRowids(connection_, sql)) {}

  const ResultColumns& columns() const override { return columns_; }
  std::size_t count() const override { return rowids_.size(); }

  Value value(std::size_t record, std::size_t column) override {
    if (!loaded_) load(record);
    return columnValue(record_.get(), static_cast<int>(column));
  }

  void forgetRecord() override {
    if (loaded_) sqlite3_reset(record_.get());
    loaded_ = false;
  }

  void clearFields() override { writer_.clear(); }
  void setField(std::string_view name, const Value& value) override { writer_.set(name, value); }
  void insert() override { writer_.insert(); }
  void change(std::size_t record) override { writer_.change(rowids_[record]); }
  void remove(std::size_t record) override { writer_.remove(rowids_[record]); }

 private:
  void load(std::size_t record) {
    sqlite3_bind_int64(record_.get(), 1, rowids_[record]);
    loaded_ = connection_.step(record_.get());
    if (loaded_) return;
    sqlite3_reset(record_.get());
    throw connection_.error("のテーブル「" + writer_.table() + "」のレコードはすでに削除されています。");
  }

  SqliteConnection& connection_;  // the writer holds it
  SqliteWriter writer_;
  SqliteStatement record_;  // reads the record of one rowid
  ResultColumns columns_;
  std::vector<std::int64_t> rowids_;
  bool loaded_ = false;  // record_ stands on the present record
};

}  // namespace

std::unique_ptr<Recordset> sqliteEditor(const std::shared_ptr<SqliteConnection>& connection,
                                        const std::string& sql) {
  connection->gather();  // other writers are kept out before the first record is looked at
  return std::make_unique<Editor>(connection, std::make_unique<SqliteRecords>(connection, sql));
}

}  // namespace db
