#include "odbc/records.h"

#include <utility>
#include <vector>

#include "odbc/writer.h"
#include "sql/select_shape.h"

namespace db {
namespace {

std::vector<std::string> namesOf(const std::vector<ColumnDefinition>& columns) {
  std::vector<std::string> names;
  for (const ColumnDefinition& column : columns) names.push_back(column.name);
  return names;
}

class OdbcRecords final : public ChosenRecords {
 public:
  OdbcRecords(const std::shared_ptr<OdbcConnection>& connection, const std::string& sql,
              const std::string& table)
      : connection_(*connection), writer_(connection, table), columns_(namesOf(writer_.columns()), sql) {
    readKeys(sql);
  }

  const ResultColumns& columns() const override { return columns_; }
  std::size_t count() const override { return keys_.size(); }

  Value value(std::size_t record, std::size_t column) override {
    if (fields_.empty()) load(record);
    return fields_.at(column);
  }

  void forgetRecord() override { fields_.clear(); }

  void clearFields() override { writer_.clear(); }
  void setField(std::string_view name, const Value& value) override { writer_.set(name, value); }
  void insert() override { writer_.insert(); }
  void change(std::size_t record) override { keys_[record] = writer_.change(keys_[record]); }
  void remove(std::size_t record) override { writer_.remove(keys_[record]); }

 private:
  /// The engine's keys, or whole records where it has none.
  void readKeys(const std::string& sql) {
    const std::string key = connection_.product().keyColumn();
    const auto statement =
        key.empty() ? connection_.prepareSelect(sql) : connection_.prepare(*withStarReplaced(sql, key));
    if (!key.empty()) statement->readTexts();
    statement->run();
    while (statement->next()) keys_.push_back(valuesOf(*statement));
  }

  void load(std::size_t record) {
    OdbcStatement& statement = writer_.reading(keys_[record]);
    statement.run();
    if (!statement.next())
      throw connection_.error("のテーブル「" + writer_.table() + "」のレコードはすでに削除されています。");
    fields_ = valuesOf(statement);
  }

  static std::vector<Value> valuesOf(OdbcStatement& statement) {
    std::vector<Value> values;
    for (std::size_t i = 0; i < statement.names().size(); ++i) values.push_back(statement.value(i));
    return values;
  }

  OdbcConnection& connection_;  // the writer holds it
  OdbcWriter writer_;
  ResultColumns columns_;
  std::vector<OdbcWriter::Key> keys_;
  std::vector<Value> fields_;  // of the present record; empty before they are read
};

}  // namespace

std::unique_ptr<Recordset> odbcEditor(const std::shared_ptr<OdbcConnection>& connection,
                                      const std::string& sql, const std::string& table) {
  connection->gather(table);  // other writers are kept out before the first record is looked at
  return std::make_unique<Editor>(connection, std::make_unique<OdbcRecords>(connection, sql, table));
}

}  // namespace db
