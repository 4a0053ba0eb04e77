#include "odbc/error.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <string>

namespace db {
namespace {

std::string quoted(std::string_view name) { return "「" + std::string(name) + "」"; }

bool isOneOf(std::string_view state, std::initializer_list<std::string_view> states) {
  return std::find(states.begin(), states.end(), state) != states.end();
}

/// What stands between the first pair of these quotes in a message.
std::string between(std::string_view words, std::string_view open, std::string_view close) {
  const std::size_t begin = words.find(open);
  if (begin == std::string_view::npos) return {};
  const std::size_t end = words.find(close, begin + open.size());
  if (end == std::string_view::npos) return {};
  return std::string(words.substr(begin + open.size(), end - begin - open.size()));
}

/// The name that a message is about: the first in quotes, else the word behind "column" (a.標高).
std::string nameIn(std::string_view words) {
  for (const auto& [open, close] : {std::pair{"\"", "\""}, std::pair{"'", "'"}, std::pair{"「", "」"}}) {
    std::string name = between(words, open, close);
    if (!name.empty()) return name;
  }
  return between(words, "column ", " ");
}

/// 「name」 where the message tells one.
std::string namedIn(std::string_view words) {
  const std::string name = nameIn(words);
  return name.empty() ? name : quoted(name);
}

/// A fault of the SQL text itself.
std::string statementFault(const OdbcDiagnosis& d, const std::string& database) {
  if (isOneOf(d.state, {"42S02", "42P01"}))
    return database + "にテーブル" + namedIn(d.words) + "がありません";
  if (isOneOf(d.state, {"42S22", "42703"})) return database + "に列" + namedIn(d.words) + "がありません";
  if (d.state == "42702") return database + "で列" + namedIn(d.words) + "がどのテーブルのものか決まりません";
  if (d.state == "42883") return database + "で関数は使えません";
  if (isOneOf(d.state, {"42601", "37000"})) return database + "への SQL 文に誤りがあります";
  if (isOneOf(d.state, {"IM001", "HYC00"})) return database + "のドライバーにはできない操作です";
  return database + "で SQL 文を実行できません";
}

/// A failure of the way to the database; "" where it is another one.
std::string connectionFault(std::string_view state, const std::string& database) {
  if (isOneOf(state, {"IM002", "IM003"})) return database + "を開くための ODBC ドライバーがありません";
  if (state.starts_with("28")) return database + "に入れません。ユーザー名かパスワードが違います";
  if (isOneOf(state, {"08001", "08004"})) return database + "に接続できません";
  if (state.starts_with("08") || state.starts_with("57P")) return database + "との接続が切れました";
  if (state == "3D000") return database + "がサーバーにありません";
  return {};
}

std::string sentence(const OdbcDiagnosis& d, const std::string& database, std::string_view table) {
  const std::string target = table.empty() ? database : database + "のテーブル" + quoted(table);
  const std::string connection = connectionFault(d.state, database);
  if (!connection.empty()) return connection;
  if (isOneOf(d.state, {"55P03", "40P01", "40001", "HYT00", "HYT01"}))
    return database + "は他のプログラムが使用中です";
  if (isOneOf(d.state, {"25006", "HY092"}) && !table.empty())
    return database + "は読み取り専用のため書き込めません";
  if (d.state == "25006") return database + "は読み取り専用のため書き込めません";
  if (d.state == "42501") return target + "を扱う権限がありません";
  if (d.state == "53100") return "ディスクの空き容量が足りないため、" + database + "に書き込めません";
  if (isOneOf(d.state, {"HY001", "53200"})) return "メモリが足りないため、" + database + "を扱えません";
  if (d.state.starts_with("23")) return target + "の制約に反するため書き込めません";
  if (d.state.starts_with("22") || d.state == "42804") return target + "の列の型に合わない値です";
  if (d.state.starts_with("58") || d.state.starts_with("XX")) return database + "の読み書きに失敗しました";
  return statementFault(d, database);
}

bool holds(std::string_view text, std::string_view part) { return text.find(part) != std::string_view::npos; }

/// PostgreSQL's driver tells a password that is refused in words alone.
Cause causeOf(const OdbcDiagnosis& d) {
  if (isOneOf(d.state, {"IM002", "IM003"})) return Cause::NoDriver;
  if (d.state.starts_with("28") || holds(d.words, "password")) return Cause::NoLogin;
  if (d.state.starts_with("08") || d.state == "3D000") return Cause::Unreachable;
  if (isOneOf(d.state, {"55P03", "40P01", "40001", "HYT00", "HYT01"})) return Cause::InUse;
  return d.state == "42501" ? Cause::Forbidden : Cause::Other;
}

}  // namespace

Error odbcError(const OdbcDiagnosis& diagnosis, std::string_view file, std::string_view table) {
  return Error(sentence(diagnosis, "データベース" + quoted(file), table) + ": " + diagnosis.words,
               causeOf(diagnosis));
}

bool isConnectionLost(const OdbcDiagnosis& diagnosis) {
  return diagnosis.state.starts_with("08") || diagnosis.state.starts_with("57P");
}

bool isMediumFailure(const OdbcDiagnosis& diagnosis) {
  const auto begins = [&diagnosis](const char* part) { return diagnosis.state.starts_with(part); };
  return diagnosis.state == "HY001" || isConnectionLost(diagnosis) || begins("53") || begins("58") ||
         begins("XX");
}

}  // namespace db
