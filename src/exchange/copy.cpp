#include "exchange/copy.h"

#include <algorithm>
#include <ostream>

#include "exchange/create.h"
#include "exchange/table_writer.h"
#include "exchange/tables.h"
#include "open/open.h"
#include "platform/files.h"
#include "text/number.h"
#include "text/reason.h"

namespace exchange {
namespace {

using Definition = std::vector<db::ColumnDefinition>;

/// A column of the table that is copied.
struct Passage {
  db::Column from;
  std::string name;
  Kind kind;   ///< in the table that is written
  bool whole;  ///< the column there holds whole numbers
};

[[noreturn]] void refuseValue(const Passage& column, const db::Value& value) {
  const char* const kind = column.kind == Kind::Number ? "数値" : "文字列";
  throw db::Error("列「" + column.name + "」は移す先では" + kind + "の列で、「" + exactText(value) +
                  "」をそのまま書けません。");
}

/// The value as it goes into a column of that kind; refused where the column would make another one of it.
db::Value fitted(const db::Value& value, const Passage& column) {
  if (column.kind == Kind::Text && value.isNumber()) {
    if (exactText(value) != value.text()) refuseValue(column, value);
    return value.text();
  }
  if (column.kind == Kind::Number && value.isText() && text::isNumeric(value.text())) {
    if (column.whole && db::isLongWhole(value.text())) return value;  // the engine makes the number of it
    const db::Value number = text::readNumber(value.text());
    if (number.text() != value.text()) refuseValue(column, value);
    return number;
  }
  return value;
}

std::vector<Passage> passages(const db::Recordset& records, const Definition& from, const Definition& to) {
  std::vector<Passage> columns;
  for (const db::ColumnDefinition& column : from) {
    const std::string& type = findColumn(to, column.name)->type;
    columns.push_back({records.column(column.name), column.name, kindOf(type), isWholeType(type)});
  }
  return columns;
}

Row readRow(const db::Recordset& records, const std::vector<Passage>& columns) {
  Row row;
  row.reserve(columns.size());
  for (const Passage& column : columns) row.push_back(fitted(records.value(column.from), column));
  return row;
}

/// Writes all records of a table in the place of those that stand there.
void copyRecords(db::Recordset& records, const std::string& table, const std::vector<Passage>& columns,
                 TableWriter& writer) {
  writer.empty();
  while (!records.eof()) {
    Row row;
    try {
      row = readRow(records, columns);
      records.moveNext();
    } catch (const std::exception& error) {
      throw db::Error("テーブル「" + table + "」の " + std::to_string(writer.added() + 1) +
                      " 件目を移せません。" + text::reasonOf(error));
    }
    writer.add(row);
  }
  writer.requireAsWritten();
}

/// Makes the table in `to` fit for the columns of `from`; returns what it is then.
Definition prepare(db::Database& to, const job::TableSchema& table, const Definition& from) {
  if (definitionOf(to, table.name))
    addMissingColumns(to, table.name, from);
  else
    createTable(to, table, from);
  return to.tableDefinition(table.name);
}

void copyTable(db::Database& from, db::Database& to, const job::TableSchema& table,
               const Definition& definition, std::ostream& progress) {
  const Definition made = prepare(to, table, definition);
  const auto records = from.openRecordset("SELECT * FROM " + table.name);
  const std::vector<Passage> columns = passages(*records, definition, made);
  std::vector<std::string> names;
  for (const Passage& column : columns) names.push_back(column.name);
  TableWriter writer(to, table.name, names);
  copyRecords(*records, table.name, columns, writer);
  progress << table.name << ": " << writer.added() << " 件" << std::endl;
}

/// How many records the job table holds; 0 where there is no such table.
std::int64_t recordsIn(db::Database& database, const std::string& table) {
  return definitionOf(database, table) ? countRecords(database, table) : 0;
}

void requireEmpty(const std::string& path) {
  const auto database = db::openDatabase(path);
  for (const job::TableSchema& table : job::schemaTables())
    if (const std::int64_t count = recordsIn(*database, table.name))
      throw db::Error("移す先「" + path + "」にはすでにジョブがあります（テーブル「" + table.name + "」に " +
                      std::to_string(count) + " 件）。上書きするときは --over を付けてください。");
}

void requireJob(db::Database& database, const std::string& path) {
  const auto& tables = job::schemaTables();
  const bool any = std::any_of(tables.begin(), tables.end(), [&](const job::TableSchema& table) {
    return definitionOf(database, table.name).has_value();
  });
  if (!any) throw db::Error("「" + path + "」にはジョブのテーブルが一つもありません。");
}

void reportMissing(db::Database& to, const std::string& table, std::ostream& progress) {
  const std::int64_t there = recordsIn(to, table);
  progress << table << ": 移す元にないため省きました";
  if (there > 0) progress << "（移す先の " << there << " 件はそのままです）";
  progress << std::endl;
}

void copyTables(db::Database& from, db::Database& to, std::ostream& progress) {
  for (const job::TableSchema& table : job::schemaTables())
    if (const auto definition = definitionOf(from, table.name))
      copyTable(from, to, table, *definition, progress);
    else
      reportMissing(to, table.name, progress);
}

/// The error that ends a copy which has left nothing at `to`.
db::Error nothingWritten(const std::exception& error, const std::string& to) {
  return db::Error(text::reasonOf(error) + " 移す先「" + to + "」には何も書き込んでいません。");
}

/// All tables reach the database that is there in one piece.
void copyInto(db::Database& from, const std::string& to, std::ostream& progress) {
  const auto target = db::openDatabase(to);
  try {
    target->gather();
    copyTables(from, *target, progress);
  } catch (const std::exception& error) {
    target->discard();
    throw nothingWritten(error, to);
  }
  target->close();
}

void copyIntoNew(db::Database& from, const std::string& to, std::ostream& progress) {
  makeFile(to, [&](db::Database& target) {
    try {
      copyTables(from, target, progress);
    } catch (const std::exception& error) {
      throw nothingWritten(error, to);
    }
  });
}

}  // namespace

void copyJob(const std::string& from, const std::string& to, bool over, std::ostream& progress) {
  if (from == to || platform::isSameFile(from, to)) throw db::Error("移す元と移す先が同じです: " + from);
  const auto source = db::openDatabase(from);
  requireJob(*source, from);
  if (!isThere(to)) return copyIntoNew(*source, to, progress);
  if (!over) requireEmpty(to);
  copyInto(*source, to, progress);
}

}  // namespace exchange
