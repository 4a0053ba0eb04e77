#include "shell/start_up.h"

#include "open/open.h"
#include "platform/files.h"
#include "text/error.h"
#include "text/number.h"
#include "text/padding.h"

namespace shell {
namespace {

/// Job and grade from the line of the job-selection file: its first character and its last.
void readSelectionLine(const std::string& line, job::JobContext& context) {
  context.gJobId = text::left(line, 1);
  const std::string_view last = text::right(line, 1);
  if (last.size() != 1 || last < "0" || last > "9") throw text::RuntimeError(text::ErrorCode::TypeMismatch);
  context.gTokyu = text::readInt16(last);
}

/// Job and grade of the job that the job table marks for execution.
void readJobTable(job::JobContext& context) {
  const auto database = db::openDatabase(context.gDbPath);
  const auto jobs = database->openRecordset("SELECT * FROM JobData WHERE JikkouFlg = 1");
  if (!jobs->eof()) {
    context.gJobId = jobs->field("JobId").text();
    context.gTokyu = text::readInt16(jobs->field("Tokyu").text());
  }
  jobs->close();
  database->close();
}

void readDataFolder(db::Database& database, job::JobContext& context) {
  const auto paths = database.openRecordset("SELECT * FROM A_ExePath");
  if (!paths->eof()) {
    const db::Value folder = paths->field("Exe_Dir");
    if (!folder.isNull()) context.gExeDir = folder.text();
  }
  paths->close();
}

}  // namespace

void FcGetCommandLine(const CommandLine& commandLine, job::JobContext& context) {
  context.gDbPath = commandLine.text;
}

bool FcJobSelect(const CommandLine& commandLine, ui::Desktop& desktop, job::JobContext& context) {
  try {
    context.gAppPath = commandLine.programFolder + "\\";
    const std::string file = context.gAppPath + "JobSel.txt";
    if (platform::isFile(file)) {
      const auto line = platform::firstLine(file);
      if (!line) throw text::RuntimeError(text::ErrorCode::FileNotFound);
      readSelectionLine(*line, context);
    } else {
      readJobTable(context);
    }
  } catch (const text::RuntimeError& error) {
    desktop.message({{}, error.what(), ui::Icon::None});
  }
  return true;
}

std::unique_ptr<db::Database> startUp(const CommandLine& commandLine, ui::Desktop& desktop,
                                      job::JobContext& context) {
  FcGetCommandLine(commandLine, context);
  FcJobSelect(commandLine, desktop, context);
  job::FcSeiReadIni(context.tables);
  job::FcSetNumberFormats(context);
  auto gDb = db::openDatabase(context.gDbPath);
  readDataFolder(*gDb, context);
  return gDb;
}

}  // namespace shell
