#pragma once

#include <utility>

#include "ui/desktop.h"

namespace route {

/// Remembers whether what stands in a screen's grids is the whole of what the operator opened. After an
/// opening that ended with an error the grids hold a part of the records or none of them; a save would
/// replace all of them by that part.
class Opening {
 public:
  /// Runs an opening: `read` fills the grids and returns true where it came to its end without an error. An
  /// opening that finds no records is whole. Errors that `read` raises pass on.
  template <class Read>
  void run(Read&& read) {
    whole_ = false;
    whole_ = std::forward<Read>(read)();
  }

  /// The grids have been emptied on purpose.
  void clear() { whole_ = true; }

  /// False after an opening that ended with an error, until one has succeeded or clear was called.
  bool isWhole() const { return whole_; }

  /// The same, asked before a save: where the answer is no the operator is told why nothing is saved.
  bool maySave(ui::Desktop& desktop) const;

 private:
  bool whole_ = true;
};

}  // namespace route
