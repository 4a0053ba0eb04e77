#include "start/new_job_dialog.h"

#include <QDir>
#include <utility>

#include "qt/convert.h"
#include "start/deaf.h"
#include "start/hourglass.h"
#include "ui_NewJob.h"

namespace start {
namespace {

std::string textOf(const QLineEdit* box) { return qt::fromQString(box->text()); }

}  // namespace

NewJobDialog::NewJobDialog(const QString& folder, FileDialogs dialogs, QWidget* parent)
    : QDialog(parent), form_(std::make_unique<Ui::NewJob>()), dialogs_(std::move(dialogs)) {
  form_->setupUi(this);
  form_->folder->setText(QDir::toNativeSeparators(folder));
  form_->fault->hide();
  QPalette wrong = form_->fault->palette();
  wrong.setColor(QPalette::WindowText, wrong.color(QPalette::BrightText));
  form_->fault->setPalette(wrong);
  connect(form_->browse, &QPushButton::clicked, this, &NewJobDialog::browse);
  connect(form_->make, &QPushButton::clicked, this, &NewJobDialog::make);
  connect(form_->cancel, &QPushButton::clicked, this, &QDialog::reject);
  form_->name->setFocus();
}

NewJobDialog::~NewJobDialog() { becomeDeaf(*this); }

jobs::NewJob NewJobDialog::entered() const {
  jobs::NewJob job;
  job.folder = qt::fromQString(QDir::fromNativeSeparators(form_->folder->text()));
  job.name = textOf(form_->name);
  job.id = textOf(form_->jobId);
  job.grade = static_cast<std::int16_t>(form_->grade->currentIndex() + 1);
  job.title = textOf(form_->title);
  job.planner = textOf(form_->planner);
  job.surveyor = textOf(form_->surveyor);
  job.area = textOf(form_->area);
  job.observer = textOf(form_->observer);
  job.instrument = textOf(form_->instrument);
  job.instrumentNumber = textOf(form_->instrumentNumber);
  job.staff = textOf(form_->staff);
  job.staffNumber = textOf(form_->staffNumber);
  return job;
}

void NewJobDialog::browse() {
  const QString folder = dialogs_.folder(this, QStringLiteral("ジョブを保存する場所"), form_->folder->text());
  if (!folder.isEmpty()) form_->folder->setText(QDir::toNativeSeparators(folder));
}

void NewJobDialog::make() {
  std::string path;
  try {
    const Hourglass hourglass;
    path = jobs::makeJob(entered());
  } catch (const std::exception& error) {
    form_->fault->setText(qt::toQString(error.what()));
    form_->fault->show();
    return;
  }
  accept();
  if (made_) made_(path);
}

}  // namespace start
