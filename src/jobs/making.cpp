#include "jobs/making.h"

#include <algorithm>
#include <filesystem>
#include <string_view>
#include <utility>

#include "db/database.h"
#include "exchange/create.h"
#include "platform/files.h"
#include "sample/sample.h"
#include "text/error.h"
#include "text/padding.h"

namespace jobs {
namespace {

constexpr const char* extension = ".sqlite";
constexpr std::string_view forbidden = "/\\:*?\"<>|";  // in names of files, on any system

bool endsAsSqlite(std::string_view name) {
  return text::equalIgnoringCase(text::right(name, 7), extension) ||
         text::equalIgnoringCase(text::right(name, 3), ".db");
}

std::string plain(const std::string& text) { return std::string(text::trimmed(text)); }

db::Value valueOf(const std::string& text) {
  const std::string words = plain(text);
  return words.empty() ? db::Value() : db::Value(words);
}

/// The folder that pictures of the job are filed in: beside the file, absolute, "\" between folders and
/// behind it. It is made when the first picture comes.
std::string dataFolder(const std::string& path) {
  std::filesystem::path folder = std::filesystem::absolute(platform::nativePath(path)).lexically_normal();
  folder.replace_extension();
  std::string text = platform::pathText(folder) + "_data\\";
  std::replace(text.begin(), text.end(), '/', '\\');
  return text;
}

using Fields = std::vector<std::pair<const char*, db::Value>>;

void add(db::Database& database, const std::string& table, const Fields& fields) {
  const auto records = database.openRecordset("SELECT * FROM " + table, db::Access::Edit);
  records->addNew();
  for (const auto& [column, value] : fields) records->set(column, value);
  records->update();
  records->close();
}

/// A list of the heading gets its one entry, number 1, where something is to be entered. Returns the number.
db::Value addToList(db::Database& database, const std::string& table, const char* number, Fields fields) {
  const bool any =
      std::any_of(fields.begin() + 1, fields.end(), [](const auto& field) { return !field.second.isNull(); });
  if (!any) return {};
  fields.emplace_back(number, 1.0);
  add(database, table, fields);
  return 1.0;
}

void fill(db::Database& database, const NewJob& job, const std::string& path) {
  const db::Value id = plain(job.id);
  add(database, "JobData",
      {{"JobId", id},
       {"作業名", valueOf(job.title)},
       {"Tokyu", static_cast<double>(job.grade)},
       {"JikkouFlg", 1.0}});
  add(database, "A_ExePath", {{"Exe_Dir", dataFolder(path)}});
  const db::Value observer = addToList(database, "ComKansokushameiMst", "観測者No",
                                       {{"JobId", id}, {"観測者名", valueOf(job.observer)}});
  const db::Value instrument = addToList(
      database, "ComShiyouKIkaimeiMst", "器械No",
      {{"JobId", id}, {"器械名", valueOf(job.instrument)}, {"器械番号", valueOf(job.instrumentNumber)}});
  const db::Value staff =
      addToList(database, "ComShiyouHyoushakuMeiMst", "標尺No",
                {{"JobId", id}, {"標尺名", valueOf(job.staff)}, {"標尺番号", valueOf(job.staffNumber)}});
  add(database, "EditTextData",
      {{"JobId", id},
       {"作業名", valueOf(job.title)},
       {"計画機関名", valueOf(job.planner)},
       {"作業機関名", valueOf(job.surveyor)},
       {"作業地域", valueOf(job.area)},
       {"観測者No", observer},
       {"器械No", instrument},
       {"標尺No", staff}});
}

std::vector<std::string> faultsOfFile(const NewJob& job) {
  std::vector<std::string> faults;
  const std::string name = plain(job.name);
  if (name.empty()) faults.emplace_back("ファイル名を入力してください。");
  if (name.find_first_of(forbidden) != std::string::npos)
    faults.emplace_back("ファイル名に / \\ : * ? \" < > | は使えません。");
  if (plain(job.folder).empty())
    faults.emplace_back("保存する場所を選んでください。");
  else if (!platform::isFolder(plain(job.folder)))
    faults.push_back("フォルダ「" + plain(job.folder) + "」がありません。");
  if (faults.empty() && exchange::isThere(pathOf(job)))
    faults.push_back("「" + pathOf(job) + "」はすでにあります。別の名前にしてください。");
  return faults;
}

}  // namespace

std::string pathOf(const NewJob& job) {
  std::string folder = plain(job.folder);
  while (folder.size() > 1 && (folder.back() == '/' || folder.back() == '\\')) folder.pop_back();
  const std::string name = plain(job.name);
  return folder + (folder == "/" ? "" : "/") + name + (endsAsSqlite(name) ? "" : extension);
}

std::vector<std::string> faultsOf(const NewJob& job) {
  std::vector<std::string> faults = faultsOfFile(job);
  if (text::length(plain(job.id)) != 1) faults.emplace_back("ジョブ番号は 1 文字です。");
  if (job.grade < 1 || job.grade > 4) faults.emplace_back("等級は 1 から 4 です。");
  return faults;
}

std::string makeJob(const NewJob& job) {
  const std::vector<std::string> faults = faultsOf(job);
  if (!faults.empty()) throw text::RuntimeError(text::ErrorCode::PathNotFound, faults.front());
  const std::string path = pathOf(job);
  exchange::createJob(path, [&](db::Database& database) { fill(database, job, path); });
  return path;
}

std::string sampleJob(const std::string& folder, const std::string& programFolder) {
  if (!platform::isFolder(folder))
    throw text::RuntimeError(text::ErrorCode::PathNotFound, "フォルダ「" + folder + "」がありません。");
  const std::string own = folder + "/seikahyou-sample";
  std::string path = own + "/job.sqlite";
  if (!exchange::isThere(path)) sample::makeSampleJob({own, std::nullopt, std::nullopt, {}}, programFolder);
  return path;
}

}  // namespace jobs
