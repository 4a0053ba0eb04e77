#include "picture/picture_window.h"

#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QShortcut>
#include <QVBoxLayout>
#include <utility>

namespace picture {
namespace {

/// The waiting pointer for as long as it lives.
class Busy {
 public:
  Busy() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
  ~Busy() { QGuiApplication::restoreOverrideCursor(); }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;
};

/// Runs a step of the picture with the waiting pointer and returns what went wrong.
template <class Step>
QString waitFor(Step&& step) {
  const Busy busy;
  return step();
}

}  // namespace

PictureWindow::PictureWindow(QString target)
    : target_(std::move(target)), view_(new PictureView), size_(new QLabel), percent_(new QSpinBox) {
  setWindowTitle(QStringLiteral("画像貼付"));
  view_->setObjectName(QStringLiteral("view"));
  auto* centre = new QWidget;
  auto* rows = new QVBoxLayout(centre);
  rows->addWidget(view_, 1);
  rows->addWidget(makeControls());
  setCentralWidget(centre);
  addShortcuts();
  connect(view_, &PictureView::marked, this, &PictureWindow::showChoices);
  connect(percent_, &QSpinBox::valueChanged, this,
          [this](int percent) { change(waitFor([&] { return picture_.scale(percent); })); });
  takeClipboard();
  showPicture();
  (picture_.isEmpty() ? findChild<QWidget*>(QStringLiteral("open")) : view_)->setFocus();
}

QWidget* PictureWindow::makeControls() {
  auto* controls = new QWidget;
  auto* row = new QHBoxLayout(controls);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(
      makeButton("clipboard", QStringLiteral("クリップボード(&V)"), &PictureWindow::takeClipboard));
  row->addWidget(makeButton("open", QStringLiteral("開く(&O)..."), &PictureWindow::chooseFile));
  row->addWidget(cut_ = makeButton("cut", QStringLiteral("切り抜き(&T)"), &PictureWindow::cut));
  row->addWidget(undo_ = makeButton("undo", QStringLiteral("元に戻す(&Z)"), &PictureWindow::undo));
  auto* caption = new QLabel(QStringLiteral("倍率(&S)"));
  caption->setBuddy(percent_);
  percent_->setObjectName(QStringLiteral("percent"));
  percent_->setRange(Picture::smallestPercent, Picture::largestPercent);
  percent_->setSuffix(QStringLiteral(" %"));
  percent_->setKeyboardTracking(false);
  row->addWidget(caption);
  row->addWidget(percent_);
  row->addWidget(size_, 1);
  row->addWidget(paste_ = makeButton("paste", QStringLiteral("貼付(&P)"), &PictureWindow::paste));
  auto* cancel = new QPushButton(QStringLiteral("中止(&X)"));
  connect(cancel, &QPushButton::clicked, this, &QWidget::close);
  row->addWidget(cancel);
  return controls;
}

QPushButton* PictureWindow::makeButton(const char* name, const QString& caption,
                                       void (PictureWindow::*what)()) {
  auto* button = new QPushButton(caption);
  button->setObjectName(QString::fromLatin1(name));
  connect(button, &QPushButton::clicked, this, what);
  return button;
}

void PictureWindow::addShortcuts() {
  const auto add = [this](const QKeySequence& keys, void (PictureWindow::*what)()) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, what);
  };
  add(QKeySequence::Open, &PictureWindow::chooseFile);
  add(QKeySequence::Paste, &PictureWindow::takeClipboard);
  add(QKeySequence::Undo, &PictureWindow::undo);
  auto* enter = new QShortcut(QKeySequence(Qt::Key_Return), view_);
  enter->setContext(Qt::WidgetShortcut);
  connect(enter, &QShortcut::activated, this, &PictureWindow::cut);
}

void PictureWindow::chooseFile() {
  const QString path = QFileDialog::getOpenFileName(this, QStringLiteral("画像を開く"), {},
                                                    QStringLiteral("画像 (*.png *.jpg *.jpeg *.bmp)"));
  if (!path.isEmpty()) openFile(path);
}

void PictureWindow::openFile(const QString& path) {
  const QString wrong = waitFor([&] { return picture_.open(path); });
  if (!wrong.isEmpty())
    emit complained(
        QStringLiteral("画像を開けません。\n%1\n（%2）").arg(QDir::toNativeSeparators(path), wrong));
  showPicture();
}

void PictureWindow::takeClipboard() {
  const QImage image = QApplication::clipboard()->image();
  if (!image.isNull()) change(picture_.take(image));
}

void PictureWindow::cut() {
  change(waitFor([this] { return picture_.crop(view_->mark()); }));
}

/// A complaint waits for its turn: the picture of the clipboard is taken before anybody listens.
void PictureWindow::change(const QString& wrong) {
  if (!wrong.isEmpty())
    QMetaObject::invokeMethod(
        this, [this, wrong] { emit complained(wrong); }, Qt::QueuedConnection);
  showPicture();
}

void PictureWindow::undo() {
  picture_.undo();
  showPicture();
}

/// The picture is handed over: the tool's work is done.
void PictureWindow::paste() {
  percent_->interpretText();
  if (picture_.isEmpty()) return;
  const QString wrong = waitFor([this] { return picture_.write(target_); });
  if (wrong.isEmpty())
    close();
  else
    emit complained(
        QStringLiteral("画像を保存できません。\n%1\n（%2）").arg(QDir::toNativeSeparators(target_), wrong));
}

void PictureWindow::showPicture() {
  view_->setImage(picture_.image());
  const QSignalBlocker quiet(percent_);
  percent_->setValue(picture_.percent());
  percent_->setEnabled(!picture_.isEmpty());
  showChoices();
}

void PictureWindow::showChoices() {
  const QSize size = view_->mark().isEmpty() ? picture_.image().size() : view_->mark().size();
  size_->setText(picture_.isEmpty()
                     ? QString()
                     : QStringLiteral("%1 × %2 ピクセル").arg(size.width()).arg(size.height()));
  cut_->setEnabled(!view_->mark().isEmpty());
  undo_->setEnabled(picture_.canUndo());
  paste_->setEnabled(!picture_.isEmpty());
}

QString pictureTarget(const QString& argv0) {
  const QFileInfo started(argv0);
  const bool isPath = started.isAbsolute() && started.exists();
  return (isPath ? started.absolutePath() : QCoreApplication::applicationDirPath()) +
         QStringLiteral("/temp.bmp");
}

}  // namespace picture
