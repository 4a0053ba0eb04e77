#include "start/start_window.h"

#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QMimeData>
#include <QShortcut>
#include <QUrl>
#include <utility>

#include "jobs/making.h"
#include "platform/files.h"
#include "qt/convert.h"
#include "qt/manual_window.h"
#include "start/choose_job_dialog.h"
#include "start/deaf.h"
#include "start/hourglass.h"
#include "start/new_job_dialog.h"
#include "ui_StartWindow.h"

namespace start {
namespace {

enum Columns { Name, Place, Engine, Job, Opened };

constexpr int pathRole = Qt::UserRole;

const char* const jobFiles = "ジョブ (*.sqlite *.db *.mdb *.accdb *.dsn);;すべてのファイル (*)";

QString jobText(const jobs::RecentJob& job) {
  if (job.jobId.empty()) return {};
  return qt::toQString(job.jobId) +
         (job.grade.empty() ? QString() : QStringLiteral("・%1級").arg(qt::toQString(job.grade)));
}

/// The one file that is dragged; "" for anything else.
QString draggedFile(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  return urls.size() == 1 && urls.front().isLocalFile() ? urls.front().toLocalFile() : QString();
}

}  // namespace

StartWindow::StartWindow(Places places, FileDialogs dialogs)
    : form_(std::make_unique<Ui::StartWindow>()),
      places_(std::move(places)),
      dialogs_(std::move(dialogs)),
      recent_(places_.settingsFile) {
  form_->setupUi(this);
  setAcceptDrops(true);
  form_->messagePanel->hide();
  for (const auto& [column, width] : {std::pair{Name, 150}, {Place, 190}, {Engine, 90}, {Job, 90}})
    form_->recent->setColumnWidth(column, width);
  connect(form_->recent, &QTreeWidget::itemSelectionChanged, this, &StartWindow::showChoices);
  connect(form_->recent, &QTreeWidget::itemDoubleClicked, this, [this] { openPath(selectedPath()); });
  connect(form_->open, &QPushButton::clicked, this, [this] { openPath(selectedPath()); });
  connect(form_->forget, &QPushButton::clicked, this, &StartWindow::forgetSelected);
  connect(form_->openFile, &QPushButton::clicked, this, &StartWindow::chooseFile);
  connect(form_->newJob, &QPushButton::clicked, this, &StartWindow::openNewJob);
  connect(form_->sample, &QPushButton::clicked, this, &StartWindow::openSample);
  connect(form_->leave, &QPushButton::clicked, this, &QWidget::close);
  setUpKeys();
  showRecent();
  (form_->recent->topLevelItemCount() > 0 ? static_cast<QWidget*>(form_->recent) : form_->newJob)->setFocus();
}

StartWindow::~StartWindow() { becomeDeaf(*this); }

void StartWindow::setUpKeys() {
  const auto onList = [this](int key, auto what) {
    auto* shortcut = new QShortcut(QKeySequence(key), form_->recent);
    shortcut->setContext(Qt::WidgetShortcut);
    connect(shortcut, &QShortcut::activated, this, what);
  };
  onList(Qt::Key_Return, [this] { openPath(selectedPath()); });
  onList(Qt::Key_Enter, [this] { openPath(selectedPath()); });
  onList(Qt::Key_Delete, [this] { forgetSelected(); });
  connect(new QShortcut(QKeySequence::Open, this), &QShortcut::activated, this, &StartWindow::chooseFile);
  connect(new QShortcut(QKeySequence::New, this), &QShortcut::activated, this, &StartWindow::openNewJob);
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this,
          [this] { qt::ManualWindow::open(objectName(), *this); });
}

/// Shows the list anew; the job at `current`, else the first, is selected.
void StartWindow::showRecent(const std::string& current) {
  form_->recent->clear();
  for (const jobs::RecentJob& job : recent_.list()) addRecent(job);
  auto* selected = form_->recent->topLevelItem(0);
  for (int row = 0; row < form_->recent->topLevelItemCount(); ++row)
    if (form_->recent->topLevelItem(row)->data(Name, pathRole).toString() == qt::toQString(current))
      selected = form_->recent->topLevelItem(row);
  if (selected != nullptr) form_->recent->setCurrentItem(selected);
  showChoices();
}

void StartWindow::addRecent(const jobs::RecentJob& job) {
  const QFileInfo file(qt::toQString(platform::pathText(platform::nativePath(job.path))));
  const bool gone = !platform::isFile(job.path);
  auto* item =
      new QTreeWidgetItem(form_->recent, {file.fileName(), QDir::toNativeSeparators(file.path()),
                                          gone ? QStringLiteral("見つかりません") : qt::toQString(job.engine),
                                          jobText(job), qt::toQString(job.opened.substr(0, 16))});
  item->setData(Name, pathRole, qt::toQString(job.path));
  for (int column = Name; column <= Opened; ++column) {
    item->setToolTip(column, QDir::toNativeSeparators(file.filePath()));
    if (gone) item->setForeground(column, palette().placeholderText());
  }
}

