#pragma once

#include <QAbstractListModel>
#include <QLabel>
#include <QListView>
#include <QToolButton>

#include "ui/finding.h"

namespace qt {

/// The findings of a screen as a list: each with its severity, its text and the way out.
class FindingsModel : public QAbstractListModel {
  Q_OBJECT

 public:
  using QAbstractListModel::QAbstractListModel;

  void setFindings(ui::Findings findings);
  const ui::Findings& findings() const { return findings_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;

 private:
  ui::Findings findings_;
};

/// 点検: what the checks have found on a screen. A click on a finding, or Enter, leads to its cell. The list
/// can be folded away; how many findings there are is told all the same.
class FindingsPane : public QWidget {
  Q_OBJECT

 public:
  explicit FindingsPane(QWidget* parent = nullptr);

  /// Shows these findings; the one that was current stays so where it is still among them.
  void setFindings(const ui::Findings& findings);
  const ui::Findings& findings() const { return model_.findings(); }

  QSize sizeHint() const override;

  bool isFolded() const { return list_.isHidden(); }
  void fold(bool away);

 signals:
  /// The operator wants to be led to a finding.
  void chosen(const ui::Finding& finding);
  /// The operator has folded the list away, or unfolded it.
  void folded(bool away);

 private:
  void choose(const QModelIndex& index);
  void showButton();

  FindingsModel model_;
  QToolButton& button_;
  QLabel& count_;
  QListView& list_;
};

/// How many findings there are, "誤り 1、注意 2"; "" for none.
QString countText(const ui::Findings& findings);

}  // namespace qt
