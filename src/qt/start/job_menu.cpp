#include "start/job_menu.h"

#include <QDir>
#include <QMainWindow>
#include <QMenuBar>
#include <QMessageBox>
#include <utility>

#include "jobs/safe_copy.h"
#include "qt/convert.h"
#include "start/hourglass.h"
#include "start/intake_dialog.h"
#include "start/restore_dialog.h"

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
  add("takeObservationsIn", QStringLiteral("観測成果の取り込み(&I)..."), &JobMenu::takeObservationsIn);
  addSeparator();
  add("keepCopy", QStringLiteral("作業の控えをとる(&B)"), &JobMenu::keepCopy);
  add("restore", QStringLiteral("控えから戻す(&R)..."), &JobMenu::restore);
  window.menuBar()->addMenu(this);
}

void JobMenu::add(const char* name, const QString& caption, void (JobMenu::*what)()) {
  addAction(caption, this, what)->setObjectName(QLatin1String(name));
}

void JobMenu::show(QDialog* dialog) {
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->open();
}

void JobMenu::takeObservationsIn() {
  show(new IntakeDialog(path_, jobId_, settingsFile_, dialogs_, &window_));
}

void JobMenu::restore() { show(new RestoreDialog(path_, dialogs_, &window_)); }

void JobMenu::keepCopy() {
  QString words;
  auto icon = QMessageBox::Information;
  try {
    const Hourglass hourglass;
    words = QStringLiteral("控えをとりました。\n%1")
                .arg(QDir::toNativeSeparators(qt::toQString(jobs::keepCopy(path_))));
  } catch (const std::exception& error) {
    words = QStringLiteral("控えをとれません。\n") + qt::toQString(error.what());
    icon = QMessageBox::Critical;
  }
  auto* box = new QMessageBox(icon, QStringLiteral("作業の控え"), words, QMessageBox::Ok, &window_);
  box->setTextFormat(Qt::PlainText);
  show(box);
}

}  // namespace start
