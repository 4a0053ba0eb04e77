#pragma once

#include <functional>
#include <string>
#include <vector>

#include "job/context.h"
#include "ui/desktop.h"

namespace test {

/// A calculation's screen as its operator works it: a route or a book is opened and saved.
struct ScreenWork {
  std::string name;
  std::vector<std::string> tables;  ///< that its save writes; the first holds one record for each bench mark
  /// Opens the screen, calls `begin`, then presses "open" and "save" once each. Errors that the screen lets
  /// pass come out as a message.
  std::function<void(const job::JobContext&, ui::Desktop&, const std::function<void()>& begin)> openAndSave;
};

/// The work of all five screens, on a job with the route "R001" of project "1001".
const std::vector<ScreenWork>& screenWorks();

}  // namespace test