std::string StartWindow::selectedPath() const {
  const QTreeWidgetItem* const item = form_->recent->currentItem();
  return item == nullptr ? std::string() : qt::fromQString(item->data(Name, pathRole).toString());
}

void StartWindow::showChoices() {
  const bool any = form_->recent->currentItem() != nullptr;
  form_->open->setEnabled(any);
  form_->forget->setEnabled(any);
}

void StartWindow::forgetSelected() {
  if (form_->recent->currentItem() == nullptr) return;
  const bool written = recent_.forget(selectedPath());
  showRecent();
  if (!written) say(QStringLiteral("設定のファイルに書けないため、一覧から外せません。"), true);
}

void StartWindow::chooseFile() {
  const QString path = dialogs_.open(this, QStringLiteral("ジョブを開く"), qt::toQString(places_.documents),
                                     QString::fromUtf8(jobFiles));
  if (!path.isEmpty()) openPath(qt::fromQString(path));
}

void StartWindow::openNewJob() {
  auto* dialog = new NewJobDialog(qt::toQString(places_.documents), dialogs_, this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->whenMade([this](const std::string& path) { openPath(path); });
  dialog->open();
}

void StartWindow::openSample() {
  std::string path;
  try {
    const Hourglass hourglass;
    path = jobs::sampleJob(places_.documents, places_.programFolder);
  } catch (const std::exception& error) {
    return say(QStringLiteral("見本ジョブをつくれません。") + qt::toQString(error.what()), true);
  }
  openPath(path);
}

void StartWindow::openPath(const std::string& path) {
  jobs::Examination found;
  {
    const Hourglass hourglass;
    found = jobs::examine(path);
  }
  if (found.trouble) return say(qt::toQString(found.trouble->cause + "\n" + found.trouble->wayOut), true);
  form_->messagePanel->hide();
  openEntries(path, found);
}

/// The job-selection file goes before any choice; so does the one job that the table marks.
void StartWindow::openEntries(const std::string& path, const jobs::Examination& found) {
  if (hasSelectionFile()) return begin(path, found.engine, nullptr, false);
  if (found.entries.empty())
    return say(QStringLiteral(
                   "「%1」にはジョブが登録されていません。\n表 JobData にジョブと等級を登録してください。")
                   .arg(qt::toQString(path)),
               true);
  if (const jobs::JobEntry* entry = jobs::settledEntry(found.entries))
    return begin(path, found.engine, entry, !entry->executed);
  auto* dialog = new ChooseJobDialog(found.entries, this);
  dialog->setAttribute(Qt::WA_DeleteOnClose);
  dialog->whenChosen([this, path, engine = found.engine](const jobs::JobEntry& entry) {
    begin(path, engine, &entry, true);
  });
  dialog->open();
}

void StartWindow::begin(const std::string& path, const std::string& engine, const jobs::JobEntry* entry,
                        bool forThisRun) {
  recent_.remember({path, engine, entry == nullptr ? std::string() : entry->id,
                    entry == nullptr ? std::string() : std::to_string(entry->grade), jobs::timeNow()});
  showRecent(path);
  shell::CommandLine commandLine{path, places_.programFolder};
  if (forThisRun) commandLine.chosen = shell::ChosenJob{entry->id, entry->grade};
  if (opened_) opened_(std::move(commandLine));
}

bool StartWindow::hasSelectionFile() const {
  return platform::isFile(places_.programFolder + "\\JobSel.txt");
}

void StartWindow::say(const QString& words, bool wrong) {
  QPalette colours = form_->messagePanel->palette();
  colours.setColor(QPalette::WindowText, palette().color(wrong ? QPalette::BrightText : QPalette::Text));
  form_->message->setPalette(colours);
  form_->message->setText(words);
  form_->messagePanel->show();
}

void StartWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  if (left_) left_();
}

void StartWindow::dragEnterEvent(QDragEnterEvent* event) {
  if (!draggedFile(*event->mimeData()).isEmpty()) event->acceptProposedAction();
}

/// The job is opened when the program that the file comes from has been let go.
void StartWindow::dropEvent(QDropEvent* event) {
  const QString file = draggedFile(*event->mimeData());
  if (file.isEmpty()) return;
  event->acceptProposedAction();
  QMetaObject::invokeMethod(
      this, [this, file] { openPath(qt::fromQString(file)); }, Qt::QueuedConnection);
}

}  // namespace start
