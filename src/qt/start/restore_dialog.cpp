#include "start/restore_dialog.h"

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <utility>

#include "jobs/safe_copy.h"
#include "qt/convert.h"
#include "start/deaf.h"
#include "start/hourglass.h"
#include "ui_Restore.h"

namespace start {
namespace {

constexpr int pathRole = Qt::UserRole;
constexpr int timeWidth = 170;

QString fileName(const std::string& path) { return QFileInfo(qt::toQString(path)).fileName(); }

QString describe(const jobs::TableDifference& one) {
  return QStringLiteral("%1: 今 %2 件 → 控え %3 件 (消えるか変わる %4 件、戻る %5 件)")
      .arg(qt::toQString(one.table))
      .arg(one.inJob)
      .arg(one.inCopy)
      .arg(one.onlyInJob)
      .arg(one.onlyInCopy);
}

}  // namespace

RestoreDialog::RestoreDialog(std::string path, FileDialogs dialogs, QWidget* parent)
    : QDialog(parent),
      form_(std::make_unique<Ui::Restore>()),
      path_(std::move(path)),
      dialogs_(std::move(dialogs)) {
  form_->setupUi(this);
  form_->copies->setColumnWidth(0, timeWidth);
  connect(form_->copies, &QTreeWidget::currentItemChanged, this, &RestoreDialog::showDifferences);
  connect(form_->other, &QPushButton::clicked, this, &RestoreDialog::chooseOther);
  connect(form_->restore, &QPushButton::clicked, this, &RestoreDialog::restore);
  connect(form_->leave, &QPushButton::clicked, this, &QDialog::reject);
  list();
  form_->copies->setFocus();
}

RestoreDialog::~RestoreDialog() { becomeDeaf(*this); }

void RestoreDialog::list() {
  form_->copies->clear();
  for (const std::string& copy : jobs::copiesOf(path_)) add(copy);
  if (form_->copies->topLevelItemCount() == 0)
    say(QStringLiteral("このジョブの控えはまだありません。"), false);
  form_->copies->setCurrentItem(form_->copies->topLevelItem(0));
  showDifferences();
}

void RestoreDialog::add(const std::string& copy) {
  const QFileInfo file(qt::toQString(copy));
  auto* item = new QTreeWidgetItem(
      form_->copies, {file.lastModified().toString(QStringLiteral("yyyy-MM-dd HH:mm:ss")), file.fileName()});
  item->setData(0, pathRole, qt::toQString(copy));
  item->setToolTip(1, QDir::toNativeSeparators(file.filePath()));
}

std::string RestoreDialog::selected() const {
  const QTreeWidgetItem* const item = form_->copies->currentItem();
  return item == nullptr ? std::string() : qt::fromQString(item->data(0, pathRole).toString());
}

void RestoreDialog::chooseOther() {
  const QString file = dialogs_.open(this, QStringLiteral("控えを選ぶ"), {},
                                     QStringLiteral("ジョブ (*.sqlite *.db);;すべてのファイル (*)"));
  if (file.isEmpty()) return;
  add(qt::fromQString(file));
  form_->copies->setCurrentItem(form_->copies->topLevelItem(form_->copies->topLevelItemCount() - 1));
}

/// A copy that cannot be read, or is the same as the job, leads nowhere.
void RestoreDialog::showDifferences() {
  form_->restore->setEnabled(false);
  form_->differences->clear();
  if (selected().empty()) return;
  QStringList lines;
  try {
    const Hourglass hourglass;
    for (const jobs::TableDifference& one : jobs::differences(path_, selected())) lines << describe(one);
  } catch (const std::exception& error) {
    return form_->differences->setPlainText(qt::toQString(error.what()));
  }
  form_->restore->setEnabled(!lines.isEmpty());
  form_->differences->setPlainText(lines.isEmpty() ? QStringLiteral("今のジョブと同じです。")
                                                   : lines.join(u'\n'));
}

void RestoreDialog::restore() {
  const std::string copy = selected();
  try {
    std::string before;
    {
      const Hourglass hourglass;
      before = jobs::restore(path_, copy);
    }
    list();
    say(QStringLiteral("「%1」に戻しました。戻す前の内容は「%2」にあります。")
            .arg(fileName(copy), fileName(before)),
        false);
  } catch (const std::exception& error) {
    say(qt::toQString(error.what()), true);
  }
}

void RestoreDialog::say(const QString& words, bool wrong) {
  QPalette colours = form_->message->palette();
  colours.setColor(QPalette::WindowText, palette().color(wrong ? QPalette::BrightText : QPalette::Text));
  form_->message->setPalette(colours);
  form_->message->setText(words);
}

}  // namespace start
