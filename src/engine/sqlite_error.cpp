#include "engine/sqlite_error.h"

#include <optional>

namespace db {
namespace {

/// SQLite's result codes (https://sqlite.org/rescode.html); its header is seen by src/sqlite alone.
enum : int {
  Permission = 3,
  Busy = 5,
  Locked = 6,
  NoMemory = 7,
  ReadOnly = 8,
  InputOutput = 10,
  Corrupt = 11,
  Full = 13,
  CannotOpen = 14,
  Protocol = 15,
  Constraint = 19,
  Mismatch = 20,
  Authorization = 23,
  NotADatabase = 26,
  ReadOnlyRecovery = ReadOnly | 1 << 8,
  ReadOnlyCannotLock = ReadOnly | 2 << 8,
  ReadOnlyRollback = ReadOnly | 3 << 8,
  ReadOnlyMoved = ReadOnly | 4 << 8,
  ReadOnlyFolder = ReadOnly | 6 << 8
};

std::string quoted(std::string_view name) { return "「" + std::string(name) + "」"; }

/// What stands behind `before` in a message, without the schema's name.
std::optional<std::string_view> behind(std::string_view words, std::string_view before) {
  const std::size_t at = words.find(before);
  if (at == std::string_view::npos) return std::nullopt;
  std::string_view name = words.substr(at + before.size());
  if (name.starts_with("main.")) name.remove_prefix(5);
  return name;
}

/// "table T has no column named C"
std::optional<std::string> missingColumnOfTable(std::string_view words, const std::string& database) {
  static constexpr std::string_view middle = " has no column named ";
  const auto column = behind(words, middle);
  if (!column || !words.starts_with("table ")) return std::nullopt;
  const std::string_view table = words.substr(6, words.find(middle) - 6);
  return database + "のテーブル" + quoted(table) + "に列" + quoted(*column) + "がありません";
}

bool isSyntaxError(std::string_view words) {
  return words.ends_with("syntax error") || words == "incomplete input" ||
         words.starts_with("unrecognized token");
}

/// A fault of the SQL text itself, told by the engine's words alone.
std::string statementFault(std::string_view words, const std::string& database) {
  if (const auto sentence = missingColumnOfTable(words, database)) return *sentence;
  if (const auto name = behind(words, "no such table: "))
    return database + "にテーブル" + quoted(*name) + "がありません";
  if (const auto name = behind(words, "no such column: "))
    return database + "に列" + quoted(*name) + "がありません";
  if (const auto name = behind(words, "ambiguous column name: "))
    return database + "で列" + quoted(*name) + "がどのテーブルのものか決まりません";
  if (const auto name = behind(words, "no such function: "))
    return database + "で関数" + quoted(*name) + "は使えません";
  if (isSyntaxError(words)) return database + "への SQL 文に誤りがあります";
  return database + "で SQL 文を実行できません";
}

/// Why a file that can be read is not written to.
std::string readOnly(int code, const std::string& database) {
  switch (code) {
    case ReadOnlyFolder:
      return database + "のフォルダーに書き込む権限がないため、データベースにも書き込めません";
    case ReadOnlyRecovery:
    case ReadOnlyCannotLock:
    case ReadOnlyRollback:
      return database + "には途中で終わった書き込みが残っていて、読み取り専用のため元に戻せません";
    case ReadOnlyMoved:
      return database + "は、開いたあとで移されたか消されたため書き込めません";
    default:
      return database + "は読み取り専用のため書き込めません";
  }
}

std::string sentence(int code, std::string_view words, const std::string& database, std::string_view table) {
  const std::string target = table.empty() ? database : database + "のテーブル" + quoted(table);
  switch (code & 0xff) {
    case Busy:
    case Locked:
    case Protocol:
      return database + "は他のプログラムが使用中です";
    case ReadOnly:
      return readOnly(code, database);
    case Full:
      return "ディスクの空き容量が足りないため、" + database + "に書き込めません";
    case InputOutput:
      return database + "の読み書きに失敗しました";
    case Corrupt:
      return database + "は壊れています";
    case NotADatabase:
      return database + "の内容はデータベースではありません";
    case CannotOpen:
    case Permission:
    case Authorization:
      return database + "を開けません";
    case Constraint:
      return target + "の制約に反するため書き込めません";
    case Mismatch:
      return target + "の列の型に合わない値です";
    case NoMemory:
      return "メモリが足りないため、" + database + "を扱えません";
    default:
      return statementFault(words, database);
  }
}

Cause causeOf(int code) {
  switch (code & 0xff) {
    case Busy:
    case Locked:
    case Protocol:
      return Cause::InUse;
    case Corrupt:
    case NotADatabase:
      return Cause::Damaged;
    case CannotOpen:
    case Permission:
    case Authorization:
      return Cause::Forbidden;
    default:
      return Cause::Other;
  }
}

}  // namespace

Error sqliteError(int code, std::string_view words, std::string_view file, std::string_view table) {
  return Error(sentence(code, words, "データベース" + quoted(file), table) + ": " + std::string(words),
               causeOf(code));
}

bool isMediumFailure(int code) {
  const int kind = code & 0xff;
  return kind == Full || kind == NoMemory || kind == InputOutput || kind == Corrupt || kind == NotADatabase;
}

}  // namespace db
