#pragma once

#include <QElapsedTimer>
#include <QProgressDialog>
#include <QString>
#include <QWidget>
#include <cstddef>
#include <memory>
#include <vector>

#include "ui/work_bar.h"

namespace qt {

/// The bar that tells how many records have been read, with a button to give up. It shows after a while only.
/// As long as it does, the windows keep the picture that they had and take nothing but that button.
class ReadingBar : public ui::WorkBar {
 public:
  /// `words`: what is done, "読み込んでいます". `patience`: ms before it shows.
  ReadingBar(QWidget* parent, QString words, int patience);
  ~ReadingBar() override;

  void goOn() override;

 private:
  void open();

  QWidget* parent_;
  QString words_;
  std::size_t done_ = 0;
  QElapsedTimer since_;
  qint64 next_;  ///< ms since the beginning at which the windows get their turn again
  std::unique_ptr<QProgressDialog> dialog_;
  std::vector<QWidget*> still_;  ///< the windows that are not drawn anew
};

}  // namespace qt
