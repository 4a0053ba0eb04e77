#include "qt/reading_bar.h"

#include <QApplication>
#include <QLocale>
#include <utility>

#include "text/cancelled.h"

namespace qt {
namespace {

constexpr qint64 turnTime = 50;  // ms between the turns of the windows

}  // namespace

ReadingBar::ReadingBar(QWidget* parent, QString words, int patience)
    : parent_(parent), words_(std::move(words)), next_(patience) {
  since_.start();
}

ReadingBar::~ReadingBar() {
  if (dialog_ == nullptr) return;
  dialog_.reset();
  for (QWidget* window : still_) window->setUpdatesEnabled(true);
  QApplication::restoreOverrideCursor();
}

/// The grids are half filled while this is shown: nothing of the windows may look into them.
void ReadingBar::open() {
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (!window->isVisible() || !window->updatesEnabled()) continue;
    window->setUpdatesEnabled(false);
    still_.push_back(window);
  }
  QApplication::setOverrideCursor(Qt::ArrowCursor);
  dialog_ = std::make_unique<QProgressDialog>(words_, QStringLiteral("中止"), 0, 0, parent_);
  dialog_->setObjectName(QStringLiteral("readingBar"));
  dialog_->setWindowTitle(words_);
  dialog_->setWindowModality(Qt::ApplicationModal);
  dialog_->setMinimumDuration(0);
  dialog_->show();
}

void ReadingBar::goOn() {
  ++done_;
  if (since_.elapsed() < next_) return;
  if (dialog_ == nullptr) open();
  dialog_->setLabelText(words_ + QStringLiteral("… %1 件").arg(QLocale(QLocale::Japanese).toString(done_)));
  QApplication::processEvents();
  if (dialog_->wasCanceled()) throw text::Cancelled();
  next_ = since_.elapsed() + turnTime;
}

}  // namespace qt
