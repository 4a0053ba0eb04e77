#pragma once

#include <functional>

namespace qt {

/// What the windows ask of the one who hosts them all.
class Host {
 public:
  virtual ~Host() = default;

  /// Runs an act of the operator on the program: an error that nothing in the program traps ends here and is
  /// reported, never in the toolkit's event loop; afterwards every window shows the new state. While an act
  /// is under way (it may wait for a message box or let windows breathe) further ones are passed over.
  virtual void act(const std::function<void()>& what) = 0;

  /// True while an act is under way.
  virtual bool busy() const = 0;

  /// A control is other than its widget shows: show it at the next turn of the event loop at the latest.
  virtual void stale() = 0;
};

}  // namespace qt
