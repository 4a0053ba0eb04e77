#include <array>
#include <fstream>

#include "db/database.h"
#include "db/sqlite_database.h"
#include "platform/files.h"

namespace db {
namespace {

/// The kinds of database file that can be opened.
enum class Engine { None, Sqlite };

constexpr std::string_view sqliteMark("SQLite format 3\0", 16);

/// Every engine is known by what its files begin with.
Engine engineOf(std::string_view beginning) {
  return beginning == sqliteMark ? Engine::Sqlite : Engine::None;
}

std::string named(std::string_view path) { return "データベース「" + std::string(path) + "」"; }

void requirePath(std::string_view path) {
  if (path.empty()) throw Error("データベースのパスが指定されていません。");
  if (path.find('\0') != std::string_view::npos)
    throw Error(named(path.data()) + "のパスに使えない文字があります。");
}

bool exists(std::string_view path) {
  std::error_code ignored;
  return std::filesystem::exists(platform::nativePath(path), ignored);
}

void requireFile(std::string_view path) {
  requirePath(path);
  if (platform::isFolder(path))
    throw Error("「" + std::string(path) + "」はフォルダです。データベースではありません。");
  if (!exists(path)) throw Error(named(path) + "が見つかりません。");
  if (!platform::isFile(path)) throw Error("「" + std::string(path) + "」はファイルではありません。");
}

/// The bytes by which an engine knows its files.
std::string beginningOf(std::string_view path) {
  std::ifstream file(platform::nativePath(path), std::ios::binary);
  if (!file) throw Error(named(path) + "を読む権限がありません。");
  std::array<char, sqliteMark.size()> bytes{};
  file.read(bytes.data(), bytes.size());
  return {bytes.data(), static_cast<std::size_t>(file.gcount())};
}

}  // namespace

std::unique_ptr<Database> openDatabase(std::string_view path) {
  requireFile(path);
  const std::string beginning = beginningOf(path);
  if (beginning.empty())
    throw Error("「" + std::string(path) + "」は空のファイルで、データベースではありません。");
  switch (engineOf(beginning)) {
    case Engine::Sqlite:
      return openSqliteDatabase(path);
    case Engine::None:
      break;
  }
  throw Error("「" + std::string(path) + "」はデータベースではありません。");
}

std::unique_ptr<Database> createDatabase(std::string_view path) {
  requirePath(path);
  if (exists(path)) throw Error("「" + std::string(path) + "」はすでにあるため、データベースを作れません。");
  return createSqliteDatabase(path);
}

}  // namespace db
