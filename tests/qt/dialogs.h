#pragma once

#include <QMainWindow>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "job/context.h"
#include "qt/host.h"
#include "support/job_file.h"
#include "support/temporary_folder.h"
#include "ui/screen.h"

namespace test {

/// The windows and dialogs beside the screens: those that a screen opens, and those in which jobs are opened,
/// made, filled and restored.
class Dialogs {
 public:
  /// A window or dialog, and how it comes into being.
  struct Kind {
    std::string name;
    std::function<std::unique_ptr<QWidget>()> make;
  };

  /// `parent` is the window of `screen`, which can be printed and has saved results.
  Dialogs(QMainWindow& parent, ui::Screen& screen, qt::Host& host);

  const std::vector<Kind>& kinds() const { return kinds_; }

 private:
  void addThoseOfAScreen(QMainWindow& parent, ui::Screen& screen, qt::Host& host);
  void addThoseOfJobs();

  JobFile job_;
  TemporaryFolder folder_;
  std::vector<Kind> kinds_;
};

}  // namespace test
