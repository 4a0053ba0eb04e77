#pragma once

#include <cstddef>

namespace ui {

/// What shows the operator that a long work goes on, from its beginning for as long as this lives.
class WorkBar {
 public:
  WorkBar() = default;
  virtual ~WorkBar() = default;
  WorkBar(const WorkBar&) = delete;
  WorkBar& operator=(const WorkBar&) = delete;

  /// One more piece of the work is done. Raises text::Cancelled where the operator has given it up.
  virtual void goOn() = 0;
};

}  // namespace ui
