#include "shell/start_up.h"

#include "job/selection.h"
#include "open/open.h"
#include "platform/files.h"
#include "text/error.h"
#include "text/number.h"
#include "text/padding.h"

namespace shell {
namespace {

/// An error of a kind, with what it is about after its standard description.
text::RuntimeError about(text::ErrorCode code, const std::string& what) {
  return {code, text::description(code) + what};
}

/// Job and grade from the first line of the job-selection file: its first character and its last.
void readSelectionFile(const std::string& file, job::JobContext& context) {
  const auto line = platform::firstLine(file);
  if (!line)
    throw text::RuntimeError(text::ErrorCode::FileNotFound,
                             "「" + file + "」があるのに読めません。読む権限があるか、ほかのプログラムが" +
                                 "使っていないかを確かめてください。");
  const std::string first(text::left(*line, 1));
  context.gJobId = first;  // told even where the grade is none
  context.gTokyu = job::selectionOf(*line, file).grade;
}

std::int16_t grade(const std::string& tokyu) {
  try {
    return text::readInt16(tokyu);
  } catch (const text::RuntimeError& error) {
    throw about(error.code(), "JobData の Tokyu「" + tokyu + "」は等級ではありません。");
  }
}

/// Job and grade of the job that the job table marks for execution.
void readJobTable(job::JobContext& context) {
  const auto database = db::openDatabase(context.gDbPath);
  const auto jobs = database->openRecordset("SELECT * FROM JobData WHERE JikkouFlg = 1");
  if (!jobs->eof()) {
    context.gJobId = jobs->field("JobId").text();
    context.gTokyu = grade(jobs->field("Tokyu").text());
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
      readSelectionFile(file, context);
    } else if (commandLine.chosen) {
      context.gJobId = commandLine.chosen->id;
      context.gTokyu = commandLine.chosen->grade;
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
