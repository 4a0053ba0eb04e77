#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace jobs {

/// Where the copies of the job at `path` lie: a folder beside it, named after it.
std::string copyFolder(const std::string& path);

/// Copies the job at `path` into its folder of copies, as an SQLite file named after the job with date and
/// time. The engine's own safe copy is taken where it has one: others may work meanwhile. Returns the copy's
/// path. Raises text::RuntimeError where that fails; nothing is left of the copy then.
std::string keepCopy(const std::string& path);

/// The copies of the job at `path`, the latest first.
std::vector<std::string> copiesOf(const std::string& path);

/// How a table of a job differs from that of a copy.
struct TableDifference {
  std::string table;            ///< in the operator's words
  std::int64_t inJob = 0;       ///< records
  std::int64_t inCopy = 0;      ///< records
  std::int64_t onlyInJob = 0;   ///< records that the copy does not have like this
  std::int64_t onlyInCopy = 0;  ///< records that the job does not have like this

  bool operator==(const TableDifference&) const = default;
};

/// The tables in which the job at `path` and the copy differ; tables that the copy lacks stay what they are
/// and are none of them. Raises db::Error.
std::vector<TableDifference> differences(const std::string& path, const std::string& copy);

/// Puts the tables of the copy in the place of those of the job at `path`, all or nothing, after a copy has
/// been made of what the job holds now. Returns the path of that copy. Raises text::RuntimeError; the job is
/// what it was then.
std::string restore(const std::string& path, const std::string& copy);

}  // namespace jobs
