#pragma once

#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "hksnb/distances.h"
#include "hksnb/kind.h"
#include "job/context.h"
#include "ui/grid.h"

namespace hksnb {

/// What a diagram that follows the grid needs of the database, read once and kept.
class Remembered {
 public:
  explicit Remembered(const job::JobContext& context) : context_(context) {}

  /// The bench marks of the grid with their distances, read anew where the grid has others than before.
  const std::vector<BookPoint>& points(const ui::Grid& grid);

  /// A stored book. Raises db::Error.
  const ui::Grid& book(Kind kind, const std::string& number);

  /// Another book has been opened, or one has been stored: all is read anew.
  void forget();

 private:
  const job::JobContext& context_;
  std::vector<std::string> names_;  // of the bench marks
  std::vector<BookPoint> points_;
  std::map<std::pair<Kind, std::string>, std::unique_ptr<ui::Grid>> books_;
};

}  // namespace hksnb
