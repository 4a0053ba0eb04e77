#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "db/database.h"
#include "db/sql.h"
#include "job/context.h"
#include "route/saved_state.h"
#include "route/selection.h"
#include "ui/desktop.h"
#include "ui/grid.h"

namespace route {

/// The records of one table that a save replaces.
struct SavedPart {
  std::string what;        ///< as operators call it, "路線 01A00101"
  std::string table;       ///< the table's name
  db::Sql records;         ///< "SELECT * FROM table WHERE …", those that go
  std::size_t writes = 0;  ///< how many take their place
};

using SavedParts = std::vector<SavedPart>;

/// The bench marks of `grid`, as saveBenchMarks puts them in the place of those in `table`. `flagCol`: the
/// column of the route flags.
SavedPart savedBenchMarks(const job::JobContext& context, const Selection& selection, std::string what,
                          const std::string& table, const ui::Grid& grid, int flagCol);

/// Watches the saved records of what is open on a screen: a save asks where they are no longer those that the
/// loading saw, or where fewer of them would be left.
class SavedWatch {
 public:
  /// Remembers what is saved now. Raises db::Error; then, and before the first call, nothing is known of what
  /// others save.
  void look(std::string_view dbPath, const SavedParts& parts);
  /// The same behind a loading or a save, which has told all that there is to tell: without safeguards
  /// nothing is looked at, and what cannot be read, for want of memory too, is not known.
  void lookBehind(const ui::Desktop& desktop, std::string_view dbPath, const SavedParts& parts);
  /// Nothing is open any more.
  void forget();
  /// What the operator should know of the job, looked at along with the records: that nothing can be saved to
  /// it at present, and why; "" where nothing keeps him from it.
  std::string notice() const;

  /// Asks what has to be asked before the parts are replaced; true where the operator goes on. What is saved
  /// meanwhile, while a question stands, is asked about anew. Reads nothing without safeguards. Raises
  /// db::Error.
  bool maySave(ui::Desktop& desktop, std::string_view dbPath, const SavedParts& parts) const;

 private:
  using States = std::vector<SavedState>;

  static States read(db::Database& database, const SavedParts& parts);
  static States read(std::string_view dbPath, const SavedParts& parts);
  bool mayReplace(ui::Desktop& desktop, std::string_view dbPath, const SavedParts& parts, States& now) const;

  std::optional<States> seen_;  // by part
  db::WriteBar bar_ = db::WriteBar::None;
};

}  // namespace route
