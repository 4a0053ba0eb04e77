#pragma once

#include <memory>
#include <string>
#include <vector>

#include "hksnb/book_job.h"
#include "job/context.h"
#include "ui/desktop.h"
#include "ui/grid.h"

namespace test {

/// What the operator reads once a save is through.
extern const ui::Message savedMessage;

/// The route "R001" of project "1001", observed and with its orthometric results: something to open and to
/// save in every screen.
class WorkedJob : public BookJob {
 public:
  WorkedJob();
};

/// A screen with a route or book chosen in it. Errors that the screen lets pass come out as a message.
class WorkedScreen {
 public:
  virtual ~WorkedScreen() = default;

  /// Presses the button that opens what is chosen, and makes the entries that belong to it.
  virtual void open() = 0;
  virtual void save() = 0;
  /// All cells of what is open, as they stand.
  virtual std::string cells() const = 0;
};

/// A calculation's screen as its operator works it.
struct ScreenWork {
  std::string name;
  std::vector<std::string> tables;  ///< that its save writes; the first holds one record for each bench mark
  /// A new screen, up to the choice of what is to be opened.
  std::unique_ptr<WorkedScreen> (*choose)(const job::JobContext&, ui::Desktop&);

  void openAndSave(const job::JobContext& context, ui::Desktop& desktop) const;
};

/// The work of all five screens.
const std::vector<ScreenWork>& screenWorks();

}  // namespace test
