#pragma once

#include <QLabel>
#include <QTimer>

class QAbstractScrollArea;

namespace qt {

/// A short word in the lower corner of a table about what was just done; it goes by itself.
class GridNote : public QLabel {
  Q_OBJECT

 public:
  explicit GridNote(QAbstractScrollArea& table);

  void say(const QString& words);
  /// Lays the note into the corner of its table.
  void place();

 private:
  QAbstractScrollArea& table_;
  QTimer end_;
};

}  // namespace qt
