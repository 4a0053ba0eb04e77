#pragma once

#include <QDialog>
#include <functional>
#include <memory>
#include <string>

#include "jobs/making.h"
#include "start/file_dialogs.h"

namespace Ui {
class NewJob;
}

namespace start {

/// The dialog 新しいジョブ: where the job's file is made, what it is called, its grade and the headings of
/// its printed pages. What is wrong is said in the dialog, which stays open then.
class NewJobDialog : public QDialog {
  Q_OBJECT

 public:
  /// `folder`: where the file goes unless the operator says otherwise.
  NewJobDialog(const QString& folder, FileDialogs dialogs, QWidget* parent);
  ~NewJobDialog() override;

  /// Takes the path of the job that was made.
  void whenMade(std::function<void(const std::string& path)> made) { made_ = std::move(made); }

 private:
  jobs::NewJob entered() const;
  void browse();
  void make();

  std::unique_ptr<Ui::NewJob> form_;
  FileDialogs dialogs_;
  std::function<void(const std::string&)> made_;
};

}  // namespace start
