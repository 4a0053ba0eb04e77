#pragma once

#include <QLabel>
#include <QLineEdit>
#include <QWidget>

#include "ui/find.h"

class QAbstractScrollArea;

namespace qt {

/// The bar under a table in which a text is looked for. It stands where the horizontal scroll bar stands
/// otherwise, which makes room for it.
class FindBar : public QWidget {
  Q_OBJECT

 public:
  explicit FindBar(QAbstractScrollArea& table);

  /// Opens the bar with the keyboard in it, what was looked for before selected.
  void open();
  void close();
  /// Lays the bar along the lower edge of its table.
  void place();
  QString text() const { return text_.text(); }
  /// Says whether the text was found.
  void tell(bool found);

 signals:
  /// The operator looks for the text.
  void asked(ui::Way way);
  /// The bar has been closed: keys go to the table again.
  void closed();

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  class Room;

  QAbstractScrollArea& table_;
  Room& room_;
  QLineEdit& text_;
  QLabel& result_;
};

}  // namespace qt
