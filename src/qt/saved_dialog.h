#pragma once

#include <QComboBox>
#include <QDialog>
#include <QDialogButtonBox>
#include <QListWidget>

#include "qt/output_act.h"
#include "report/saved_results.h"

namespace qt {

/// Prints and exports saved results that are not open: the operator says which, and how.
class SavedDialog : public QDialog {
  Q_OBJECT

 public:
  enum class What {
    Routes,  ///< saved routes, chosen from a list, in one document
    List     ///< the results list of one project or of all
  };

  /// `results` must outlive this dialog. Raises db::Error.
  SavedDialog(QWidget& parent, const report::SavedResults& results, What what, Host& host,
              ui::Desktop& desktop);

  /// What has been chosen, as a document.
  report::Document document(const report::Progress& progress) const;

 private:
  void offerRoutes();
  void offerProjects();
  void addActs();
  void addAct(QDialogButtonBox& box, const QString& text, const std::function<void()>& act);
  void tellWhetherAny();

  const report::SavedResults& results_;
  const What what_;
  OutputAct act_;
  QListWidget* routes_ = nullptr;
  QComboBox* projects_ = nullptr;
  QDialogButtonBox& box_;
};

}  // namespace qt
