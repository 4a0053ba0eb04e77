#pragma once

#include <string>
#include <string_view>

#include "open/open.h"
#include "platform/files.h"
#include "shell/start_up.h"
#include "support/recording_desktop.h"
#include "support/temporary_folder.h"

namespace test {

/// Everything a start needs: a program folder, a job database with the tables that start-up reads, and a
/// desktop that remembers. Job "9" of grade 2 is marked for execution, the data folder is "C:\測量\".
class StartDesk {
 public:
  StartDesk() {
    platform::makeFolder(programFolder());
    db::createDatabase(dbPath())->close();
    sql("CREATE TABLE JobData (JobId TEXT, Tokyu INTEGER, JikkouFlg INTEGER)");
    sql("CREATE TABLE A_ExePath (Exe_Dir TEXT)");
    sql("INSERT INTO JobData VALUES ('7', 1, 0)");
    sql("INSERT INTO JobData VALUES ('9', 2, 1)");
    sql("INSERT INTO A_ExePath VALUES ('C:\\測量\\')");
  }

  std::string dbPath() const { return folder.path("ジョブ 1.sqlite"); }
  std::string programFolder() const { return folder.path("program"); }
  shell::CommandLine commandLine() const { return {dbPath(), programFolder()}; }

  void sql(std::string_view statement) const {
    const auto database = db::openDatabase(dbPath());
    database->execute(statement);
    database->close();
  }

  /// Puts a job-selection file with these bytes into the program folder.
  void select(std::string_view bytes) const { folder.write("program/JobSel.txt", bytes); }

  TemporaryFolder folder;
  RecordingDesktop desktop;
};

}  // namespace test
