#pragma once

#include <QDialog>
#include <memory>
#include <string>

#include "start/file_dialogs.h"

namespace Ui {
class Restore;
}

namespace start {

/// The window 控えから戻す: the copies of the open job, what would change, and the way back to one of them.
/// What the job holds before is kept as a copy, too.
class RestoreDialog : public QDialog {
  Q_OBJECT

 public:
  /// `path`: of the open job.
  RestoreDialog(std::string path, FileDialogs dialogs, QWidget* parent);
  ~RestoreDialog() override;

 private:
  void list();
  void add(const std::string& copy);
  void chooseOther();
  void showDifferences();
  void restore();
  void say(const QString& words, bool wrong);
  std::string selected() const;

  std::unique_ptr<Ui::Restore> form_;
  std::string path_;
  FileDialogs dialogs_;
};

}  // namespace start
