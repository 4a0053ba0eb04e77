#pragma once

#include <QMenu>
#include <QPointer>

class QMainWindow;

namespace qt {

class GridView;

/// The menu 編集 of a window with tables: what can be done to the table that has the keyboard or had it last.
/// Where none of those that can be seen had it, it is the first of them.
class EditMenu : public QMenu {
  Q_OBJECT

 public:
  /// Stands in the menu bar of `window` behind its first menu.
  explicit EditMenu(QMainWindow& window);

 private:
  using Act = void (GridView::*)();

  QAction& add(const char* name, const QString& caption, const QKeySequence& keys, Act act);
  void setUpKeys();
  void run(Act act);
  GridView* table() const;
  void update();

  QMainWindow& window_;
  mutable QPointer<GridView> last_;
  QAction& undo_;
  QAction& redo_;
};

}  // namespace qt
