#pragma once

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "hksnb/distances.h"
#include "hksnb/kind.h"
#include "hksnb/saved_results.h"
#include "job/context.h"
#include "ui/grid.h"

namespace hksnb {

/// What a diagram and the checks that follow the grid need of the database, read once and kept.
class Remembered {
 public:
  explicit Remembered(const job::JobContext& context) : context_(context) {}

  /// The bench marks of the grid with their distances, read anew where the grid has others than before.
  const std::vector<BookPoint>& points(const ui::Grid& grid);

  /// What the job holds of the routes in the grid, read anew where the grid has other bench marks than
  /// before.
  const SavedResults& saved(const ui::Grid& grid, Kind kind);

  /// A stored book. Raises db::Error.
  const ui::Grid& book(Kind kind, const std::string& number);

  /// Another book has been opened, or one has been stored: all is read anew.
  void forget();

 private:
  void look(const ui::Grid& grid);

  const job::JobContext& context_;
  std::vector<std::string> names_;  // of the bench marks and their places
  std::optional<std::vector<BookPoint>> points_;
  std::optional<SavedResults> saved_;
  std::map<std::pair<Kind, std::string>, std::unique_ptr<ui::Grid>> books_;
};

}  // namespace hksnb
