#pragma once

#include <optional>
#include <string>
#include <vector>

#include "intake/columns.h"

namespace jobs {

/// Which headings an operator has matched to fields by hand, in the settings file of the user: an office's
/// tables look alike, and what was told once is known the next time. Each heading has a line of its own
/// there.
class ColumnMemory {
 public:
  /// `settingsFile`: path text; "" remembers nothing.
  explicit ColumnMemory(std::string settingsFile);

  /// Matches headings as the operator has done before, and by their names where he has not.
  intake::Matching match(const std::vector<std::string>& headings) const;
  /// A column under this heading is read as `field`; nothing: it is left out.
  void remember(const std::string& heading, std::optional<intake::Field> field);

 private:
  std::string file_;
};

}  // namespace jobs
