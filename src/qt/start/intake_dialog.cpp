#include "start/intake_dialog.h"

#include <QClipboard>
#include <QHeaderView>
#include <QMessageBox>
#include <QShortcut>
#include <algorithm>
#include <utility>

#include "intake/columns.h"
#include "jobs/template.h"
#include "qt/convert.h"
#include "start/deaf.h"
#include "start/hourglass.h"
#include "ui_Intake.h"

namespace start {
namespace {

constexpr int reasonWidth = 230;
constexpr int cellWidth = 105;
constexpr int lineHeight = 22;
constexpr int mostNamed = 5;  // routes that a question names one by one

const char* const categories[] = {"0", "1", "2", "3", "4"};

/// The routes that would be replaced, the first of them by name, with numbers.
QString existingText(const std::vector<intake::ExistingRoute>& existing) {
  QString text = QStringLiteral("ジョブにはすでに次の路線の観測があります。\n");
  std::int64_t records = 0;
  int named = 0;
  int coming = 0;
  for (const intake::ExistingRoute& one : existing) {
    records += one.records;
    coming += one.route.benchMarks;
    if (++named <= mostNamed)
      text += QStringLiteral("\n事業 %1 路線 %2 (区分 %3): 今 %4 件 → 取り込み %5 件")
                  .arg(qt::toQString(one.route.project), qt::toQString(one.route.route),
                       qt::toQString(one.route.category))
                  .arg(one.records)
                  .arg(one.route.benchMarks);
  }
  if (named > mostNamed) text += QStringLiteral("\nほか %1 路線").arg(named - mostNamed);
  return text + QStringLiteral("\n\n合わせて %1 路線、%2 件を消し、%3 件に置き換えますか。")
                    .arg(named)
                    .arg(records)
                    .arg(coming);
}

}  // namespace

IntakeDialog::IntakeDialog(const std::string& path, const std::string& jobId, const std::string& settingsFile,
                           FileDialogs dialogs, QWidget* parent)
    : QDialog(parent),
      form_(std::make_unique<Ui::Intake>()),
      table_(path, jobId, settingsFile),
      model_(new IntakeModel(table_, this)),
      dialogs_(std::move(dialogs)) {
  form_->setupUi(this);
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  setUpTable();
  setUpChoices();
  connect(form_->paste, &QPushButton::clicked, this, &IntakeDialog::paste);
  connect(form_->readFile, &QPushButton::clicked, this, &IntakeDialog::readFile);
  connect(form_->writeTemplate, &QPushButton::clicked, this, &IntakeDialog::writeTemplate);
  connect(form_->nextRefused, &QPushButton::clicked, this, &IntakeDialog::goToNextRefused);
  connect(form_->store, &QPushButton::clicked, this, &IntakeDialog::store);
  connect(form_->leave, &QPushButton::clicked, this, &QDialog::reject);
  showPlan();
}

/// The view, which goes last, has nothing of the table then.
IntakeDialog::~IntakeDialog() {
  becomeDeaf(*this);
  form_->table->setModel(nullptr);
}

void IntakeDialog::setUpTable() {
  form_->table->setModel(model_);
  form_->table->horizontalHeader()->setDefaultSectionSize(cellWidth);
  form_->table->verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  form_->table->verticalHeader()->setDefaultSectionSize(lineHeight);
  connect(model_, &IntakeModel::corrected, this, &IntakeDialog::showPlan);
  connect(form_->table->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& now) {
            if (now.column() > IntakeModel::reasonColumn) form_->column->setCurrentIndex(now.column() - 1);
          });
  auto* keys = new QShortcut(QKeySequence::Paste, form_->table);
  keys->setContext(Qt::WidgetShortcut);
  connect(keys, &QShortcut::activated, this, &IntakeDialog::paste);
}

void IntakeDialog::setUpChoices() {
  form_->field->addItem(QStringLiteral("(取り込まない)"));
  for (const intake::FieldInfo& info : intake::fields()) form_->field->addItem(fieldText(info.field));
  for (const char* category : categories) form_->category->addItem(QString::fromLatin1(category));
  connect(form_->column, &QComboBox::currentIndexChanged, this, &IntakeDialog::showField);
  connect(form_->field, &QComboBox::activated, this, &IntakeDialog::chooseField);
  connect(form_->project, &QLineEdit::editingFinished, this, &IntakeDialog::chooseDefaults);
  connect(form_->route, &QLineEdit::editingFinished, this, &IntakeDialog::chooseDefaults);
  connect(form_->category, &QComboBox::activated, this, &IntakeDialog::chooseDefaults);
}

void IntakeDialog::read(const std::function<void()>& reading) {
  try {
    const Hourglass hourglass;
    reading();
  } catch (const std::exception& error) {
    return say(qt::toQString(error.what()), true);
  }
  model_->readAnew();
  form_->table->setColumnWidth(IntakeModel::reasonColumn, reasonWidth);
  showColumns();
  showPlan();
  say({}, false);
}

void IntakeDialog::paste() {
  const std::string words = qt::fromQString(QGuiApplication::clipboard()->text());
  if (words.empty()) return say(QStringLiteral("クリップボードに表がありません。"), true);
  read([&] { table_.readText(words); });
}

