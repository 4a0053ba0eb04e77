#pragma once

#include <QMenu>
#include <string>

#include "job/context.h"
#include "start/file_dialogs.h"

class QDialog;
class QMainWindow;

namespace start {

/// The menu ジョブ of the main menu's window: what is done with the open job as a whole.
class JobMenu : public QMenu {
  Q_OBJECT

 public:
  /// Stands in the menu bar of `window`. `context`: of the open job. `settingsFile`: path text.
  JobMenu(QMainWindow& window, const job::JobContext& context, std::string settingsFile,
          FileDialogs dialogs = systemFileDialogs());

 private:
  void add(const char* name, const QString& caption, void (JobMenu::*what)());
  void takeObservationsIn();
  void keepCopy();
  void restore();
  void show(QDialog* dialog);

  QMainWindow& window_;
  std::string path_;
  std::string jobId_;
  std::string settingsFile_;
  FileDialogs dialogs_;
};

}  // namespace start
