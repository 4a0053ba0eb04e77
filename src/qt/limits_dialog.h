#pragma once

#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <vector>

#include "route/limits.h"

class QGridLayout;
class QPushButton;
class QVBoxLayout;

namespace qt {

/// 許容範囲: the operator sets what the checks go by. Amounts that are none keep the dialog open and say so.
class LimitsDialog : public QDialog {
  Q_OBJECT

 public:
  explicit LimitsDialog(const route::Limits& limits, QWidget* parent = nullptr);

  /// What stands in the dialog. Only to be asked once it was accepted.
  route::Limits limits() const;

 private:
  QLineEdit& addField(QGridLayout& grid, int row, int col, const char* name, const QString& words);
  void addBounds(QGridLayout& grid);
  void addTolerances(QGridLayout& grid);
  void addButtons(QVBoxLayout& column);
  void show(const route::Limits& limits);
  void look();

  route::Limits before_;
  std::vector<QLineEdit*> amounts_;  // in the order of amountsOf()
  QLineEdit& source_;
  QLabel& complaint_;
  QPushButton* ok_ = nullptr;
};

}  // namespace qt