void IntakeDialog::readFile() {
  const QString file = dialogs_.open(this, QStringLiteral("観測成果の表を読む"), {},
                                     QStringLiteral("表 (*.csv *.tsv *.txt);;すべてのファイル (*)"));
  if (!file.isEmpty()) read([&] { table_.readFile(qt::fromQString(file)); });
}

void IntakeDialog::writeTemplate() {
  const QString file = dialogs_.save(this, QStringLiteral("ひな形を書き出す"),
                                     QStringLiteral("観測成果.xlsx"), QStringLiteral("Excel (*.xlsx)"));
  if (file.isEmpty()) return;
  try {
    jobs::writeTemplate(qt::fromQString(file));
    say(QStringLiteral("ひな形「%1」を書き出しました。").arg(file), false);
  } catch (const std::exception& error) {
    say(QStringLiteral("ひな形「%1」を書けません。%2").arg(file, qt::toQString(error.what())), true);
  }
}

/// The first column that nobody knows is the one to match.
void IntakeDialog::showColumns() {
  const QSignalBlocker quiet(form_->column);
  form_->column->clear();
  int unknown = -1;
  for (std::size_t column = 0; column < table_.headings().size(); ++column) {
    form_->column->addItem(qt::toQString(table_.headings()[column]));
    if (unknown < 0 && !table_.fieldOf(column)) unknown = static_cast<int>(column);
  }
  form_->column->setCurrentIndex(std::max(unknown, 0));
  showField();
}

int IntakeDialog::shownColumn() const { return form_->column->currentIndex(); }

void IntakeDialog::showField() {
  if (shownColumn() < 0) return;
  const auto field = table_.fieldOf(static_cast<std::size_t>(shownColumn()));
  form_->field->setCurrentIndex(field ? form_->field->findText(fieldText(*field)) : 0);
}

void IntakeDialog::chooseField() {
  const int chosen = form_->field->currentIndex();
  if (shownColumn() < 0) return;
  const auto field = chosen == 0
                         ? std::nullopt
                         : std::optional(intake::fields()[static_cast<std::size_t>(chosen - 1)].field);
  table_.match(static_cast<std::size_t>(shownColumn()), field);
  model_->thoughtAnew();
  showPlan();
}

void IntakeDialog::chooseDefaults() {
  table_.setDefaults(qt::fromQString(form_->project->text()), qt::fromQString(form_->route->text()),
                     qt::fromQString(form_->category->currentText()));
  model_->thoughtAnew();
  showPlan();
}

void IntakeDialog::goToNextRefused() {
  const QModelIndex now = form_->table->currentIndex();
  const auto next =
      table_.nextRefused(now.isValid() ? std::optional(static_cast<std::size_t>(now.row())) : std::nullopt);
  if (!next) return;
  form_->table->setCurrentIndex(model_->index(static_cast<int>(*next), IntakeModel::reasonColumn));
  form_->table->setFocus();
}

void IntakeDialog::showPlan() {
  const intake::Plan& plan = table_.plan();
  const auto refused = static_cast<qlonglong>(plan.refusals.size());
  form_->summary->setText(QStringLiteral("路線 %1、水準点 %2、取り込めない箇所 %3")
                              .arg(plan.routes.size())
                              .arg(plan.observations.size())
                              .arg(refused));
  QStringList lines;
  for (const std::string& remark : table_.remarks()) lines << qt::toQString(remark);
  form_->remarks->setPlainText(lines.join(u'\n'));
  form_->nextRefused->setEnabled(table_.nextRefused(std::nullopt).has_value());
  form_->store->setEnabled(table_.canBeStored());
}

void IntakeDialog::store() {
  if (!table_.canBeStored()) return;
  try {
    const auto existing = table_.existing();
    existing.empty() ? storeNow(false) : askToReplace(existing);
  } catch (const std::exception& error) {
    say(qt::toQString(error.what()), true);
  }
}

/// Enter, Esc and the close box leave the job as it is.
void IntakeDialog::askToReplace(const std::vector<intake::ExistingRoute>& existing) {
  auto* box = new QMessageBox(QMessageBox::Question, windowTitle(), existingText(existing),
                              QMessageBox::NoButton, this);
  box->setAttribute(Qt::WA_DeleteOnClose);
  box->setTextFormat(Qt::PlainText);
  auto* replace = box->addButton(QStringLiteral("置き換える"), QMessageBox::ActionRole);
  auto* leave = box->addButton(QStringLiteral("やめる"), QMessageBox::RejectRole);
  replace->setObjectName(QStringLiteral("replace"));
  box->setDefaultButton(leave);
  box->setEscapeButton(leave);
  connect(replace, &QAbstractButton::clicked, this, [this] { storeNow(true); });
  box->open();
}

void IntakeDialog::storeNow(bool replace) {
  try {
    const Hourglass hourglass;
    const auto count = table_.store(replace);
    say(QStringLiteral("%1 件を取り込みました。").arg(count), false);
  } catch (const std::exception& error) {
    say(qt::toQString(error.what()), true);
  }
}

void IntakeDialog::say(const QString& words, bool wrong) {
  QPalette colours = form_->message->palette();
  colours.setColor(QPalette::WindowText, palette().color(wrong ? QPalette::BrightText : QPalette::Text));
  form_->message->setPalette(colours);
  form_->message->setText(words);
}

}  // namespace start
