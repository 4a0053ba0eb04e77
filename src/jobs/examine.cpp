#include "jobs/examine.h"

#include <algorithm>

#include "jobs/strange_file.h"
#include "open/open.h"
#include "platform/files.h"
#include "text/number.h"
#include "text/padding.h"

namespace jobs {
namespace {

constexpr const char* accessName = "Access";
constexpr const char* engineNames[] = {"", "SQLite", accessName, "ODBC"};

constexpr const char* driverWayOut =
    "ドライバーを入れるか、そのドライバーのあるコンピュータで「seikahyou-job copy」を使って SQLite "
    "のファイルに写してください。";
constexpr const char* accessWayOut =
    "Access のドライバーは、プログラムと同じビット数のものだけが使えます。Windows に初めからあるものは 32 "
    "ビット版です。"
    "同じビット数の「Microsoft Access データベース "
    "エンジン」を入れるか、ドライバーと同じビット数のプログラムで開くか、"
    "ドライバーのあるコンピュータで「seikahyou-job copy」を使って SQLite のファイルに写してください。";

std::string quoted(const std::string& path) { return "「" + path + "」"; }

/// The value of a column that older job tables may lack.
std::string textOr(const db::Recordset& records, const char* column) {
  try {
    return std::string(text::trimmed(records.field(column).text()));
  } catch (const db::Error&) {
    return {};
  }
}

std::vector<JobEntry> readEntries(db::Database& database) {
  std::vector<JobEntry> entries;
  const auto records = database.openRecordset("SELECT * FROM JobData");
  for (; !records->eof(); records->moveNext())
    entries.push_back({std::string(text::trimmed(records->field("JobId").text())), textOr(*records, "作業名"),
                       text::readInt16(textOr(*records, "Tokyu")), textOr(*records, "JikkouFlg") == "1"});
  records->close();
  return entries;
}

/// A database without the tables by which the program starts is no job.
std::optional<Trouble> missingTables(db::Database& database, const std::string& path) {
  std::string missing;
  int there = 0;
  for (const char* table : {"JobData", "A_ExePath", "KansokuSeikaData"}) {
    try {
      database.tableDefinition(table);
      ++there;
    } catch (const db::Error&) {
      missing += (missing.empty() ? "" : "、") + std::string(table);
    }
  }
  if (missing.empty()) return std::nullopt;
  if (there == 0)
    return Trouble{quoted(path) + "はデータベースですが、水準測量のジョブではありません。",
                   "ジョブのファイルを選び直してください。"};
  return Trouble{quoted(path) + "はジョブですが、テーブル " + missing + " がありません。",
                 "「seikahyou-job check」で調べられます。控えがあれば、それを開いてください。"};
}

void openAndLook(const std::string& path, Examination& found) {
  const auto database = db::openDatabase(path);
  found.trouble = missingTables(*database, path);
  if (!found.trouble) found.entries = readEntries(*database);
  database->close();
}

}  // namespace

Examination examine(const std::string& path) {
  Examination found;
  if ((found.trouble = strangeFile(path))) return found;
  found.engine = engineNames[static_cast<std::size_t>(db::fileKind(path, beginningOf(path)))];
  try {
    openAndLook(path, found);
  } catch (const db::Error& error) {
    found.trouble = {error.what(), wayOut(error.cause(), found.engine)};
  } catch (const std::exception& error) {
    found.trouble = {quoted(path) + "のジョブを読めません。" + error.what(),
                     wayOut(db::Cause::Other, found.engine)};
  }
  return found;
}

std::string wayOut(db::Cause cause, const std::string& engine) {
  switch (cause) {
    case db::Cause::InUse:
      return "ほかのプログラムでの作業が終わってから、もう一度開いてください。";
    case db::Cause::Damaged:
      return "「作業の控え」などの控えがあれば、それを開いてください。「seikahyou-job "
             "check」で傷みを調べられます。";
    case db::Cause::NoDriver:
      return engine == accessName ? accessWayOut : driverWayOut;
    case db::Cause::NoLogin:
      return "ユーザー名とパスワードを確かめてください。";
    case db::Cause::Unreachable:
      return "サーバーが動いているか、ネットワークにつながっているか、接続のサーバー名・ポート・データベース"
             "名を確"
             "かめてください。";
    case db::Cause::Forbidden:
      return "ファイルとフォルダを読み書きする権限を確かめてください。";
    case db::Cause::Other:
      break;
  }
  return "ファイルを確かめて、もう一度開いてください。";
}

const JobEntry* settledEntry(const std::vector<JobEntry>& entries) {
  if (entries.size() == 1) return &entries.front();
  const auto executed = [](const JobEntry& entry) { return entry.executed; };
  const auto found = std::find_if(entries.begin(), entries.end(), executed);
  const bool one = std::count_if(entries.begin(), entries.end(), executed) == 1;
  return one ? &*found : nullptr;
}

}  // namespace jobs
