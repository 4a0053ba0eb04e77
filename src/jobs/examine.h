#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include "db/database.h"

namespace jobs {

/// Why a job cannot be opened, in an operator's words.
struct Trouble {
  std::string cause;   ///< a sentence that names the file
  std::string wayOut;  ///< what can be done about it
};

/// A job in the table JobData.
struct JobEntry {
  std::string id;
  std::string title;
  std::int16_t grade = 0;
  bool executed = false;  ///< marked for execution

  bool operator==(const JobEntry&) const = default;
};

/// What was found at a path.
struct Examination {
  std::optional<Trouble> trouble;  ///< nothing where the job can be opened
  std::string engine;              ///< "SQLite", "Access", "ODBC"; "" where it is none
  std::vector<JobEntry> entries;   ///< in the order of the table
};

/// Looks whether the job at `path` can be opened, as the program's start would open it, and which jobs it
/// holds. Raises nothing.
Examination examine(const std::string& path);

/// What an operator can do where a database of this engine cannot be opened for that cause; for a driver that
/// is missing what it has to be, too.
std::string wayOut(db::Cause cause, const std::string& engine);

/// The entry that is marked for execution, or the only one there is; null where the operator has to choose.
const JobEntry* settledEntry(const std::vector<JobEntry>& entries);

}  // namespace jobs
