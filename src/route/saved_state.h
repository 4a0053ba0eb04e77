#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "db/sql.h"

namespace route {

/// What the saved records of a selection looked like at one moment: a digest of each record. A loading
/// remembers it, and a later save tells by it whether somebody else has saved the same selection since.
/// Nothing is stored for it in the job.
class SavedState {
 public:
  /// Of no record.
  SavedState() = default;

  /// Of the records that `sql` ("SELECT * FROM table WHERE …") selects now, every column of `table` counted.
  /// Raises db::Error.
  static SavedState read(db::Database& database, std::string_view table, const db::Sql& sql);
  /// The same on a connection of its own to the job database at `dbPath`.
  static SavedState read(std::string_view dbPath, std::string_view table, const db::Sql& sql);

  /// How many records there were.
  std::size_t count() const { return digests_.size(); }

  /// How many records differ between two moments; one that was changed counts once, as one that was added or
  /// deleted does. 0 where both are the same, in whatever order the engine gave the records.
  std::size_t differences(const SavedState& other) const;

 private:
  std::vector<std::uint64_t> digests_;  // in ascending order
};

/// What a save is about to do to the saved records of its selection.
struct SavePlan {
  std::size_t deletes = 0;  ///< records that are there and go
  std::size_t writes = 0;   ///< records that take their place

  /// True where fewer records are left than there were.
  bool shrinks() const { return writes < deletes; }
  bool operator==(const SavePlan&) const = default;
};

}  // namespace route
