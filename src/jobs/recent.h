#pragma once

#include <string>
#include <vector>

namespace jobs {

/// A job that was opened not long ago.
struct RecentJob {
  std::string path;    ///< of its database, as it was opened
  std::string engine;  ///< "SQLite", "Access", "ODBC"
  std::string jobId;   ///< "" where the opening told none
  std::string grade;   ///< "1" … "9", or ""
  std::string opened;  ///< "YYYY-MM-DD HH:MM:SS", the operator's own time

  bool operator==(const RecentJob&) const = default;
};

/// The jobs that were opened last, in the settings file of the user. Each has a line of its own there, so
/// programs that run at once keep each other's, and a damaged line costs one job.
class RecentJobs {
 public:
  static constexpr std::size_t most = 20;

  /// `settingsFile`: path text; "" remembers nothing.
  explicit RecentJobs(std::string settingsFile);

  /// All of them, the last one opened first.
  std::vector<RecentJob> list() const;
  /// Puts a job into the list, in the place of what the list held under its path. The oldest go where there
  /// are more than `most`. Returns false where the file cannot be written.
  bool remember(const RecentJob& job);
  /// Takes the job at `path` off the list. Returns false where the file cannot be written.
  bool forget(const std::string& path);

 private:
  std::string file_;
};

/// The operator's own time now, as RecentJob::opened has it.
std::string timeNow();

}  // namespace jobs
