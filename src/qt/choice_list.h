#pragma once

#include <QListWidget>

namespace qt {

/// A list of which the operator chooses one item, by mouse or keyboard. Each choice is told once, a click on
/// the item that is chosen already too.
class ChoiceList : public QListWidget {
  Q_OBJECT

 public:
  explicit ChoiceList(QWidget* parent = nullptr);

  /// The chosen row, −1 for none.
  int chosenRow() const;
  /// Marks a row as chosen, −1 for none; not told.
  void setChosenRow(int row);

 signals:
  void chosen(int row);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void selectionMoved();

  bool pressed_ = false;
  bool silent_ = false;
};

}  // namespace qt
