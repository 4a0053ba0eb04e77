#pragma once

#include <QDialog>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "jobs/observation_table.h"
#include "start/file_dialogs.h"
#include "start/intake_model.h"

namespace Ui {
class Intake;
}

namespace start {

/// The window 観測成果の取り込み: a block from the clipboard or a CSV file, what of it would be stored, the
/// columns matched, lines that cannot be taken with their reasons, which can be corrected in place. Nothing
/// is stored unless all is; routes that the job holds already are replaced only after a question.
class IntakeDialog : public QDialog {
  Q_OBJECT

 public:
  /// `path`, `jobId`: the job that takes the observations. `settingsFile`: where matches are remembered.
  IntakeDialog(const std::string& path, const std::string& jobId, const std::string& settingsFile,
               FileDialogs dialogs, QWidget* parent);
  ~IntakeDialog() override;

  /// Takes the block on the clipboard.
  void paste();
  /// Stores what stands in the table, after a question where routes are replaced.
  void store();

 private:
  void setUpChoices();
  void setUpTable();
  void readFile();
  void writeTemplate();
  void read(const std::function<void()>& reading);
  void showColumns();
  void showField();
  void chooseField();
  void chooseDefaults();
  void goToNextRefused();
  void showPlan();
  void askToReplace(const std::vector<intake::ExistingRoute>& existing);
  void storeNow(bool replace);
  void say(const QString& words, bool wrong);
  int shownColumn() const;

  std::unique_ptr<Ui::Intake> form_;
  jobs::ObservationTable table_;
  IntakeModel* model_;
  FileDialogs dialogs_;
};

}  // namespace start
