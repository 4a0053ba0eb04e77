#include "start/job_menu.h"

#include <QMainWindow>
#include <QMenuBar>
#include <utility>

#include "start/intake_dialog.h"

namespace start {

JobMenu::JobMenu(QMainWindow& window, const job::JobContext& context, std::string settingsFile,
                 FileDialogs dialogs)
    : QMenu(QStringLiteral("ジョブ(&J)"), &window),
      window_(window),
      path_(context.gDbPath),
      jobId_(context.gJobId),
      settingsFile_(std::move(settingsFile)),
      dialogs_(std::move(dialogs)) {
  setObjectName(QStringLiteral("jobMenu"));
  auto* intake = addAction(QStringLiteral("観測成果の取り込み(&I)..."), this, &JobMenu::takeObservationsIn);
  intake->setObjectName(QStringLiteral("takeObservationsIn"));
  window.menuBar()->addMenu(this);
}

void JobMenu::takeObservationsIn() {
  auto* dialog = new IntakeDialog(path_, jobId_, settingsFile_, dialogs_, &window_);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->open();
}

}  // namespace start
