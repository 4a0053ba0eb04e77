#include "exchange/check.h"

#include <algorithm>

#include "exchange/numbering.h"
#include "exchange/tables.h"
#include "open/open.h"
#include "sql/column_type.h"

namespace exchange {
namespace {

constexpr const char* observations = "KansokuSeikaData";

std::vector<GroupKey> routeKeys() {
  return {{"JobId", "ジョブ"}, {"事業番号", "事業"}, {"路線番号", "路線"}, {"DataKubun", "区分"}};
}

const std::vector<TableRules>& allRules() {
  static const std::vector<TableRules> rules{
      {observations, routeKeys(), true, true, true},
      {"KansokuData", routeKeys(), true, false, false},
      {"KansokuSeikaDataSeihyou", routeKeys(), true, true, true},
      {"KansokuSeikaDataDaen", routeKeys(), true, true, true},
      {"DaenHoseiChiHyouData", routeKeys(), true, true, false},
      {"KansokuSeikaDataHend", routeKeys(), true, true, true},
      {"HendHoseiChiHyouData", routeKeys(), true, false, false},
      {"KansokuSeikaDataTanrosen", routeKeys(), true, true, true},
      {"KansokuSeikaDataHKSNB",
       {{"JobId", "ジョブ"}, {"補正値フラグ", "補正値フラグ"}, {"変動観測簿No", "観測簿"}},
       false,
       true,
       false}};
  return rules;
}

bool has(const std::vector<db::ColumnDefinition>& columns, const std::string& name) {
  return findColumn(columns, name) != nullptr;
}

/// True where the table has every column that the rules look at.
bool canCheck(const std::vector<db::ColumnDefinition>& columns, const TableRules& rules) {
  const bool keys = std::all_of(rules.keys.begin(), rules.keys.end(),
                                [&columns](const GroupKey& key) { return has(columns, key.column); });
  return keys && has(columns, "SaveOrder") && (!rules.routeEnds || has(columns, "RosenEndDataFlg"));
}

void checkColumns(const job::TableSchema& table, const std::vector<db::ColumnDefinition>& columns,
                  std::vector<std::string>& findings) {
  for (const job::ColumnSchema& column : table.columns)
    if (!has(columns, column.name))
      findings.push_back(table.name + ": 列「" + column.name + "」がありません。");
}

LooseNumbers looseObservations(db::Database& database) {
  const auto columns = definitionOf(database, observations);
  return columns && canCheck(*columns, allRules().front()) ? looseNumbers(database, observations)
                                                           : LooseNumbers();
}

/// Order numbers that are declared as texts are read as numbers here, but other programs sort them 1, 10, 2.
void checkOrderColumn(const std::string& table, const std::vector<db::ColumnDefinition>& columns,
                      std::vector<std::string>& findings) {
  const db::ColumnDefinition* order = findColumn(columns, "SaveOrder");
  if (order != nullptr && db::isTextType(order->type))
    findings.push_back(table + ": 列「SaveOrder」が文字列の型（" + order->type +
                       "）です。ほかのプログラムでは 1、10、2 の順に並ぶことがあります。");
}

void checkRecords(db::Database& database, const std::string& table,
                  const std::vector<db::ColumnDefinition>& columns, const LooseNumbers& loose,
                  std::vector<std::string>& findings) {
  for (const TableRules& rules : allRules())
    if (rules.table == table && canCheck(columns, rules)) checkNumbering(database, rules, loose, findings);
}

}  // namespace

std::vector<std::string> checkJob(const std::string& path) {
  std::vector<std::string> findings;
  const auto database = db::openDatabase(path);
  for (const std::string& words : database->damage())
    findings.push_back("データベース「" + path + "」は壊れています: " + words);
  if (!findings.empty()) return findings;  // what is read from there may be anything
  const LooseNumbers loose = looseObservations(*database);
  for (const job::TableSchema& table : job::schemaTables()) {
    const auto columns = definitionOf(*database, table.name);
    if (!columns) {
      findings.push_back(table.name + ": テーブルがありません。");
      continue;
    }
    checkColumns(table, *columns, findings);
    checkOrderColumn(table.name, *columns, findings);
    checkRecords(*database, table.name, *columns, loose, findings);
  }
  database->close();
  return findings;
}

}  // namespace exchange
