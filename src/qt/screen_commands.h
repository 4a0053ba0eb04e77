#pragma once

#include <QObject>
#include <QString>

class QMainWindow;

namespace qt {

/// The commands that every window of work has beside those of its screen: Ctrl+O goes to where work is
/// chosen, Ctrl+S saves, F1 opens the manual at the screen's chapter.
///
/// The form says how: its action "goToSelection" leads to the page with the selection, the first page where
/// it names none; where saving has no menu item, its action "goToSave" leads to the button that saves (its
/// property "button") and presses it once its page is in front.
class ScreenCommands : public QObject {
  Q_OBJECT

 public:
  /// For `window`, whose form has been set up; `screen`: the screen's name.
  ScreenCommands(QMainWindow& window, QString screen);

 private:
  void addHelp();
  void goToSelection();
  void goToSave();
  void openManual();

  QMainWindow& window_;
  QString screen_;
};

}  // namespace qt
