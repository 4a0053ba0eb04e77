#include "open/open.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <optional>

#include "platform/files.h"
#include "platform/input_file.h"
#include "platform/write_obstacle.h"
#include "sqlite/database.h"
#include "text/padding.h"
#ifdef SEIKAHYOU_ODBC
#include "odbc/database.h"
#endif

namespace db {
namespace {

constexpr std::string_view sqliteMark("SQLite format 3\0", 16);

constexpr std::string_view jetMark = "Standard Jet DB";
constexpr std::string_view aceMark = "Standard ACE DB";
constexpr std::size_t accessMarkAt = 4;
constexpr std::size_t longestMark = accessMarkAt + jetMark.size();

bool isDataSourceName(std::string_view path) { return text::equalIgnoringCase(text::right(path, 4), ".dsn"); }

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

void requireReadable(std::string_view path) {
  const auto obstacle = platform::readObstacle(path);
  if (obstacle == platform::ReadObstacle::Denied) throw Error(named(path) + "を読む権限がありません。");
  if (obstacle == platform::ReadObstacle::InUse) throw Error(named(path) + "は他のプログラムが使用中です。");
}

/// The bytes by which an engine knows its files.
std::string beginningOf(std::ifstream& file) {
  std::array<char, longestMark> bytes{};
  file.read(bytes.data(), bytes.size());
  return {bytes.data(), static_cast<std::size_t>(file.gcount())};
}

#ifdef SEIKAHYOU_ODBC
std::unique_ptr<Database> openThroughOdbc(std::string_view path, FileKind kind) {
  if (kind == FileKind::Access) return openAccessFile(path);
  const std::optional<std::string> content = platform::readFile(path);
  if (!content) throw Error(named(path) + "を読み込めません。");
  return openDataSource(path, *content);
}
#else
std::unique_ptr<Database> openThroughOdbc(std::string_view path, FileKind) {
  throw Error(named(path) + "を開くには ODBC が必要ですが、このプログラムは ODBC なしで作られています。");
}
#endif

}  // namespace

/// Every engine is known by what its files begin with, a file data source by its name.
FileKind fileKind(std::string_view path, std::string_view beginning) {
  if (beginning.starts_with(sqliteMark)) return FileKind::Sqlite;
  const std::string_view mark = beginning.substr(std::min(accessMarkAt, beginning.size()));
  if (mark.starts_with(jetMark) || mark.starts_with(aceMark)) return FileKind::Access;
  return isDataSourceName(path) ? FileKind::DataSource : FileKind::Unknown;
}

FileKind kindOfFile(std::string_view path) {
  requireFile(path);
  std::ifstream file(platform::nativePath(path), std::ios::binary);
  if (!file) throw Error(named(path) + "を読み込めません。");
  return fileKind(path, beginningOf(file));
}

std::unique_ptr<Database> openDatabase(std::string_view path) {
  requireFile(path);
  requireReadable(path);
  std::ifstream file(platform::nativePath(path), std::ios::binary);
  if (!file) throw Error(named(path) + "を読み込めません。");
  const std::string beginning = beginningOf(file);
  file.close();  // the engine may want the file for itself
  if (beginning.empty())
    throw Error("「" + std::string(path) + "」は空のファイルで、データベースではありません。");
  switch (const FileKind kind = fileKind(path, beginning)) {
    case FileKind::Sqlite:
      return openSqliteDatabase(path);
    case FileKind::Access:
    case FileKind::DataSource:
      return openThroughOdbc(path, kind);
    case FileKind::Unknown:
      break;
  }
  throw Error("「" + std::string(path) + "」はデータベースではありません。");
}

bool isDatabase(std::string_view path) {
  if (!platform::isFile(path)) return false;
  std::ifstream file(platform::nativePath(path), std::ios::binary);
  return fileKind(path, beginningOf(file)) != FileKind::Unknown;
}

std::unique_ptr<Database> createDatabase(std::string_view path) {
  requirePath(path);
  if (exists(path)) throw Error("「" + std::string(path) + "」はすでにあるため、データベースを作れません。");
  try {
    return createSqliteDatabase(path);
  } catch (const Error&) {
    const platform::WriteObstacle obstacle = platform::writeObstacle(path, 1);
    if (obstacle == platform::WriteObstacle::Failed) throw;
    throw Error(named(path) + "を作れません。" + platform::wordsFor(obstacle));
  }
}

}  // namespace db
