#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "db/database.h"
#include "job/context.h"
#include "ui/desktop.h"

namespace shell {

/// A job that the operator has chosen for this run.
struct ChosenJob {
  std::string id;
  std::int16_t grade = 0;
};

/// What the process was started with.
struct CommandLine {
  std::string text;  ///< everything behind the program's name, as it stands: the path of the job database
  std::string programFolder;  ///< the folder that counts as the program's own, without a separator at its end
  /// Stands in for table JobData, never for the job-selection file; nothing where the program was started
  /// with a path.
  std::optional<ChosenJob> chosen = {};
};

/// Takes the database path from the command line: gDbPath is the whole text.
void FcGetCommandLine(const CommandLine& commandLine, job::JobContext& context);

/// Finds the job: gAppPath, then gJobId and gTokyu from the first line of "JobSel.txt" in the program folder
/// where that file stands, else the job that was chosen for this run, else from the job marked for execution
/// in table JobData. Errors are shown in a plain box without title and icon; what was not yet found keeps its
/// value. Returns true always; nobody asks.
bool FcJobSelect(const CommandLine& commandLine, ui::Desktop& desktop, job::JobContext& context);

/// The whole start-up, in its fixed order: command line, job, table names, number formats, the job database
/// opened and kept, data folder. `context` comes with the values of the last start-up, which stay where
/// nothing new is found. Returns the open job database (gDb). Traps nothing: db::Error where the database or
/// table A_ExePath is missing.
std::unique_ptr<db::Database> startUp(const CommandLine& commandLine, ui::Desktop& desktop,
                                      job::JobContext& context);

}  // namespace shell
