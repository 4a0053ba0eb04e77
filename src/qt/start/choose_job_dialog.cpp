#include "start/choose_job_dialog.h"

#include <QHeaderView>
#include <utility>

#include "qt/convert.h"
#include "start/deaf.h"
#include "ui_ChooseJob.h"

namespace start {

ChooseJobDialog::ChooseJobDialog(std::vector<jobs::JobEntry> entries, QWidget* parent)
    : QDialog(parent), form_(std::make_unique<Ui::ChooseJob>()), entries_(std::move(entries)) {
  form_->setupUi(this);
  for (const jobs::JobEntry& entry : entries_)
    new QTreeWidgetItem(form_->jobs, {qt::toQString(entry.id), qt::toQString(entry.title),
                                      QStringLiteral("%1級").arg(entry.grade),
                                      entry.executed ? QStringLiteral("あり") : QString()});
  showColumns();
  form_->jobs->setCurrentItem(form_->jobs->topLevelItem(0));
  connect(form_->jobs, &QTreeWidget::itemDoubleClicked, this, &ChooseJobDialog::choose);
  connect(form_->open, &QPushButton::clicked, this, &ChooseJobDialog::choose);
  connect(form_->cancel, &QPushButton::clicked, this, &QDialog::reject);
  form_->jobs->setFocus();
}

/// The name of the work takes the room that the others leave.
void ChooseJobDialog::showColumns() {
  QHeaderView& header = *form_->jobs->header();
  header.setStretchLastSection(false);
  for (const int column : {0, 2, 3}) header.setSectionResizeMode(column, QHeaderView::ResizeToContents);
  header.setSectionResizeMode(1, QHeaderView::Stretch);
}

ChooseJobDialog::~ChooseJobDialog() { becomeDeaf(*this); }

void ChooseJobDialog::choose() {
  const int at = form_->jobs->indexOfTopLevelItem(form_->jobs->currentItem());
  if (at < 0) return;
  accept();
  if (chosen_) chosen_(entries_[static_cast<std::size_t>(at)]);
}

}  // namespace start
