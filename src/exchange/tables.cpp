#include "exchange/tables.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "text/number.h"
#include "text/padding.h"

namespace exchange {
namespace {

template <std::size_t N>
bool holdsAny(const std::string& type, const std::array<const char*, N>& words) {
  return std::any_of(words.begin(), words.end(),
                     [&type](const char* word) { return type.find(word) != std::string::npos; });
}

constexpr std::array bytesWords{"BINARY", "BYTEA", "BLOB", "OLE"};
constexpr std::array textWords{"CHAR", "TEXT", "CLOB", "MEMO", "STRING", "GUID"};
constexpr std::array numberWords{"INT",      "REAL",   "FLOA", "DOUB",   "NUM",  "DEC",
                                 "CURRENCY", "MONEY",  "BYTE", "SINGLE", "LONG", "SHORT",
                                 "COUNTER",  "SERIAL", "BOOL", "BIT",    "YESNO"};

std::string inCapitals(std::string_view type) {
  std::string upper(type);
  for (char& c : upper)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  return upper;
}

}  // namespace

Kind kindOf(std::string_view type) {
  const std::string upper = inCapitals(type);
  if (holdsAny(upper, bytesWords)) return Kind::Other;
  if (holdsAny(upper, textWords)) return Kind::Text;
  return holdsAny(upper, numberWords) ? Kind::Number : Kind::Other;
}

bool isWholeType(std::string_view type) {
  return kindOf(type) == Kind::Number && inCapitals(type).find("INT") != std::string::npos;
}

std::optional<std::vector<db::ColumnDefinition>> definitionOf(db::Database& database,
                                                              std::string_view table) {
  try {
    return database.tableDefinition(table);
  } catch (const db::Error& error) {
    const std::string missing = "テーブル「" + std::string(table) + "」がありません";
    if (std::string_view(error.what()).find(missing) == std::string_view::npos) throw;
    return std::nullopt;
  }
}

const db::ColumnDefinition* findColumn(const std::vector<db::ColumnDefinition>& columns,
                                       std::string_view name) {
  const auto found = std::find_if(columns.begin(), columns.end(), [name](const db::ColumnDefinition& column) {
    return text::equalIgnoringCase(column.name, name);
  });
  return found == columns.end() ? nullptr : &*found;
}

const job::TableSchema& jobTable(std::string_view name) {
  const std::vector<job::TableSchema>& tables = job::schemaTables();
  const auto found = std::find_if(tables.begin(), tables.end(), [name](const job::TableSchema& table) {
    return text::equalIgnoringCase(table.name, name);
  });
  if (found == tables.end())
    throw db::Error("「" + std::string(name) + "」はジョブデータベースのテーブルではありません。");
  return *found;
}

std::int64_t countRecords(db::Database& database, const std::string& table) {
  const auto records = database.openRecordset("SELECT COUNT(*) FROM " + table);
  return static_cast<std::int64_t>(records->value(db::Column{0}).number());
}

std::string exactText(const db::Value& value) {
  if (!value.isNumber()) return value.text();
  const double number = value.number();
  if (std::isfinite(number)) {
    std::string usual = value.text();
    if (text::readNumber(usual) == number) return usual;
  }
  std::array<char, 32> digits;
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  return {digits.data(), end};
}

}  // namespace exchange
