#include "jobs/safe_copy.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <iterator>
#include <map>
#include <sstream>

#include "db/database.h"
#include "exchange/copy.h"
#include "exchange/create.h"
#include "job/schema.h"
#include "jobs/recent.h"
#include "open/copy.h"
#include "open/open.h"
#include "platform/files.h"

namespace jobs {
namespace {

constexpr const char* extension = ".sqlite";

std::string stemOf(const std::string& path) { return platform::pathText(platform::nativePath(path).stem()); }

/// "20261122-093000"
std::string stamp() {
  std::string time = timeNow();
  std::erase_if(time, [](char c) { return c == '-' || c == ':'; });
  std::replace(time.begin(), time.end(), ' ', '-');
  return time;
}

/// A path in the folder of copies under which nothing stands yet.
std::string newCopyPath(const std::string& path) {
  const std::string base = copyFolder(path) + "/" + stemOf(path) + "_" + stamp();
  std::string made = base + extension;
  for (int number = 2; exchange::isThere(made); ++number)
    made = base + "-" + std::to_string(number) + extension;
  return made;
}

const std::string& wordsFor(const std::string& table) {
  static const std::map<std::string, std::string> words{{"JobData", "ジョブ"},
                                                        {"A_ExePath", "データフォルダ"},
                                                        {"KansokuSeikaData", "観測成果"},
                                                        {"KansokuData", "往復の観測"},
                                                        {"EditTextData", "見出し"},
                                                        {"ComKansokushameiMst", "観測者の一覧"},
                                                        {"ComShiyouKIkaimeiMst", "器械の一覧"},
                                                        {"ComShiyouHyoushakuMeiMst", "標尺の一覧"},
                                                        {"KansokuSeikaDataSeihyou", "正標高補正の結果"},
                                                        {"KansokuSeikaDataDaen", "楕円補正の結果"},
                                                        {"DaenHoseiChiHyouData", "楕円補正の区間"},
                                                        {"KansokuSeikaDataHend", "変動補正の結果"},
                                                        {"HendHoseiChiHyouData", "変動補正の区間"},
                                                        {"KansokuSeikaDataTanrosen", "単路線の結果"},
                                                        {"KansokuSeikaDataHKSNB", "変動量計算簿"},
                                                        {"KansokuKikan", "計算簿の期間"}};
  const auto found = words.find(table);
  return found == words.end() ? table : found->second;
}

using Columns = std::vector<db::ColumnDefinition>;

Columns columnsOf(db::Database& database, const std::string& table) {
  try {
    return database.tableDefinition(table);
  } catch (const db::Error&) {
    return {};
  }
}

/// What stands for each record of a table, in order: the same for records that hold the same in these
/// columns.
std::vector<std::size_t> records(db::Database& database, const std::string& table, const Columns& columns) {
  std::vector<std::size_t> result;
  const auto found = database.openRecordset("SELECT * FROM " + table);
  for (; !found->eof(); found->moveNext()) {
    std::string all;
    for (const db::ColumnDefinition& column : columns) {
      const db::Value value = found->field(column.name);
      const std::string text = value.isNull() ? std::string() : value.text();
      all += (value.isNull() ? "n" : std::to_string(text.size()) + ":") + text;
    }
    result.push_back(std::hash<std::string>()(all));
  }
  found->close();
  std::sort(result.begin(), result.end());
  return result;
}

std::int64_t onlyIn(const std::vector<std::size_t>& some, const std::vector<std::size_t>& others) {
  std::vector<std::size_t> rest;
  std::set_difference(some.begin(), some.end(), others.begin(), others.end(), std::back_inserter(rest));
  return static_cast<std::int64_t>(rest.size());
}

TableDifference differenceOf(db::Database& job, db::Database& copy, const std::string& table) {
  const Columns inCopy = columnsOf(copy, table);
  if (inCopy.empty()) return {};
  const Columns inJob = columnsOf(job, table);
  Columns both;
  std::copy_if(inCopy.begin(), inCopy.end(), std::back_inserter(both), [&inJob](const auto& column) {
    return std::any_of(inJob.begin(), inJob.end(),
                       [&column](const auto& one) { return one.name == column.name; });
  });
  const auto theirs = records(copy, table, inJob.empty() ? inCopy : both);
  const auto ours = inJob.empty() ? std::vector<std::size_t>() : records(job, table, both);
  return {wordsFor(table), static_cast<std::int64_t>(ours.size()), static_cast<std::int64_t>(theirs.size()),
          onlyIn(ours, theirs), onlyIn(theirs, ours)};
}

}  // namespace

std::string copyFolder(const std::string& path) {
  const std::filesystem::path folder = platform::nativePath(path).parent_path();
  return platform::pathText(folder / platform::nativePath(stemOf(path) + "_控え"));
}

std::string keepCopy(const std::string& path) {
  db::openDatabase(path)->close();  // what cannot be opened leaves no folder behind
  const std::string made = newCopyPath(path);
  platform::makeFolder(copyFolder(path));
  platform::GrowingFile growing(made);
  if (!db::copyByEngine(path, growing.path())) {
    std::ostringstream told;
    exchange::copyJob(path, growing.path(), false, told);
  }
  growing.finish();
  return made;
}

std::vector<std::string> copiesOf(const std::string& path) {
  std::vector<std::string> copies;
  std::error_code ignored;
  const std::filesystem::directory_iterator folder(platform::nativePath(copyFolder(path)), ignored);
  for (const auto& entry : folder)
    if (entry.path().extension() == extension) copies.push_back(platform::pathText(entry.path()));
  std::sort(copies.rbegin(), copies.rend());
  return copies;
}

std::vector<TableDifference> differences(const std::string& path, const std::string& copy) {
  const auto job = db::openDatabase(path);
  const auto kept = db::openDatabase(copy);
  std::vector<TableDifference> found;
  for (const job::TableSchema& table : job::schemaTables()) {
    const TableDifference one = differenceOf(*job, *kept, table.name);
    if (one.onlyInJob > 0 || one.onlyInCopy > 0) found.push_back(one);
  }
  kept->close();
  job->close();
  return found;
}

std::string restore(const std::string& path, const std::string& copy) {
  std::string before = keepCopy(path);
  std::ostringstream told;
  exchange::copyJob(copy, path, true, told);
  return before;
}

}  // namespace jobs
