#pragma once

#include <QDialog>
#include <functional>
#include <memory>
#include <vector>

#include "jobs/examine.h"

namespace Ui {
class ChooseJob;
}

namespace start {

/// The list of a database's jobs, of which the operator chooses one for this run.
class ChooseJobDialog : public QDialog {
  Q_OBJECT

 public:
  ChooseJobDialog(std::vector<jobs::JobEntry> entries, QWidget* parent);
  ~ChooseJobDialog() override;

  /// Takes the job that was chosen.
  void whenChosen(std::function<void(const jobs::JobEntry&)> chosen) { chosen_ = std::move(chosen); }

 private:
  void showColumns();
  void choose();

  std::unique_ptr<Ui::ChooseJob> form_;
  std::vector<jobs::JobEntry> entries_;
  std::function<void(const jobs::JobEntry&)> chosen_;
};

}  // namespace start
